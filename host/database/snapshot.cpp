#include "host/database/snapshot.h"

#include "host/database/database.h"

namespace Tamrivo
{

Snapshot::Snapshot(Database& database) : m_database(database)
{
    m_database.Run("The store is not read", [&](soci::session&) { m_database.BeginSnapshot(); });
}

Snapshot::~Snapshot()
{
    m_database.RollBack();
}

} // namespace Tamrivo
