#pragma once

#include "host/store/locus_state.h"
#include "host/store/stored_locus.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

class Database;

/// A locus as the store has it.
struct ReadLocusState
{
    LocusIdentity Identity;
    LocusState State;
};

/// Reads loci with their alleles in the order of their numbers, many with one query, in memory that
/// doesn't grow with the store. Each locus is whole; where all of them are to be of one moment, it
/// is used inside a `Snapshot`.
class LocusReader
{
public:
    /// @param condition on the columns of the table Locus, in SQL
    LocusReader(Database& database, std::string condition);

    /// The next one; none at the end.
    std::optional<ReadLocusState> Next();

private:
    void ReadPage();
    void ReadAllelesOfPage();

    Database& m_database;
    std::string m_condition;
    std::vector<ReadLocusState> m_page;
    std::size_t m_next = 0;
    std::int32_t m_lastNumber = 0; ///< Of the page's last locus.
    bool m_isAtEnd = false;
};

} // namespace Tamrivo
