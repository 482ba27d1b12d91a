#include "host/database/database.h"

#include "host/database/address.h"
#include "host/database/execute.h"
#include "host/database/schema.h"

#include <algorithm>
#include <iterator>
#include <regex>
#include <thread>

namespace Tamrivo
{

namespace
{

/// Why a statement failed, in words that follow the store's address, and what to do about it.
struct Reason
{
    std::int32_t Number;
    std::string_view Text;
    bool IsExplained; ///< The database's own words tell more.
    std::string_view Advice;
};

constexpr Reason Reasons[] = {
    {StoreError::Unreachable, "can't be reached", true,
     "Check that it is there and that you may open it"},
    {StoreError::Unknown, "was lost while the change was being stored, and can't be reached", true,
     "Whether the change was stored isn't known. Save again once the store is there: that finds "
     "out "
     "first, and stores nothing twice"},
    {StoreError::Locked, "has been locked by another program for more than five seconds", false,
     "Try again when that has finished"},
    {StoreError::ReadOnly, "is read-only", false, "Make it writable, or work on a copy"},
    {StoreError::DiskFull, "has no room left on its disk", false, "Make room and try again"},
    {StoreError::NotAStore, "is no store of this program, or is damaged", false,
     "Choose another one, or take it from a copy"},
    {StoreError::NameTaken,
     "already has another one of that name, apart from case and trailing blanks", false,
     "Choose another name"},
    {StoreError::Database, "refused a statement", true, "What was stored before is unharmed"},
};

const Reason& ReasonOf(std::int32_t number)
{
    const auto* found = std::ranges::find(Reasons, number, &Reason::Number);
    return found == std::end(Reasons) ? *std::prev(found) : *found;
}

/// What the database says, on one line and without the words that SOCI puts in front.
std::string OwnWords(const std::string& message)
{
    static const std::regex noise("^(Cannot establish connection to the database\\.)?\\s+|\\s+$");
    static const std::regex breaks("\\s+");
    return std::regex_replace(std::regex_replace(message, noise, ""), breaks, " ");
}

} // namespace

Database::Database(const std::string& address, const std::function<void(Database&)>& complete)
    : Notes(NotesOfThisProcess()),
      m_name(AddressWithoutPassword(address)),
      m_backend(BackendFor(address))
{
    const std::string consequence = "Nothing was opened";
    try
    {
        m_backend->Connect(m_session);
        m_whyReadOnly = m_backend->WhyReadOnly(m_session);
        m_serverUser = m_backend->ServerUser(m_session);
    }
    catch (const soci::soci_error& error)
    {
        const std::int32_t number = m_backend->ErrorNumberOf(error);
        RaiseFailure(consequence, number == StoreError::Database ? StoreError::Unreachable : number,
                     error.get_error_message());
    }
    Run(consequence,
        [&](soci::session& session) { MigrateSchema(*this, session, SchemaSteps, complete); });
}

bool Database::Testifies(const std::string& witness)
{
    return Run("It isn't known yet whether a change was stored", [&](soci::session& session) {
        int count = 0;
        Execute(session, witness, soci::into(count));
        return count > 0;
    });
}

void Database::RequireWritable(const std::string& consequence) const
{
    if (IsReadOnly())
        RaiseFailure(consequence, StoreError::ReadOnly, "");
}

std::string Database::Place()
{
    return Run("The store is not looked at",
               [this](soci::session& session) { return m_backend->Place(session); });
}

std::vector<std::string> Database::Faults()
{
    return Run("The store is not checked",
               [this](soci::session& session) { return m_backend->Faults(session); });
}

bool Database::BackUpTo(const std::string& file)
{
    return Run("The backup \"" + file + "\" is not written", [&](soci::session& session) {
        return m_backend->BackUpTo(session, file, [this] { Progress(); });
    });
}

void Database::BeginSnapshot()
{
    m_backend->BeginSnapshot(m_session);
    m_undone = false;
    m_undoOfLevel.push_back(m_undo.size());
    ++m_depth;
}

void Database::Begin()
{
    if (m_depth == 0)
    {
        m_backend->Begin(m_session);
        m_undone = false;
        m_isInDoubt = false;
        m_witness.clear();
    }
    else if (m_undone)
    {
        throw Failure(StoreError::Database, "Store",
                      "Nothing more is stored: the transaction has been taken back");
    }
    else
    {
        Execute(m_session, "SAVEPOINT Level" + std::to_string(m_depth));
    }
    m_undoOfLevel.push_back(m_undo.size());
    ++m_depth;
}

void Database::Commit()
{
    if (m_undone)
        throw Failure(StoreError::Database, "Store",
                      "Nothing was stored: the transaction has been taken back");
    if (m_depth == 1)
    {
        try
        {
            m_backend->Commit(m_session, m_witness);
        }
        catch (const soci::soci_error& error)
        {
            m_isInDoubt = m_backend->ErrorNumberOf(error) == StoreError::Unknown;
            throw;
        }
        m_undo.clear();
    }
    else
    {
        Execute(m_session, "RELEASE SAVEPOINT Level" + std::to_string(m_depth - 1));
    }
    m_undoOfLevel.pop_back();
    --m_depth;
}

void Database::Undo() noexcept
{
    const std::size_t kept = m_undoOfLevel.empty() ? 0 : m_undoOfLevel.back();
    if (!m_undoOfLevel.empty())
        m_undoOfLevel.pop_back();
    for (; m_undo.size() > kept; m_undo.pop_back())
        m_undo.back()(m_isInDoubt ? m_witness : std::string());
}

void Database::RollBack() noexcept
{
    --m_depth;
    Undo();
    try
    {
        if (m_depth == 0)
        {
            Execute(m_session, "ROLLBACK");
        }
        else
        {
            Execute(m_session, "ROLLBACK TO SAVEPOINT Level" + std::to_string(m_depth));
            Execute(m_session, "RELEASE SAVEPOINT Level" + std::to_string(m_depth));
        }
    }
    catch (const std::exception&)
    {
        // After a full disk or a lost connection the database has already taken back everything.
        m_undone = true;
    }
}

void Database::OpenAgain(const std::function<void(soci::session&)>& require)
{
    try
    {
        m_backend->OpenAgain(m_session, [&](soci::session& there) {
            require(there);
            Reconnected();
        });
        m_connectionNumber = m_backend->ConnectionNumber();
        m_whyReadOnly = m_backend->WhyReadOnly(m_session);
        m_isLost = false;
    }
    catch (const soci::soci_error& error)
    {
        RaiseFailure("The store is not opened again", error);
    }
}

void Database::RequireReachable(const std::string& consequence)
{
    if (m_depth > 0)
        return;
    m_isLost = false;
    m_backend->Reconnect(m_session);
    if (m_connectionNumber != m_backend->ConnectionNumber())
    {
        m_connectionNumber = m_backend->ConnectionNumber();
        Reconnected();
    }
    if (!m_backend->IsReachable(m_session))
        RaiseFailure(consequence, StoreError::Unreachable,
                     "its file was removed or replaced since it was opened");
}

void Database::GiveUp(const std::string& consequence, const soci::soci_error& error,
                      int attempt) const
{
    // Waits of 0.1, 0.2, ... seconds make some five seconds, in which a server can be started
    // again or another one take its place.
    constexpr int mostAttempts = 10;
    const bool mayTryAgain = m_backend->MayTryAgain(error);
    if (mayTryAgain && m_running > 1)
        throw;
    if (!mayTryAgain || m_depth > 0 || attempt >= mostAttempts)
        RaiseFailure(consequence, error);
    std::this_thread::sleep_for(attempt * std::chrono::milliseconds(100));
}

void Database::RaiseFailure(const std::string& consequence, const soci::soci_error& error) const
{
    RaiseFailure(consequence, m_backend->ErrorNumberOf(error), error.get_error_message());
}

void Database::RaiseFailure(const std::string& consequence, std::int32_t number,
                            const std::string& message) const
{
    m_isLost = number == StoreError::Unreachable;
    const Reason& reason = ReasonOf(number);
    std::string description = consequence + ": the store \"" + m_name + "\" ";
    if (number == StoreError::ReadOnly && IsReadOnly())
        throw Failure(number, "Store", description + "is read-only: " + m_whyReadOnly);
    if (number == StoreError::ReadOnly && !m_serverUser.empty())
        throw Failure(number, "Store",
                      description + "doesn't let \"" + m_serverUser + "\" do that (" +
                          OwnWords(message) + "). Ask its keeper");
    description += reason.Text;
    if (reason.IsExplained)
        description += " (" + OwnWords(message) + ")";
    throw Failure(number, "Store", description.append(". ").append(reason.Advice));
}

} // namespace Tamrivo
