#pragma once

#include <string>

namespace Tamrivo
{

class Database;

/// Seals the records of the history that have no seal yet, whoever has written them. A seal holds
/// the numbers and digests of its records and a digest over these and the seal before, so that a
/// record that is changed or gone, at the end of its object's chain too, shows. Leaves it to
/// another connection that is at it.
void WriteSeals(Database& database);

/// The digest of a seal.
/// @param previous that of the seal before; empty for the first one
/// @param records a line each: the record's number, a blank, its digest
std::string SealDigest(const std::string& previous, long long writtenAt,
                       const std::string& records);

/// Writes seals when the connection has added many records to the history since it last did.
/// Outside of transactions only.
void SealNowAndThen(Database& database);

} // namespace Tamrivo
