#include "host/database/transaction.h"

#include "host/database/database.h"

namespace Tamrivo
{

Transaction::Transaction(Database& database, Of what) : m_database(database)
{
    ChangeNotes& notes = m_database.Notes;
    if (what == Of::Objects && notes.AskReason && !m_database.IsInTransaction())
        notes.Reason = notes.AskReason();
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
