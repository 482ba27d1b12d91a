#pragma once

#include <functional>
#include <span>
#include <string_view>

namespace soci
{
class session;
}

namespace Tamrivo
{

class Database;

/// The statements that lead from one version of the tables to the next. They never change once
/// released: another change is another step. A statement that begins with "--postgresql" or
/// "--sqlite" is for that back end alone.
using SchemaStep = std::span<const std::string_view>;

/// The steps from an empty database to the present version, which is their number.
extern const std::span<const SchemaStep> SchemaSteps;

/// Brings the tables to the version that the steps lead to, in one transaction, which `complete`
/// ends if there was anything to do. Raises
/// `StoreError::NewerVersion` for tables past it, `StoreError::NotAStore` for tables of another
/// program, `StoreError::ReadOnly` when there is something to do that can't be done.
void MigrateSchema(Database& database, soci::session& session, std::span<const SchemaStep> steps,
                   const std::function<void(Database&)>& complete);

} // namespace Tamrivo
