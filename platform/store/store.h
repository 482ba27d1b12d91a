#pragma once

#include "contracts/locus.h"
#include "contracts/object_manager.h"
#include "contracts/project.h"
#include "platform/store/store_failure.h"
#include "platform/store/transaction.h"

#include <functional>
#include <memory>
#include <string>
#include <unordered_set>

namespace Tamrivo
{

class Database;

/// The place where loci, projects and analysis parameters are kept: one SQLite file, or a
/// PostgreSQL database.
///
/// Every member and every object that comes out of the store may raise the failures of
/// `StoreError`. A write either happens whole, and is then durable, or leaves the store as it was.
/// Objects stay usable after the store object is gone; they keep the connection open.
class Store
{
public:
    /// Opens the store at an address: a path or "sqlite://PATH" for an SQLite file, which is made
    /// on first use together with its directory, or "postgresql://..." for a database on a server.
    /// A new store holds one project, "Default". A store of an older version is brought up to
    /// date. A read-only file can be opened for reading.
    explicit Store(const std::string& address);

    /// The address as people may see it, without a password.
    const std::string& Name() const;
    bool IsReadOnly() const;

    /// The shared object manager.
    ObjectManager& Manager() { return m_managerGlobal->Manager(); }
    ObjectManagerGlobal& ManagerGlobal() { return *m_managerGlobal; }
    /// An object manager of the caller's own on this store.
    std::shared_ptr<ObjectManager> NewManager();

    /// The stored locus with the tag, current or not, or none. Case and trailing blanks don't
    /// count; the empty tag names no locus.
    std::shared_ptr<Locus> FindLocus(const std::string& tag);
    /// The tags of all stored loci, current or not, each as its `LookupKey`.
    std::unordered_set<std::string> TagKeys();
    /// Removes the locus with the tag and its alleles. Analysis parameters that use it keep its
    /// number, which no other locus will ever get. Raises `StoreError::NotFound`.
    void DeleteLocus(const std::string& tag);

    /// The project with the name, or none. Case and trailing blanks don't count.
    std::shared_ptr<Project> FindProject(const std::string& name);
    /// The project with the name, stored now if there was none. Raises
    /// `ErrorNumber::InvalidArgument` for an empty name.
    std::shared_ptr<Project> ProjectNamed(const std::string& name);

    /// Begins a transaction, for several writes that belong together:
    ///
    ///     auto transaction = store.Begin();
    ///     for (const auto& locus : loci)
    ///         store.Manager().Save(*locus, true);
    ///     transaction.Commit();
    Transaction Begin() { return Transaction(*m_database); }

    /// Lets a handler know that the store is at work, again and again as long as that takes. What
    /// it throws ends the work as a failure does, so that nothing is written by halves.
    void OnProgress(const std::function<void()>& handler);

    /// The connection, for other tables in the same store.
    Tamrivo::Database& Connection() { return *m_database; }

private:
    std::shared_ptr<Database> m_database;
    std::unique_ptr<ObjectManagerGlobal> m_managerGlobal;
};

} // namespace Tamrivo
