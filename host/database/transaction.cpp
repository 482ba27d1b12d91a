#include "host/database/transaction.h"

#include "host/database/database.h"

namespace Tamrivo
{

Transaction::Transaction(Database& database) : m_database(database)
{
    m_database.Run("Nothing was stored", [&](soci::session&) { m_database.Begin(); });
}

Transaction::~Transaction()
{
    if (m_open)
        m_database.RollBack();
}

void Transaction::Commit()
{
    m_database.Run("Nothing was stored", [&](soci::session&) { m_database.Commit(); });
    m_open = false;
}

} // namespace Tamrivo
