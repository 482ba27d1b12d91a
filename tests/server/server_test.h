#pragma once

#include "host/database/database.h"
#include "host/store/store.h"
#include "tests/server/scratch_server.h"
#include "tests/store/store_fixture.h"

#include <soci/postgresql/soci-postgresql.h>

#include <string>

namespace Tamrivo::Testing
{

/// A store on a scratch server.
class ServerTest : public StoreTest
{
protected:
    static void Sql(const std::string& address, const std::string& statement)
    {
        // A connection of its own, without the store's transactions.
        const std::string database = address.substr(address.find("@/") + 2);
        const std::size_t mark = database.find("?host=");
        soci::session(*soci::factory_postgresql(),
                      "user=keeper dbname=" + database.substr(0, mark) + " host='" +
                          database.substr(mark + 6) + "'")
            << statement;
    }

    static int Count(Store& store, const std::string& query)
    {
        return store.SharedDatabase().Run("", [&](soci::session& session) {
            int count = 0;
            session << query, soci::into(count);
            return count;
        });
    }

    ScratchServer& m_server = ScratchServer::Get();
    std::string m_address = m_server.NewDatabase();
    Store m_store{m_address};
};

} // namespace Tamrivo::Testing
