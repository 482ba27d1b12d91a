#pragma once

#include <string>
#include <vector>

namespace Tamrivo
{

class Store;

/// What is wrong with the store itself, a sentence each, at most twenty; empty: nothing. Looked at
/// are the database's own structure, rows that belong to others which are gone, keys and numbers,
/// the chains and seals of the history, and whether each object is as its last record says. The
/// memory it takes doesn't grow with the store. Raises `StoreError::Unreachable`,
/// `StoreError::Locked`; what can't be read is a finding.
std::vector<std::string> CheckIntegrity(Store& store);

} // namespace Tamrivo
