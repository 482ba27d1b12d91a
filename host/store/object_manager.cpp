#include "host/store/object_manager.h"

#include "contracts/grid_layout.h"
#include "host/database/database.h"
#include "host/store/locus_list.h"
#include "host/store/locus_table.h"
#include "host/store/projects.h"
#include "host/store/stored_allele.h"
#include "host/store/tag_order.h"

namespace Tamrivo
{

namespace
{

class NumberedGrid : public Grid
{
public:
    std::string Name() const override { return "Grid " + std::to_string(m_gridID); }
    std::int32_t GridID() const override { return m_gridID; }
    void SetGridID(std::int32_t gridID) override { m_gridID = gridID; }

private:
    std::int32_t m_gridID = 0;
};

std::shared_ptr<ObjectList> QueryLoci(const std::shared_ptr<Database>& database, bool byName)
{
    auto loci = ReadCurrentLoci(database);
    if (byName)
        SortByTag(loci);
    return std::make_shared<LocusList>(loci);
}

std::shared_ptr<ObjectList> QueryProjects(Database& database)
{
    auto list = std::make_shared<NamedObjectList>();
    for (const auto& project : ReadProjects(database))
        list->Add(project);
    return list;
}

} // namespace

StoreObjectManager::StoreObjectManager(std::shared_ptr<Database> database)
    : m_database(std::move(database))
{}

StoreObjectManager::~StoreObjectManager() = default;

std::shared_ptr<BusinessObject> StoreObjectManager::Create(std::string_view key)
{
    if (key == "Locus")
        return std::make_shared<StoredLocus>(m_database);
    if (key == "Allele")
        return std::make_shared<StoredAllele>();
    if (key == "Grid")
        return std::make_shared<NumberedGrid>();
    throw Failure(ErrorNumber::InvalidArgument, "ObjectManager",
                  "There is no class of objects \"" + std::string(key) + "\"");
}

std::shared_ptr<ObjectList> StoreObjectManager::Query(std::string_view name, std::string_view,
                                                      std::string_view, std::string_view ordering,
                                                      std::int32_t, bool)
{
    if (name == "CurrentLoci" && (ordering.empty() || ordering == "Name"))
        return QueryLoci(m_database, ordering == "Name");
    if (name == "Projects" && ordering.empty())
        return QueryProjects(*m_database);
    throw Failure(ErrorNumber::InvalidArgument, "ObjectManager",
                  "There is no query \"" + std::string(name) + "\" with the ordering \"" +
                      std::string(ordering) + "\"");
}

void StoreObjectManager::Save(BusinessObject& object, bool)
{
    auto* locus = dynamic_cast<StoredLocus*>(&object);
    if (!locus)
        throw Failure(ErrorNumber::InvalidArgument, "ObjectManager",
                      "\"" + object.Name() + "\" is not stored: only a locus can be stored");
    if (!m_writer)
        m_writer = std::make_unique<LocusWriter>(*m_database);
    m_writer->Save(*locus);
}

StoreObjectManagerGlobal::StoreObjectManagerGlobal(std::shared_ptr<Database> database)
    : m_database(std::move(database))
{}

ObjectManager& StoreObjectManagerGlobal::Manager()
{
    if (!m_manager)
        m_manager = std::make_unique<StoreObjectManager>(m_database);
    return *m_manager;
}

} // namespace Tamrivo
