#pragma once

#include "platform/store/allele_table.h"
#include "platform/store/stored_locus.h"

#include <memory>
#include <string>
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

/// The locus with the tag, current or not, or none. The empty tag names no locus.
std::shared_ptr<StoredLocus> ReadLocus(const std::shared_ptr<Database>& database,
                                       const std::string& tag);

/// The keys of all tags but the empty one.
std::unordered_set<std::string> ReadTagKeys(Database& database);

/// The number of the locus with the tag, 0 for none.
std::int32_t FindLocusNumber(Database& database, const std::string& tag);

/// Removes the locus with the tag and its alleles. Raises `StoreError::NotFound`.
void RemoveLocus(Database& database, const std::string& tag);

/// Raises `StoreError::Conflict`, "CONSEQUENCE: ...", unless the locus in the store still is the
/// one that was read.
void RequireUnchanged(soci::session& session, const StoredLocus& locus,
                      const std::string& consequence);

/// Writes loci with statements that are prepared once a connection.
class LocusWriter
{
public:
    explicit LocusWriter(Database& database);
    ~LocusWriter();

    /// Stores the locus, with its alleles if they are loaded, in one transaction, and then tells it
    /// its new identity. Raises `StoreError::Conflict`, `StoreError::NameTaken`.
    void Save(StoredLocus& locus);

private:
    struct Statements;

    void Write(soci::session& session, const StoredLocus& locus, const LocusIdentity& identity);

    Database& m_database;
    std::unique_ptr<Statements> m_statements;
    int m_preparedOn = 0; ///< `Database::ConnectionNumber`.
};

} // namespace Tamrivo
