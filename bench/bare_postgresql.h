#pragma once

#include <libpq-fe.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace Tamrivo::Bench
{

// PostgreSQL through its C library alone: what a store on a server is measured against.

struct FinishConnection
{
    void operator()(PGconn* connection) const { PQfinish(connection); }
};
struct ClearResult
{
    void operator()(PGresult* result) const { PQclear(result); }
};
using BareServerConnection = std::unique_ptr<PGconn, FinishConnection>;
using BareServerResult = std::unique_ptr<PGresult, ClearResult>;

inline BareServerConnection ConnectToServer(const std::string& address)
{
    BareServerConnection connection(PQconnectdb(address.c_str()));
    if (PQstatus(connection.get()) != CONNECTION_OK)
        throw std::runtime_error(PQerrorMessage(connection.get()));
    return connection;
}

inline BareServerResult Execute(const BareServerConnection& connection, const std::string& sql)
{
    BareServerResult result(PQexec(connection.get(), sql.c_str()));
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        throw std::runtime_error(PQerrorMessage(connection.get()));
    return result;
}

} // namespace Tamrivo::Bench
