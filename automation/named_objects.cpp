#include "automation/named_objects.h"

#include "automation/conversions.h"
#include "contracts/grid_layout.h"
#include "contracts/project.h"
#include "host/loci/keys.h"
#include "host/loci/object_list.h"
#include "host/store/stored_allele.h"

namespace Tamrivo::Automation
{

namespace
{

class NamedProject : public Project
{
public:
    explicit NamedProject(Object& client)
        : m_name(std::get<std::string>(
              ConvertTo(Type::Text, client.Get("Name"), "The Name of a project"))),
          m_id(std::get<std::int32_t>(
              ConvertTo(Type::Long, client.Get("ProjectID"), "The ProjectID of a project")))
    {}

    std::string Name() const override { return m_name; }
    std::int32_t ProjectID() const override { return m_id; }

private:
    std::string m_name;
    std::int32_t m_id;
};

class PlainLayout : public Grid
{
public:
    std::string Name() const override { return "Grid " + std::to_string(m_id); }
    std::int32_t GridID() const override { return m_id; }
    void SetGridID(std::int32_t gridID) override { m_id = gridID; }

private:
    std::int32_t m_id = 0;
};

std::shared_ptr<BusinessObject> MemberOf(std::string_view query, const Value& value)
{
    const Value object = ConvertTo(Type::Object, value, "Each member of " + std::string(query));
    const auto& client = std::get<ObjectPointer>(object);
    if (query == "Projects")
        return std::make_shared<NamedProject>(*client);
    return ToLocus(client);
}

class NamedManager : public ObjectManager
{
public:
    explicit NamedManager(ObjectPointer client) : m_client(std::move(client)) {}

    std::shared_ptr<BusinessObject> Create(std::string_view key) override
    {
        if (key == "Grid")
            return std::make_shared<PlainLayout>();
        if (key == "Allele")
            return std::make_shared<StoredAllele>();
        const Value created =
            ConvertTo(Type::Object, m_client->Call("Create", Access::Method, {std::string(key)}),
                      "What the host's Create gives");
        return ToLocus(std::get<ObjectPointer>(created));
    }

    std::shared_ptr<ObjectList> Query(std::string_view name, std::string_view, std::string_view,
                                      std::string_view ordering, std::int32_t, bool) override
    {
        const Value found = ConvertTo(
            Type::Values,
            m_client->Call("Query", Access::Method, {std::string(name), std::string(ordering)}),
            "What the host's Query gives");
        auto list = std::make_shared<NamedObjectList>();
        for (const Value& value : std::get<List>(found))
            list->Add(MemberOf(name, value));
        return list;
    }

    void Save(BusinessObject& object, bool) override
    {
        auto& locus = dynamic_cast<MemoryLocus&>(object);
        m_client->Call("Save", Access::Method, {ToObject(locus.shared_from_this())});
    }

private:
    ObjectPointer m_client;
};

class NamedEntry : public LocusTagEntry
{
public:
    explicit NamedEntry(ObjectManager& objects) : m_objects(objects) {}

    std::int32_t TagID(std::int32_t) const override { return m_id; }
    void SetTagName(const std::string& tag) override { m_tag = tag; }
    const std::string& TagName() const { return m_tag; }
    std::int32_t Load() override
    {
        const auto loci = CurrentLoci(m_objects, "");
        if (!loci->KeyExists(m_tag))
            return LoadResult::NoSuchTag;
        m_id = As<Locus>(loci->Item(m_tag))->LocusTagID();
        return LoadResult::Loaded;
    }

private:
    ObjectManager& m_objects;
    std::string m_tag;
    std::int32_t m_id = 0;
};

} // namespace

std::shared_ptr<ObjectManager> NewNamedManager(ObjectPointer client)
{
    return std::make_shared<NamedManager>(std::move(client));
}

std::shared_ptr<LocusTagEntry> NewNamedEntry(ObjectManager& objects)
{
    return std::make_shared<NamedEntry>(objects);
}

NamedParameter::NamedParameter(ObjectPointer client, ObjectManager& objects)
    : m_client(std::move(client))
{
    const Value tags =
        ConvertTo(Type::Values, m_client->Get("LocusTags"), "The parameter's LocusTags");
    for (const Value& tag : std::get<List>(tags))
    {
        const auto entry = NewNamedEntry(objects);
        const Value text = ConvertTo(Type::Text, tag, "Each member of LocusTags");
        entry->SetTagName(std::get<std::string>(text));
        if (entry->Load() != LoadResult::Loaded)
            throw Failure(ErrorNumber::InvalidArgument, "AnalysisParameter",
                          "There is no current locus \"" + std::get<std::string>(text) + "\"");
        m_entries.push_back(entry);
    }
}

void NamedParameter::WriteBack()
{
    List tags;
    for (const auto& entry : m_entries)
        tags.emplace_back(static_cast<const NamedEntry&>(*entry).TagName());
    m_client->Put("LocusTags", tags);
}

} // namespace Tamrivo::Automation
