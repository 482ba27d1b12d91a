#pragma once

#include "core/event.h"
#include "platform/store/backend.h"
#include "platform/store/store_failure.h"

#include <soci/soci.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// One connection to the database that a store stands on.
class Database
{
public:
    /// Connects, makes the tables of a new store and brings older ones up to date.
    explicit Database(const std::string& address);

    /// The address as messages show it.
    const std::string& Name() const { return m_name; }
    /// Goes up when a lost connection was made anew, whose prepared statements are gone.
    int ConnectionNumber() const { return m_connectionNumber; }
    bool IsReadOnly() const { return m_readOnly; }

    /// Raised before each piece of work and, during a long one, again and again. What the handler
    /// throws ends the work as a failure does.
    Event<> Progress;

    /// Runs `statements(session)` and gives its value. Raises a failed statement as the failure of
    /// the store that it amounts to, "CONSEQUENCE: REASON", where the consequence tells what is now
    /// not done or not known, such as "The locus \"A\" is not stored".
    template <class Statements>
    decltype(auto) Run(const std::string& consequence, Statements&& statements)
    {
        try
        {
            Progress();
            RequireReachable(consequence);
            return statements(m_session);
        }
        catch (const soci::soci_error& error)
        {
            RaiseFailure(consequence, error);
        }
    }

    /// Makes each row that the statement fetches go to the targets.
    void BindInto(soci::statement& statement, const RowTargets& targets) const
    {
        m_backend->BindInto(statement, targets);
    }

    /// A number that no object of this store has had before. Only inside a transaction.
    std::int32_t NextNumber();

private:
    friend class Transaction;
    void Begin();
    void Commit();
    void RollBack() noexcept;

    void RequireReachable(const std::string& consequence);
    [[noreturn]] void RaiseFailure(const std::string& consequence,
                                   const soci::soci_error& error) const;
    [[noreturn]] void RaiseFailure(const std::string& consequence, std::int32_t number,
                                   const std::string& message) const;

    std::string m_name;
    std::unique_ptr<Backend> m_backend;
    soci::session m_session;
    int m_connectionNumber = 0;
    bool m_readOnly = false;
    int m_depth = 0;       ///< Open transactions, one inside the other.
    bool m_undone = false; ///< The outermost one was taken back while inner ones were open.
};

} // namespace Tamrivo
