#pragma once

#include "contracts/project.h"

#include <memory>
#include <string>
#include <vector>

namespace Tamrivo
{

class Database;

class StoredProject : public Project
{
public:
    StoredProject(std::int32_t projectID, std::string name)
        : m_projectID(projectID), m_name(std::move(name))
    {}

    std::string Name() const override { return m_name; }
    std::int32_t ProjectID() const override { return m_projectID; }

private:
    std::int32_t m_projectID;
    std::string m_name;
};

/// All projects in the order of their numbers.
std::vector<std::shared_ptr<StoredProject>> ReadProjects(Database& database);

/// The project with the name, or none.
std::shared_ptr<StoredProject> ReadProject(Database& database, const std::string& name);

/// Stores a new project. Raises `StoreError::NameTaken`, `ErrorNumber::InvalidArgument` for a name
/// of nothing but blanks.
std::shared_ptr<StoredProject> AddProject(Database& database, const std::string& name);

} // namespace Tamrivo
