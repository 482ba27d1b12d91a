#include "platform/store/address.h"
#include "platform/store/backend.h"
#include "platform/store/store_failure.h"

#include <soci/postgresql/soci-postgresql.h>

namespace Tamrivo
{

namespace
{

/// States of the SQL standard, or PostgreSQL's own, and what they amount to; a state of two
/// characters stands for its whole class.
struct ErrorState
{
    std::string_view State;
    std::int32_t Number;
};

constexpr ErrorState ErrorStates[] = {
    {"23505", StoreError::NameTaken}, {"55P03", StoreError::Locked},
    {"40P01", StoreError::Locked},    {"25006", StoreError::ReadOnly},
    {"42501", StoreError::ReadOnly},  {"53100", StoreError::DiskFull},
    {"08", StoreError::Unreachable},  {"57", StoreError::Unreachable},
    {"28", StoreError::Unreachable},  {"3D", StoreError::Unreachable},
};

/// How long a server that doesn't answer is waited for, unless the address says.
constexpr const char* ConnectTimeoutSeconds = "5";

/// The address as the "keyword='value'" pairs that SOCI asks for.
std::string ConnectionText(const std::string& address)
{
    // What the parser complains of may be the password.
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(
        PQconninfoParse(address.c_str(), nullptr), &PQconninfoFree);
    if (!options)
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "\"" + AddressWithoutPassword(address) +
                          "\" is no address of a PostgreSQL database, which is "
                          "postgresql://USER@SERVER/DATABASE with other characters than letters "
                          "and digits as %XX");

    std::string text;
    for (const PQconninfoOption* option = options.get(); option->keyword; ++option)
    {
        const bool isTimeout = std::string_view(option->keyword) == "connect_timeout";
        const char* value = option->val ? option->val : isTimeout ? ConnectTimeoutSeconds : nullptr;
        if (!value)
            continue;
        text.append(option->keyword).append("='");
        for (const char* character = value; *character; ++character)
        {
            if (*character == '\'' || *character == '\\')
                text += '\\';
            text += *character;
        }
        text += "' ";
    }
    return text;
}

class PostgresqlBackend : public Backend
{
public:
    explicit PostgresqlBackend(std::string address) : m_address(std::move(address)) {}

    void Connect(soci::session& session) override
    {
        session.open(*soci::factory_postgresql(), ConnectionText(m_address));
        // What the server remarks by the way would stand between what the program prints.
        PQsetNoticeProcessor(
            Handle(session), [](void*, const char*) {}, nullptr);
        SetUp(session);
    }

    bool IsReadOnly(soci::session& session) override
    {
        std::string readOnly;
        session << "SHOW transaction_read_only", soci::into(readOnly);
        return readOnly == "on";
    }

    bool Reconnect(soci::session& session) override
    {
        if (PQstatus(Handle(session)) == CONNECTION_OK)
            return false;
        PQreset(Handle(session));
        if (PQstatus(Handle(session)) != CONNECTION_OK)
            return false;
        SetUp(session);
        return true;
    }

    bool IsReachable(soci::session&) override { return true; }

    void Begin(soci::session& session) override
    {
        // One writer at a time, as on SQLite: two that lock rows in different orders, or both make
        // the tables of a new store, would make each other fail.
        constexpr int lockOfTheStore = 0x7A3;
        session << "BEGIN";
        try
        {
            session << "SELECT pg_advisory_xact_lock(" << lockOfTheStore << ")";
        }
        catch (const soci::soci_error&)
        {
            session << "ROLLBACK";
            throw;
        }
    }

    std::int32_t ErrorNumberOf(const soci::soci_error& error) const override
    {
        if (const auto* postgresqlError = dynamic_cast<const soci::postgresql_soci_error*>(&error))
        {
            const std::string state = postgresqlError->sqlstate();
            for (const ErrorState& known : ErrorStates)
            {
                if (state.starts_with(known.State))
                    return known.Number;
            }
        }
        return error.get_error_category() == soci::soci_error::connection_error
                   ? StoreError::Unreachable
                   : StoreError::Database;
    }

private:
    static PGconn* Handle(soci::session& session)
    {
        return static_cast<soci::postgresql_session_backend*>(session.get_backend())->conn_;
    }

    static void SetUp(soci::session& session)
    {
        session << "SET lock_timeout = '" << LockTimeoutSeconds << "s'";
    }

    std::string m_address;
};

} // namespace

std::unique_ptr<Backend> MakePostgresqlBackend(const std::string& address)
{
    return std::make_unique<PostgresqlBackend>(address);
}

} // namespace Tamrivo
