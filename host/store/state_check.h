#pragma once

#include <functional>
#include <string>

namespace Tamrivo
{

class Database;

/// Calls the handler with a sentence for each object that isn't as its last record in the history
/// says. Inside a `Snapshot`.
void CompareStatesWithHistory(Database& database, const std::function<void(std::string)>& handler);

} // namespace Tamrivo
