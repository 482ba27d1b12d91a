#pragma once

#include "host/database/backend.h"

#include <soci/sqlite3/soci-sqlite3.h>

namespace Tamrivo
{

/// A whole row as one element of a SOCI statement on SQLite. SOCI's own elements, one a column,
/// take about as long again as SQLite itself does for a row of many columns.
class SqliteRow : public soci::details::into_type_base
{
public:
    explicit SqliteRow(RowTargets targets) : m_targets(std::move(targets)) {}

    void define(soci::details::statement_impl& statement, int& position) override;
    void pre_exec(int) override {}
    void pre_fetch() override {}
    void post_fetch(bool gotData, bool calledFromFetch) override;
    void clean_up() override {}
    std::size_t size() const override { return 1; }

private:
    RowTargets m_targets;
    const soci::sqlite3_statement_backend* m_statement = nullptr;
};

} // namespace Tamrivo
