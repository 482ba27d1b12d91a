#include "host/database/address.h"
#include "host/database/backend.h"
#include "host/database/store_failure.h"

#include <soci/postgresql/soci-postgresql.h>

#include <chrono>
#include <thread>

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

/// How often it is looked, at growing intervals, whether a COMMIT has worked: some ten seconds.
constexpr int MostLooks = 20;

/// The connection was lost at the COMMIT, and the server isn't there to be asked.
class LostAtCommit : public soci::soci_error
{
public:
    using soci::soci_error::soci_error;
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

    std::string_view Dialect() const override { return "postgresql"; }

    void Connect(soci::session& session) override
    {
        session.open(*soci::factory_postgresql(), ConnectionText(m_address));
        m_handle = static_cast<soci::postgresql_session_backend*>(session.get_backend())->conn_;
        // What the server remarks by the way would stand between what the program prints.
        PQsetNoticeProcessor(
            m_handle, [](void*, const char*) {}, nullptr);
        RequireServerVersion(PQserverVersion(m_handle));
        SetUp(session);
    }

    bool IsReadOnly(soci::session& session) override
    {
        // A person may be let in to read alone. A database without tables is yet to be made.
        std::string readOnly;
        session << "SELECT CASE WHEN current_setting('transaction_read_only') = 'on' OR NOT "
                   "COALESCE(has_table_privilege(to_regclass('locus'), 'UPDATE'), TRUE) "
                   "THEN 'yes' ELSE 'no' END",
            soci::into(readOnly);
        return readOnly == "yes";
    }

    std::string ServerUser(soci::session& session) override
    {
        std::string user;
        session << "SELECT session_user", soci::into(user);
        return user;
    }

    bool Reconnect(soci::session& session) override
    {
        if (PQstatus(m_handle) == CONNECTION_OK)
            return false;
        PQreset(m_handle);
        if (PQstatus(m_handle) != CONNECTION_OK)
            return false;
        SetUp(session);
        ++m_connectionNumber;
        return true;
    }

    int ConnectionNumber() const override { return m_connectionNumber; }

    bool IsReachable(soci::session&) override { return true; }

    std::string Identity(soci::session& session) override
    {
        std::string identity;
        session << "SELECT CAST(pg_postmaster_start_time() AS TEXT) || ' ' || oid FROM pg_database "
                   "WHERE datname = current_database()",
            soci::into(identity);
        return "postgresql " + identity;
    }

    void BeginSnapshot(soci::session& session) override
    {
        session << "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY";
    }

    void Begin(soci::session& session) override { session << "BEGIN"; }

    void Commit(soci::session& session, const std::string& witness) override
    {
        const int serverProcess = PQbackendPID(m_handle);
        try
        {
            session << "COMMIT";
        }
        catch (const soci::soci_error& error)
        {
            if (PQstatus(m_handle) == CONNECTION_OK || witness.empty())
                throw;
            if (!WasStored(session, serverProcess, witness))
                throw;
        }
    }

    void ReserveSchema(soci::session& session) override
    {
        constexpr int lockOfTheSchema = 0x7A3;
        session << "SELECT pg_advisory_xact_lock(" << lockOfTheSchema << ")";
    }

    bool TryReserveSeals(soci::session& session) override
    {
        constexpr int lockOfTheSeals = 0x7A4;
        int reserved = 0;
        session << "SELECT pg_try_advisory_xact_lock(" << lockOfTheSeals << ")::integer",
            soci::into(reserved);
        return reserved != 0;
    }

    std::string_view RowLock() const override { return " FOR UPDATE"; }

    bool WritesManyRows() const override { return true; }

    std::int32_t NextNumber(soci::session& session) override
    {
        std::int32_t number = 0;
        session << "SELECT nextval('ObjectNumber')", soci::into(number);
        return number;
    }

    std::int32_t LastNumber(soci::session& session) override
    {
        std::int32_t number = 0;
        session << "SELECT last_value FROM ObjectNumber", soci::into(number);
        return number;
    }

    void SetLastNumber(soci::session& session, std::int32_t number) override
    {
        session << "SELECT setval('ObjectNumber', " << number << ")";
        session << "SELECT setval('history_number_seq', (SELECT MAX(Number) FROM History))";
    }

    bool MayTryAgain(const soci::soci_error& error) const override
    {
        if (dynamic_cast<const LostAtCommit*>(&error))
            return false;
        const std::string state = StateOf(error);
        return state == "40001" || state == "40P01" || state.starts_with("57P") ||
               state.starts_with("08") || IsLost(error);
    }

    std::int32_t ErrorNumberOf(const soci::soci_error& error) const override
    {
        if (dynamic_cast<const LostAtCommit*>(&error))
            return StoreError::Unknown;
        const std::string state = StateOf(error);
        for (const ErrorState& known : ErrorStates)
        {
            if (state.starts_with(known.State))
                return known.Number;
        }
        return IsLost(error) ? StoreError::Unreachable : StoreError::Database;
    }

private:
    /// The state that the server gave with the failure; empty when it gave none.
    static std::string StateOf(const soci::soci_error& error)
    {
        const auto* failure = dynamic_cast<const soci::postgresql_soci_error*>(&error);
        // SOCI has blanks where there is none.
        return failure && failure->sqlstate()[0] != ' ' ? failure->sqlstate() : "";
    }

    bool IsLost(const soci::soci_error& error) const
    {
        return error.get_error_category() == soci::soci_error::connection_error || !m_handle ||
               PQstatus(m_handle) != CONNECTION_OK;
    }

    /// Connects anew and looks. The server may still be at the COMMIT, and is waited for.
    bool WasStored(soci::session& session, int serverProcess, const std::string& witness)
    {
        for (int attempt = 1; attempt <= MostLooks; ++attempt)
        {
            try
            {
                std::this_thread::sleep_for(attempt * std::chrono::milliseconds(50));
                Reconnect(session);
                int count = 0;
                session << "SELECT COUNT(*) FROM pg_stat_activity WHERE pid = " << serverProcess,
                    soci::into(count);
                if (count > 0)
                    continue;
                session << witness, soci::into(count);
                return count > 0;
            }
            catch (const soci::soci_error&)
            {
                // Not there yet.
            }
        }
        throw LostAtCommit(PQerrorMessage(m_handle));
    }

    static void SetUp(soci::session& session)
    {
        session << "SET lock_timeout = '" << LockTimeoutSeconds << "s'";
    }

    std::string m_address;
    PGconn* m_handle = nullptr; ///< The session's; the same for all its life.
    int m_connectionNumber = 0;
};

} // namespace

void RequireServerVersion(int version)
{
    constexpr int oldest = 15;
    constexpr int perVersion = 10000;
    if (version < oldest * perVersion)
        throw Failure(StoreError::Unreachable, "Store",
                      "Nothing was opened: the server is PostgreSQL " +
                          std::to_string(version / perVersion) + "." +
                          std::to_string(version % perVersion) + ", and a store needs " +
                          std::to_string(oldest) + " or later. Upgrade the server");
}

std::unique_ptr<Backend> MakePostgresqlBackend(const std::string& address)
{
    return std::make_unique<PostgresqlBackend>(address);
}

} // namespace Tamrivo
