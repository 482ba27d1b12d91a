#pragma once

#include "contracts/locus.h"
#include "contracts/object_manager.h"
#include "contracts/project.h"
#include "core/event.h"
#include "host/database/store_failure.h"
#include "host/database/transaction.h"
#include "host/loci/dyes.h"

#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace Tamrivo
{

class Database;
class StoredLocus;
struct HistoryRecord;

/// The place where loci, projects and analysis parameters are kept: one SQLite file, or a
/// PostgreSQL database.
///
/// Every member and every object that comes out of the store may raise the failures of
/// `StoreError`. A write either happens whole, and is then durable, or leaves the store as it was.
/// Objects stay usable after the store object is gone; they keep the connection open. A store must
/// end before the program's static objects do, some of which the database's library needs.
class Store
{
public:
    /// Opens the store at an address: a path or "sqlite://PATH" for an SQLite file, which is made
    /// on first use together with its directory, or "postgresql://..." for a database on a server.
    /// A new store holds one project, "Default". A store of an older version is brought up to
    /// date. A read-only file can be opened for reading.
    explicit Store(const std::string& address);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// The address as people may see it, without a password.
    const std::string& Name() const;
    /// By what the store is known again: 128 random bits as 32 hexadecimal digits, drawn when it
    /// was made. They go with what it holds, so that a backup or a copy of it has the same ones,
    /// and the same numbers and revisions of objects. Raises `StoreError::NotAStore` when they are
    /// gone.
    std::string Identity();
    bool IsReadOnly() const;
    /// Whether the last piece of work failed since the store couldn't be reached.
    bool IsLost() const;
    /// Goes on with the store that has come back to its address after it was lost; objects that
    /// were read stay as they are, and are saved there. Raises `StoreError::Unreachable` when it
    /// isn't back, or when another store stands there, which is left alone.
    void OpenAgain();
    /// Raises `StoreError::ReadOnly`, with the reason and what to do, on a store that is read-only.
    void RequireWritable() const;

    /// The shared object manager.
    ObjectManager& Manager() { return m_managerGlobal->Manager(); }
    ObjectManagerGlobal& ManagerGlobal() { return *m_managerGlobal; }
    /// An object manager of the caller's own on this store.
    std::shared_ptr<ObjectManager> NewManager();

    /// The stored locus with the tag, current or not, or none. Case and trailing blanks don't
    /// count; the empty tag names no locus.
    std::shared_ptr<Locus> FindLocus(const std::string& tag);
    /// Some of the current loci, for who reads all of them in portions: those with the next higher
    /// numbers behind one (0 to begin with), in their order. Fewer than `most` are the last.
    std::vector<std::shared_ptr<StoredLocus>> CurrentLociAfter(std::int32_t number,
                                                               std::size_t most);
    /// The tags of all stored loci, current or not, each as its `LookupKey`.
    std::unordered_set<std::string> TagKeys();
    /// Removes the locus with the tag and its alleles. Analysis parameters that use it keep its
    /// number, which no other locus will ever get. Raises `StoreError::NotFound`.
    void DeleteLocus(const std::string& tag);

    /// The state that a locus had at a revision of its own or at a moment, as an object that isn't
    /// connected with the stored one. `tag` and `at` as `History::LocusRecordAt` takes them; raises
    /// what that and `LocusStateOf` raise.
    std::shared_ptr<Locus> LocusAt(const std::string& tag, const std::string& at);
    /// Stores that state as a new change of the locus, which keeps its number, also when it was
    /// deleted since. Gives its tag.
    /// @param newTag the tag that it gets instead of the one it had; may be empty. With one, a
    ///     deleted locus that had `tag` goes before the stored one that has it now
    /// Raises `StoreError::NameTaken` when another locus has the tag now.
    std::string RestoreLocus(const std::string& tag, const std::string& at,
                             const std::string& newTag);

    /// The same for a record of the history that keeps a state of a locus.
    std::string RestoreLocus(const HistoryRecord& record, const std::string& newTag);

    /// What the history says is the reason of the changes to come. Raises
    /// `ErrorNumber::InvalidArgument` for one of more than 1,000 characters.
    void SetReason(const std::string& reason);
    /// Whether each change has to have a reason; one without raises `StoreError::NoReason`.
    bool IsReasonRequired();
    void SetReasonRequired(bool required);

    /// The project with the name, or none. Case and trailing blanks don't count.
    std::shared_ptr<Project> FindProject(const std::string& name);
    /// The project with the name, stored now if there was none. Raises
    /// `ErrorNumber::InvalidArgument` for an empty name.
    std::shared_ptr<Project> ProjectNamed(const std::string& name);

    /// The dyes of the lab, four in a new store. `LocusFields::DyeIndex` is a position among them.
    Tamrivo::Dyes Dyes();
    /// How many of the stored loci, current or not, have each of the dyes.
    std::vector<std::size_t> LociByDye();
    /// Stores the dyes. Raises `ErrorNumber::InvalidArgument`, with the tags of the loci in the
    /// message, when loci have a dye that would go or, unless `recolor`, get another colour.
    void SetDyes(const Tamrivo::Dyes& dyes, bool recolor = false);

    /// Begins a transaction, for several writes that belong together:
    ///
    ///     auto transaction = store.Begin();
    ///     for (const auto& locus : loci)
    ///         store.Manager().Save(*locus, true);
    ///     transaction.Commit();
    Transaction Begin() { return Transaction(*m_database); }
    /// Does several writes in one transaction, and does them again where the database had to give
    /// way to others.
    void Together(const std::function<void()>& writes);

    /// Lets a handler know that the store is at work, again and again as long as that takes. What
    /// it throws ends the work as a failure does, so that nothing is written by halves.
    [[nodiscard]] Connection OnProgress(std::function<void()> handler);

    /// The database, for other tables in the same store.
    Tamrivo::Database& SharedDatabase() { return *m_database; }

private:
    void RequireFreeTag(std::int32_t locusID, const std::string& tag);

    std::shared_ptr<Database> m_database;
    std::string m_identity; ///< As it was when the store was opened.
    std::unique_ptr<ObjectManagerGlobal> m_managerGlobal;
};

} // namespace Tamrivo
