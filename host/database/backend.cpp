#include "host/database/backend.h"

#include "host/database/address.h"

namespace Tamrivo
{

std::unique_ptr<Backend> BackendFor(const std::string& address)
{
    return IsPostgresqlAddress(address) ? MakePostgresqlBackend(address)
                                        : MakeSqliteBackend(SqlitePath(address));
}

void Backend::BindInto(soci::statement& statement, const RowTargets& targets) const
{
    for (const auto& target : targets)
        std::visit([&](auto* value) { statement.exchange(soci::into(*value)); }, target);
}

} // namespace Tamrivo
