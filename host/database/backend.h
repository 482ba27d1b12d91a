#pragma once

#include <soci/soci.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tamrivo
{

/// Where the values of a row's columns go, in the order of the columns.
using RowTargets = std::vector<std::variant<std::int32_t*, long long*, double*, std::string*>>;

/// What differs between the databases that a store may stand on. All else is portable SQL.
class Backend
{
public:
    virtual ~Backend() = default;

    /// "sqlite" or "postgresql".
    virtual std::string_view Dialect() const = 0;
    /// How a column is declared whose numbers the database gives, each once and rising.
    virtual std::string_view SerialKey() const = 0;
    virtual void Connect(soci::session& session) = 0;
    /// Why nothing can be stored through the connection and what to do about it, in words that go
    /// on from "is read-only: "; empty when something can.
    virtual std::string WhyReadOnly(soci::session& session) = 0;
    /// Connects anew if the connection was found lost and the server answers again. Gives whether
    /// it has.
    virtual bool Reconnect(soci::session&) { return false; }
    /// Connects anew to what stands at the address by now. `use` is called with that connection
    /// before the present one goes; what it throws leaves the present one as it is.
    virtual void OpenAgain(soci::session& session, const std::function<void(soci::session&)>& use)
    {
        Reconnect(session);
        use(session);
    }
    /// Goes up when a lost connection was made anew, whose prepared statements are gone.
    virtual int ConnectionNumber() const { return 0; }
    /// Whom the server takes the connection for; empty without a server.
    virtual std::string ServerUser(soci::session&) { return {}; }
    /// Whether the connection still leads to the store that stands at its address.
    virtual bool IsReachable(soci::session& session) = 0;
    /// What tells the place of the store from all others, however its address is spelt.
    virtual std::string Place(soci::session& session) = 0;
    /// What the database itself finds wrong with its files or tables, a text each.
    virtual std::vector<std::string> Faults(soci::session&) { return {}; }
    /// Begins a transaction that only reads, and sees the store as it is when it first does.
    virtual void BeginSnapshot(soci::session& session) = 0;
    /// Copies the store, as it is at one moment, into an SQLite file that isn't there, and calls
    /// `progress` meanwhile. False: the back end has no way of its own to do so.
    virtual bool BackUpTo(soci::session&, const std::string& /*file*/,
                          const std::function<void()>& /*progress*/)
    {
        return false;
    }
    /// Begins a transaction that is going to write.
    virtual void Begin(soci::session& session) = 0;
    /// Ends it. When the connection was lost at that moment, `witness`, a query that counts what
    /// only this transaction has written, tells whether it was stored. Raises `StoreError::Unknown`
    /// when that can't be found out.
    virtual void Commit(soci::session& session, const std::string& witness) = 0;
    /// Lets one connection after the other change the tables themselves, to the end of the
    /// transaction.
    virtual void ReserveSchema(soci::session&) {}
    /// Whether the connection may change the tables themselves, which takes their owner on a
    /// server.
    virtual bool MayChangeSchema(soci::session&) { return true; }
    /// Keeps other connections from writing seals to the end of the transaction. False when one is
    /// at it.
    virtual bool TryReserveSeals(soci::session&) { return true; }
    /// Keeps other connections that ask for the same from an object, which need not be there, to
    /// the end of the transaction.
    virtual void ReserveObject(soci::session&, std::int32_t /*number*/) {}
    /// What a SELECT ends with that keeps its rows from being changed by others.
    virtual std::string_view RowLock() const { return ""; }
    /// Whether rows are best written many at once, as an array of JSON objects, since every
    /// statement is a way to the server and back.
    virtual bool WritesManyRows() const { return false; }
    /// A number that no object of this store has had before. Only inside a transaction.
    virtual std::int32_t NextNumber(soci::session& session) = 0;
    /// The last such number.
    virtual std::int32_t LastNumber(soci::session& session) = 0;
    /// For a store that was filled with the objects and records of another one.
    virtual void SetLastNumber(soci::session& session, std::int32_t number) = 0;
    /// The `StoreError` that a failed statement amounts to.
    virtual std::int32_t ErrorNumberOf(const soci::soci_error& error) const = 0;
    /// Whether work that failed so, and that was taken back, may succeed when it is done again.
    virtual bool MayTryAgain(const soci::soci_error&) const { return false; }

    /// Makes each row that the statement fetches go to the targets.
    virtual void BindInto(soci::statement& statement, const RowTargets& targets) const;
};

/// How long a statement waits for a lock that another program holds.
inline constexpr int LockTimeoutSeconds = 5;

/// Raises `StoreError::Unreachable` for a server of a version that is too old.
/// @param version as the server gives it: 150003 is 15.3
void RequireServerVersion(int version);

/// `Backend::Place` of the store in an SQLite file.
std::string PlaceOfFile(const std::string& path);

/// The back end for an address, not connected yet.
std::unique_ptr<Backend> BackendFor(const std::string& address);

std::unique_ptr<Backend> MakeSqliteBackend(const std::string& path);
std::unique_ptr<Backend> MakePostgresqlBackend(const std::string& address);

} // namespace Tamrivo
