#pragma once

#include <soci/sqlite3/soci-sqlite3.h>

#include <functional>
#include <string>

namespace Tamrivo
{

/// SQLite's online backup of a connection's database into a file. Others may write meanwhile; it
/// then begins anew some times before it keeps them waiting. Raises `soci::sqlite3_soci_error`
/// when another program keeps the database locked, a `Failure` for all else.
/// @param progress is called again and again; what it throws ends the backup
void BackUpSqlite(sqlite_api::sqlite3* from, const std::string& file,
                  const std::function<void()>& progress);

} // namespace Tamrivo
