#pragma once

#include "core/error.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Tamrivo
{

/// The application's title in every report.
inline constexpr std::string_view ApplicationTitle = "Tamrivo";

/// Whom a guard tells. The host implements it.
class FailureReporter
{
public:
    virtual ~FailureReporter() = default;

    /// Takes note of a failure caught in `procedureName` of `className`. `extra` is always empty.
    /// `bFinal` tells that the failure ends there and no caller will see it.
    virtual void ReportError(std::string_view title, std::string_view className,
                             std::string_view procedureName, const ErrorRecord& error,
                             std::string_view extra, bool bFinal) = 0;
    /// Whether a failure may stop for a debugger.
    virtual bool DebugMode() const = 0;
    /// Offers a stop for the debugger to the process with the given number. True when execution
    /// stopped and goes on now: the failing statement is then run again.
    virtual bool DebugBreak(std::int32_t number) = 0;
};

/// The failure guard of one running procedure.
///
/// A guarded procedure passes each statement that can fail through its guard:
///
///     void Page::Store()
///     {
///         Propagating("Store", [&](Guard& run) {
///             run([&] { UpdateLocus(*m_oLocus); });
///             run([&] { Objects().Save(*m_oLocus, true); });
///         });
///     }
///
/// A failing statement is reported, and control leaves the procedure. What the statements before it
/// did stays. Statements are not nested, and what stands outside of one must not fail. A failure is
/// what derives from `std::exception`; anything else that is thrown, such as the host's word that
/// the person has cancelled, passes without a report.
class Guard
{
public:
    enum class Form
    {
        Propagating, ///< Reports, then passes the failure on to the caller.
        Terminal,    ///< Reports as final and ends the procedure normally.
        Reporting,   ///< As Terminal, without offering a debug stop.
    };

    Guard(Form form, FailureReporter& reporter, std::string_view className,
          std::string_view procedureName)
        : m_form(form), m_reporter(reporter), m_className(className), m_procedureName(procedureName)
    {}

    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    /// Runs one statement and gives its value. After a debug stop the statement runs once more and
    /// the guard stays off: from then on a failure goes straight to the caller.
    template <class Statement>
    decltype(auto) operator()(Statement&& statement)
    {
        if (m_armed)
        {
            try
            {
                return statement();
            }
            catch (const std::exception&)
            {
                Handle(CurrentError());
            }
        }
        return statement();
    }

    /// Runs the procedure's body under this guard.
    template <class Body>
    decltype(auto) Run(Body&& body)
    {
        if constexpr (std::is_void_v<std::invoke_result_t<Body, Guard&>>)
        {
            try
            {
                body(*this);
            }
            catch (const Ended& ended)
            {
                if (ended.By != this)
                    throw;
            }
        }
        else
        {
            return body(*this);
        }
    }

private:
    /// Unwinds a procedure whose guard ends the failure.
    struct Ended
    {
        const Guard* By;
    };

    /// Returns only when the failing statement is to run again.
    void Handle(const ErrorRecord& error);

    Form m_form;
    bool m_armed = true;
    FailureReporter& m_reporter;
    std::string_view m_className;
    std::string_view m_procedureName;
};

/// Base of a class with guarded procedures: it knows the class name and the reporter.
class Guarded
{
protected:
    Guarded(FailureReporter& reporter, std::string_view className)
        : m_reporter(reporter), m_className(className)
    {}
    ~Guarded() = default;

    /// Runs a procedure that passes its failures on; gives the body's result.
    template <class Body>
    decltype(auto) Propagating(std::string_view procedureName, Body&& body) const
    {
        return Guard(Guard::Form::Propagating, m_reporter, m_className, procedureName)
            .Run(std::forward<Body>(body));
    }

    /// Runs a procedure at the top of its chain: its failures end here.
    template <class Body>
    void Terminal(std::string_view procedureName, Body&& body) const
    {
        Guard(Guard::Form::Terminal, m_reporter, m_className, procedureName)
            .Run(std::forward<Body>(body));
    }

    /// Runs a procedure whose failures are only reported.
    template <class Body>
    void Reporting(std::string_view procedureName, Body&& body) const
    {
        Guard(Guard::Form::Reporting, m_reporter, m_className, procedureName)
            .Run(std::forward<Body>(body));
    }

private:
    FailureReporter& m_reporter;
    std::string_view m_className;
};

} // namespace Tamrivo
