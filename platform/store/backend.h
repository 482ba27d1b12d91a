#pragma once

#include <soci/soci.h>

#include <cstdint>
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

    virtual void Connect(soci::session& session) = 0;
    virtual bool IsReadOnly(soci::session& session) = 0;
    /// Connects anew if the connection was found lost and the server answers again. Gives whether
    /// it has.
    virtual bool Reconnect(soci::session&) { return false; }
    /// Whether the connection still leads to the store that stands at its address.
    virtual bool IsReachable(soci::session& session) = 0;
    /// Begins a transaction and reserves the store for its writes.
    virtual void Begin(soci::session& session) = 0;
    /// The `StoreError` that a failed statement amounts to.
    virtual std::int32_t ErrorNumberOf(const soci::soci_error& error) const = 0;

    /// Makes each row that the statement fetches go to the targets.
    virtual void BindInto(soci::statement& statement, const RowTargets& targets) const;
};

/// How long a statement waits for a lock that another program holds.
inline constexpr int LockTimeoutSeconds = 5;

/// The back end for an address, not connected yet.
std::unique_ptr<Backend> BackendFor(const std::string& address);

std::unique_ptr<Backend> MakeSqliteBackend(const std::string& path);
std::unique_ptr<Backend> MakePostgresqlBackend(const std::string& address);

} // namespace Tamrivo
