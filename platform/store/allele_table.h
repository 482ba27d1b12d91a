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

/// Writes alleles with statements that are prepared once. Its members are called inside a
/// transaction and raise the failures of SOCI.
class AlleleWriter
{
public:
    explicit AlleleWriter(Database& database);
    ~AlleleWriter();

    void Remove(std::int32_t locusID);
    void Insert(std::int32_t locusID, const ObjectList& alleles);

private:
    struct Statements;
    std::unique_ptr<Statements> m_statements;
};

} // namespace Tamrivo
