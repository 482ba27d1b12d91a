#pragma once

namespace Tamrivo
{

class Database;

/// Records each object of the store that has no history yet, as it is. Inside a transaction.
void RecordWhatIsFound(Database& database);

} // namespace Tamrivo
