#include "host/database/sqlite_row.h"

namespace Tamrivo
{

namespace
{

using sqlite_api::sqlite3_stmt;

void Read(sqlite3_stmt* statement, int column, std::int32_t& value)
{
    value = sqlite_api::sqlite3_column_int(statement, column);
}

void Read(sqlite3_stmt* statement, int column, long long& value)
{
    value = sqlite_api::sqlite3_column_int64(statement, column);
}

void Read(sqlite3_stmt* statement, int column, double& value)
{
    value = sqlite_api::sqlite3_column_double(statement, column);
}

void Read(sqlite3_stmt* statement, int column, std::string& value)
{
    const auto* text = sqlite_api::sqlite3_column_text(statement, column);
    const int length = sqlite_api::sqlite3_column_bytes(statement, column);
    value.assign(reinterpret_cast<const char*>(text), static_cast<std::size_t>(length));
}

} // namespace

void SqliteRow::define(soci::details::statement_impl& statement, int& position)
{
    m_statement = static_cast<const soci::sqlite3_statement_backend*>(statement.get_backend());
    position += static_cast<int>(m_targets.size());
}

void SqliteRow::post_fetch(bool gotData, bool)
{
    if (!gotData)
        return;
    int column = 0;
    for (const auto& target : m_targets)
    {
        std::visit([&](auto* value) { Read(m_statement->stmt_, column, *value); }, target);
        ++column;
    }
}

} // namespace Tamrivo
