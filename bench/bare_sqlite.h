#pragma once

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace Tamrivo::Bench
{

// SQLite through its C interface alone: what the store is measured against.

struct CloseConnection
{
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
};
struct FinalizeStatement
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using BareConnection = std::unique_ptr<sqlite3, CloseConnection>;
using BareStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

inline void Require(bool done, const BareConnection& connection)
{
    if (!done)
        throw std::runtime_error(sqlite3_errmsg(connection.get()));
}

inline void Execute(const BareConnection& connection, const char* sql)
{
    Require(sqlite3_exec(connection.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK,
            connection);
}

/// A connection as durable as the store's own.
inline BareConnection Connect(const std::string& path)
{
    sqlite3* connection = nullptr;
    const int result = sqlite3_open(path.c_str(), &connection);
    BareConnection owner(connection);
    Require(result == SQLITE_OK, owner);
    Execute(owner, "PRAGMA synchronous = EXTRA");
    return owner;
}

inline BareStatement Prepare(const BareConnection& connection, const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    Require(sqlite3_prepare_v2(connection.get(), sql.c_str(), -1, &statement, nullptr) == SQLITE_OK,
            connection);
    return BareStatement(statement);
}

} // namespace Tamrivo::Bench
