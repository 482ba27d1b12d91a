#pragma once

#include "core/event.h"
#include "host/store/allele_table.h"
#include "host/store/locus_state.h"
#include "host/store/stored_locus.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace soci
{
class session;
}

namespace Tamrivo
{

class Database;

/// All current loci in the order of their numbers, each as an object of its own whose alleles are
/// not loaded.
std::vector<std::shared_ptr<StoredLocus>> ReadCurrentLoci(
    const std::shared_ptr<Database>& database);

/// Some of them, for who reads all in portions: those with the next higher numbers.
/// @param after the number of the last one that was read; 0 to begin with
/// @param most how many; fewer are the last
std::vector<std::shared_ptr<StoredLocus>> ReadCurrentLoci(const std::shared_ptr<Database>& database,
                                                          std::int32_t after, std::size_t most);

/// The locus with the tag, current or not, or none. The empty tag names no locus.
std::shared_ptr<StoredLocus> ReadLocus(const std::shared_ptr<Database>& database,
                                       const std::string& tag);

/// The keys of all tags but the empty one.
std::unordered_set<std::string> ReadTagKeys(Database& database);

/// The numbers of all stored loci.
std::unordered_set<std::int32_t> ReadTagIDs(Database& database);

/// The number of the locus with the tag, 0 for none.
std::int32_t FindLocusNumber(Database& database, const std::string& tag);

/// Raises `StoreError::Conflict`, "CONSEQUENCE: ...", unless the revision, which the store has of
/// the locus, is the one that was read. 0: the store has none.
void RequireRevision(std::int32_t revision, const StoredLocus& locus,
                     const std::string& consequence);

/// The same, asking the store.
void RequireUnchanged(soci::session& session, const StoredLocus& locus,
                      const std::string& consequence);

/// Writes loci, and the history of each change, with statements that are prepared once a
/// connection. Every change happens in one transaction.
class LocusWriter
{
public:
    explicit LocusWriter(Database& database);
    ~LocusWriter();

    /// Stores the locus, with its alleles if they are loaded, and then tells it its new identity.
    /// A stored one that doesn't differ from what the store has is left alone. Raises
    /// `StoreError::Conflict`, `StoreError::NameTaken`.
    void Save(StoredLocus& locus);

    /// Removes the locus with the tag and its alleles. Raises `StoreError::NotFound`.
    void Remove(const std::string& tag);

    /// Stores a state that the locus with the number has had, as a new change, also when it was
    /// deleted since. Raises `StoreError::NameTaken`.
    void Restore(std::int32_t locusID, const LocusState& state);

private:
    struct Statements;

    Statements& Prepared(soci::session& session);
    /// The stored state of the locus, kept from being changed by others; none when it isn't there.
    std::optional<LocusState> Lock(std::int32_t locusID);
    void Insert(const LocusIdentity& identity, const LocusState& state, std::string_view operation);
    void Update(const LocusIdentity& identity, const LocusState& state, const LocusState& stored,
                std::string_view operation);
    void FillRow(const LocusIdentity& identity, const LocusState& state);
    void Record(const LocusIdentity& identity, const LocusState& state, std::string_view operation);

    Database& m_database;
    std::unique_ptr<Statements> m_statements; ///< None on a new connection.
    Connection m_reconnected;
};

} // namespace Tamrivo
