#include "platform/store/store.h"

#include "platform/store/database.h"
#include "platform/store/locus_table.h"
#include "platform/store/object_manager.h"
#include "platform/store/projects.h"

namespace Tamrivo
{

Store::Store(const std::string& address)
    : m_database(std::make_shared<Database>(address)),
      m_managerGlobal(std::make_unique<StoreObjectManagerGlobal>(m_database))
{}

const std::string& Store::Name() const
{
    return m_database->Name();
}

bool Store::IsReadOnly() const
{
    return m_database->IsReadOnly();
}

void Store::OnProgress(const std::function<void()>& handler)
{
    m_database->Progress = handler;
}

std::shared_ptr<ObjectManager> Store::NewManager()
{
    return std::make_shared<StoreObjectManager>(m_database);
}

std::shared_ptr<Locus> Store::FindLocus(const std::string& tag)
{
    return ReadLocus(m_database, tag);
}

std::unordered_set<std::string> Store::TagKeys()
{
    return ReadTagKeys(*m_database);
}

void Store::DeleteLocus(const std::string& tag)
{
    RemoveLocus(*m_database, tag);
}

std::shared_ptr<Project> Store::FindProject(const std::string& name)
{
    return ReadProject(*m_database, name);
}

std::shared_ptr<Project> Store::ProjectNamed(const std::string& name)
{
    if (auto project = FindProject(name))
        return project;
    return AddProject(*m_database, name);
}

} // namespace Tamrivo
