#pragma once

#include "host/database/database.h"

#include <soci/soci.h>

#include <string>
#include <string_view>

namespace Tamrivo
{

// SQL text and bindings for a row with a member `VisitColumns`.

/// "A, B, C"
template <class Row>
std::string ColumnNames(Row& row)
{
    std::string names;
    row.VisitColumns([&](std::string_view name, auto&) {
        names.append(names.empty() ? "" : ", ").append(name);
    });
    return names;
}

/// "INSERT INTO TABLE (A, B, C) VALUES (:A, :B, :C)"
template <class Row>
std::string InsertStatement(std::string_view table, Row& row)
{
    std::string values;
    row.VisitColumns([&](std::string_view name, auto&) {
        values.append(values.empty() ? ":" : ", :").append(name);
    });
    return "INSERT INTO " + std::string(table) + " (" + ColumnNames(row) + ") VALUES (" + values +
           ")";
}

/// Makes each row that the statement fetches fill the row.
template <class Row>
void BindInto(const Database& database, soci::statement& statement, Row& row)
{
    RowTargets targets;
    row.VisitColumns([&](std::string_view, auto& value) { targets.emplace_back(&value); });
    database.BindInto(statement, targets);
}

/// Makes each execution of the statement use the row's values, in the order of its columns.
template <class Row>
void BindUse(soci::statement& statement, Row& row)
{
    row.VisitColumns([&](std::string_view, auto& value) { statement.exchange(soci::use(value)); });
}

/// Prepares the statement once all its bindings are made.
inline void Prepare(soci::statement& statement, const std::string& sql)
{
    statement.alloc();
    statement.prepare(sql);
    statement.define_and_bind();
}

/// Executes a query for at most one row. Gives whether there was one. A query that isn't read to
/// its end would keep SQLite's store locked.
inline bool FetchOne(soci::statement& statement)
{
    bool found = false;
    for (statement.execute(); statement.fetch();)
        found = true;
    return found;
}

} // namespace Tamrivo
