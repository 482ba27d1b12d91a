#pragma once

#include "core/event.h"
#include "host/database/backend.h"
#include "host/database/change_notes.h"
#include "host/database/store_failure.h"

#include <soci/soci.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// One connection to the database that a store stands on.
class Database
{
public:
    /// Connects, makes the tables of a new store and brings older ones up to date; `complete` then
    /// does, in the same transaction, what takes more than statements.
    explicit Database(
        const std::string& address,
        const std::function<void(Database&)>& complete = [](Database&) {});

    /// The address as messages show it.
    const std::string& Name() const { return m_name; }
    /// `Backend::WhyReadOnly`, as it was when the store was opened.
    const std::string& WhyReadOnly() const { return m_whyReadOnly; }
    bool IsReadOnly() const { return !m_whyReadOnly.empty(); }
    /// Raises `StoreError::ReadOnly` on a store that is read-only.
    /// @param consequence as `Run` takes it
    void RequireWritable(const std::string& consequence) const;
    bool IsInTransaction() const { return m_depth > 0; }
    const Tamrivo::Backend& Backend() const { return *m_backend; }

    /// What the history is told of the changes to come.
    ChangeNotes Notes;
    /// Whom the server takes the connection for; empty without a server.
    const std::string& ServerUser() const { return m_serverUser; }

    /// Raised before each piece of work and, during a long one, again and again. What the handler
    /// throws ends the work as a failure does.
    Event<> Progress;

    /// A lost connection was made anew, whose prepared statements are gone. They are to be given up
    /// at once: within a transaction that would spoil it.
    Event<> Reconnected;

    /// Has `undo` called if what is written in the present transaction is taken back: with an empty
    /// text or, when it isn't known whether it was stored, with the transaction's witness.
    void IfUndone(std::function<void(const std::string& witness)> undo)
    {
        m_undo.push_back(std::move(undo));
    }

    /// The present moment, as what is written is stamped with it.
    std::function<std::chrono::sys_time<std::chrono::milliseconds>()> Now = [] {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    };

    /// Whether the last piece of work failed since the store couldn't be reached.
    bool IsLost() const { return m_isLost; }
    /// Connects anew to what stands at the address by now, outside of any work. What `require`
    /// throws, which sees that connection, leaves the present one. Raises `StoreError::Unreachable`
    /// and its like.
    void OpenAgain(const std::function<void(soci::session&)>& require);

    /// Runs `statements(session)` and gives its value. Raises a failed statement as the failure of
    /// the store that it amounts to, "CONSEQUENCE: REASON", where the consequence tells what is now
    /// not done or not known, such as "The locus \"A\" is not stored".
    ///
    /// Outside of a transaction the work is done again when the connection was lost, or the
    /// database gave way to others: it must leave nothing behind that hinders that.
    template <class Statements>
    decltype(auto) Run(const std::string& consequence, Statements&& statements)
    {
        const Nesting nesting(m_running);
        for (int attempt = 1;; ++attempt)
        {
            try
            {
                Progress();
                RequireReachable(consequence);
                return statements(m_session);
            }
            catch (const soci::soci_error& error)
            {
                GiveUp(consequence, error, attempt);
            }
        }
    }

    /// What tells that the transaction was stored: a query that counts what only it has written.
    void SetWitness(std::string witness)
    {
        m_witness = std::move(witness);
        ++m_witnesses;
    }
    /// How often a witness was set since they were forgotten.
    int Witnesses() const { return m_witnesses; }
    void ForgetWitnesses() { m_witnesses = 0; }
    const std::string& Witness() const { return m_witness; }
    /// Whether the transaction was stored that had the witness.
    bool Testifies(const std::string& witness);

    /// Makes each row that the statement fetches go to the targets.
    void BindInto(soci::statement& statement, const RowTargets& targets) const
    {
        m_backend->BindInto(statement, targets);
    }

    /// A number that no object of this store has had before. Only inside a transaction.
    std::int32_t NextNumber() { return m_backend->NextNumber(m_session); }
    /// `Backend::LastNumber`, `Backend::SetLastNumber`
    std::int32_t LastNumber() { return m_backend->LastNumber(m_session); }
    void SetLastNumber(std::int32_t number) { m_backend->SetLastNumber(m_session, number); }
    /// `Backend::Place`
    std::string Place();
    /// `Backend::Faults`
    std::vector<std::string> Faults();
    /// `Backend::BackUpTo`
    bool BackUpTo(const std::string& file);
    /// `Backend::TryReserveSeals`
    bool TryReserveSeals() { return m_backend->TryReserveSeals(m_session); }
    /// `Backend::ReserveObject`
    void ReserveObject(std::int32_t number) { m_backend->ReserveObject(m_session, number); }
    /// `Backend::MayChangeSchema`
    bool MayChangeSchema() { return m_backend->MayChangeSchema(m_session); }
    /// `Backend::ReserveSchema`
    void ReserveSchema() { m_backend->ReserveSchema(m_session); }

private:
    friend class Snapshot;
    friend class Transaction;

    /// Counts the pieces of work that run one inside the other.
    struct Nesting
    {
        explicit Nesting(int& depth) : Depth(depth) { ++Depth; }
        ~Nesting() { --Depth; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        int& Depth;
    };

    void BeginSnapshot();
    void Begin();
    void Commit();
    void RollBack() noexcept;
    void Undo() noexcept;

    void RequireReachable(const std::string& consequence);
    /// Raises the failure unless the work may be tried again. Lets the error itself go on where
    /// that is for the work around this one to do.
    void GiveUp(const std::string& consequence, const soci::soci_error& error, int attempt) const;
    [[noreturn]] void RaiseFailure(const std::string& consequence,
                                   const soci::soci_error& error) const;
    [[noreturn]] void RaiseFailure(const std::string& consequence, std::int32_t number,
                                   const std::string& message) const;

    std::string m_name;
    std::unique_ptr<Tamrivo::Backend> m_backend;
    soci::session m_session;
    std::string m_serverUser;
    std::string m_witness;
    int m_witnesses = 0;
    std::string m_whyReadOnly;
    mutable bool m_isLost = false;
    int m_running = 0; ///< Pieces of work, one inside the other.
    int m_depth = 0;   ///< Open transactions, one inside the other.
    int m_connectionNumber = 0;
    std::vector<std::function<void(const std::string&)>> m_undo;
    std::vector<std::size_t> m_undoOfLevel; ///< How many there were when each level began.
    bool m_isInDoubt = false;               ///< Whether the last commit was stored isn't known.
    bool m_undone = false; ///< The outermost one was taken back while inner ones were open.
};

} // namespace Tamrivo
