#pragma once

#include "contracts/allele.h"

#include <memory>
#include <vector>

namespace Tamrivo
{

class Database;
class StoredLocus;

/// The alleles of a stored locus, in their order. Raises `StoreError::Conflict` when the locus in
/// the store is no longer the one that was read.
std::vector<AlleleFields> ReadAlleles(Database& database, const StoredLocus& locus);

/// Reads and writes the alleles of a locus with statements that are prepared once. Its members are
/// called inside a transaction and raise the failures of SOCI.
class AlleleWriter
{
public:
    explicit AlleleWriter(Database& database);
    ~AlleleWriter();

    std::vector<AlleleFields> Read(std::int32_t locusID);
    /// Makes the locus's alleles in the store, which are the second ones, the first ones. Writes
    /// rows that differ.
    void Replace(std::int32_t locusID, const std::vector<AlleleFields>& alleles,
                 const std::vector<AlleleFields>& stored);

private:
    struct Statements;
    std::unique_ptr<Statements> m_statements;
};

} // namespace Tamrivo
