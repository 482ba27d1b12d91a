#include "tests/fakes/fake_host.h"

#include <gtest/gtest.h>

namespace Tamrivo
{
namespace
{

const ErrorRecord Cause{13, "here", "it broke", "help", 7};

/// A procedure of the steps a, b and c.
class Procedure : private Guarded
{
public:
    explicit Procedure(FailureReporter& reporter) : Guarded(reporter, "Sample") {}

    void Run(Guard::Form form)
    {
        const auto body = [this](Guard& run) {
            for (const char step : {'a', 'b', 'c'})
                run([this, step] { Do(step); });
        };
        switch (form)
        {
        case Guard::Form::Propagating: return Propagating("Run", body);
        case Guard::Form::Terminal: return Terminal("Run", body);
        case Guard::Form::Reporting: return Reporting("Run", body);
        }
    }

    std::string Log;
    std::string Failing; ///< The steps that fail, in the order in which they do.

private:
    void Do(char step)
    {
        Log += step;
        if (!Failing.starts_with(step))
            return;
        Failing.erase(0, 1);
        throw Failure(Cause);
    }
};

struct GuardCase
{
    Guard::Form Form;
    bool Debug;
    bool Stops;
    const char* Failing;
    const char* Log;
    std::size_t Breaks;
    bool Final;
    bool Passes;
};

TEST(Guard, ReportsEndsAndRetriesByItsForm)
{
    using enum Guard::Form;
    const GuardCase cases[] = {
        {Propagating, false, false, "b", "ab", 0, false, true},
        {Propagating, true, false, "b", "ab", 1, false, true},
        {Propagating, true, true, "b", "abbc", 1, false, false},
        {Propagating, true, true, "bb", "abb", 1, false, true},
        {Propagating, true, true, "bc", "abbc", 1, false, true},
        {Terminal, false, false, "b", "ab", 0, true, false},
        {Terminal, true, false, "b", "ab", 1, true, false},
        {Terminal, true, true, "b", "abbc", 1, true, false},
        {Terminal, true, true, "bb", "abb", 1, true, true},
        {Terminal, true, true, "bc", "abbc", 1, true, true},
        {Reporting, false, false, "b", "ab", 0, true, false},
        {Reporting, true, true, "b", "ab", 0, true, false},
    };
    for (const auto& expected : cases)
    {
        SCOPED_TRACE(&expected - cases);
        Fakes::FakeUtility reporter;
        std::size_t breaks = 0;
        if (expected.Debug)
            reporter.OnDebugBreak = [&] { return ++breaks, expected.Stops; };
        Procedure procedure(reporter);
        procedure.Failing = expected.Failing;

        bool passed = false;
        try
        {
            procedure.Run(expected.Form);
        }
        catch (const Failure& failure)
        {
            passed = true;
            EXPECT_EQ(failure.Record(), Cause);
        }
        EXPECT_EQ(passed, expected.Passes);
        EXPECT_EQ(procedure.Log, expected.Log);
        EXPECT_EQ(breaks, expected.Breaks);
        EXPECT_EQ(reporter.Reports, (std::vector<Fakes::Report>{{"Run", expected.Final}}));
        EXPECT_EQ(reporter.Reports.front().Error, Cause);
        EXPECT_EQ(reporter.Headings, std::set<std::string>{"Tamrivo|Sample|"});
    }
}

TEST(Guard, AFailureOfItsOwnStepsGoesToTheCaller)
{
    Fakes::FakeUtility reporter;
    reporter.OnDebugBreak = []() -> bool { throw Failure(99, "debugger", "lost"); };
    Procedure procedure(reporter);
    procedure.Failing = "b";
    EXPECT_THROW(procedure.Run(Guard::Form::Terminal), Failure);
    EXPECT_EQ(reporter.Reports.size(), 1U);
}

} // namespace
} // namespace Tamrivo
