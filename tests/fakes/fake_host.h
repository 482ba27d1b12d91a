#pragma once

#include "contracts/host.h"
#include "controls/screen.h"
#include "controls/text_field.h"
#include "core/numbers.h"
#include "core/text.h"
#include "tests/fakes/fake_objects.h"

#include <cmath>
#include <functional>
#include <ostream>
#include <set>
#include <sstream>

namespace Tamrivo::Fakes
{

/// What a guard has told.
struct Report
{
    std::string Procedure;
    bool Final;
    ErrorRecord Error = {};
    bool OfferedStop = false;

    bool operator==(const Report& other) const
    {
        return Procedure == other.Procedure && Final == other.Final;
    }
    friend std::ostream& operator<<(std::ostream& stream, const Report& report)
    {
        return stream << report.Procedure << (report.Final ? " (final): " : ": ")
                      << report.Error.Description;
    }
};

class FakeUtility : public Utility
{
public:
    void ReportError(std::string_view title, std::string_view className,
                     std::string_view procedureName, const ErrorRecord& error,
                     std::string_view extra, bool bFinal) override
    {
        Headings.insert(std::string(title) + "|" + std::string(className) + "|" +
                        std::string(extra));
        Reports.push_back({std::string(procedureName), bFinal, error});
        OnReport();
    }
    bool DebugMode() const override { return OnDebugBreak != nullptr; }
    bool DebugBreak(std::int32_t) override
    {
        Reports.back().OfferedStop = true;
        return OnDebugBreak();
    }
    bool KeyExists(const Keyed& container, const std::string& key) const override
    {
        return container.KeyExists(TrimRight(key));
    }
    bool IsIntegerInRange(const TextField& control, std::int32_t low,
                          std::int32_t high) const override
    {
        if (!IsNumeric(control.Text()))
            return false;
        const double value = ToDouble(control.Text());
        return value == std::trunc(value) && low <= value && value <= high;
    }

    /// The guards that tell of a failure of the action, with their forms, in debug mode and without
    /// a stop: "UpdateLocus propagating, cmdSaveAs_Click terminal".
    template <class Action>
    std::string GuardsOf(Action action)
    {
        Reports.clear();
        OnDebugBreak = [] { return false; };
        try
        {
            action();
        }
        catch (const Failure&)
        {}
        OnDebugBreak = nullptr;
        std::string guards;
        for (const Report& report : std::exchange(Reports, {}))
            guards += (guards.empty() ? "" : ", ") + report.Procedure +
                      (!report.Final        ? report.OfferedStop ? " propagating" : " unasked"
                       : report.OfferedStop ? " terminal"
                                            : " reporting");
        return guards;
    }

    std::set<std::string> Headings; ///< Title, class and extra text of each report.
    std::vector<Report> Reports;
    std::function<void()> OnReport = [] {}; ///< May raise a failure.
    /// The stop for the debugger; without one there is no debug mode.
    std::function<bool()> OnDebugBreak;
};

class FakePageBase : public PageBase
{
public:
    const std::shared_ptr<ParameterCollection>& Parameters() override { return Collection; }
    void PageChanged() override
    {
        ++Changes;
        Ask();
    }
    /// Raises Validate; the answer starts as the opposite of the last one.
    bool Ask()
    {
        IsValid = !IsValid;
        Validate(IsValid);
        return IsValid;
    }

    std::shared_ptr<ParameterCollection> Collection = std::make_shared<ParameterCollection>();
    int Changes = 0;
    bool IsValid = true;
};

class FakeResult : public LauncherResult
{
public:
    explicit FakeResult(bool cancelled) : m_cancelled(cancelled) {}
    bool Cancelled() const override { return m_cancelled; }

private:
    bool m_cancelled;
};

class FakeLauncher : public Launcher
{
public:
    std::shared_ptr<LauncherResult> Start(std::string_view wizard,
                                          const std::shared_ptr<ParameterCollection>& parameters,
                                          const std::shared_ptr<BusinessObject>& object,
                                          std::int32_t mode, std::int32_t a, std::int32_t b,
                                          std::int32_t c, std::int32_t d, std::int32_t e,
                                          std::string_view text, std::int32_t f,
                                          std::int32_t g) override
    {
        std::ostringstream call;
        call << wizard << (object ? " object " : " - ") << mode;
        for (const std::int32_t number : {a, b, c, d, e})
            call << ' ' << number;
        call << " \"" << text << "\" " << f << ' ' << g;
        Started.push_back(call.str());
        Given = parameters;
        return Result(!Run(*parameters));
    }

    std::vector<std::string> Started;
    std::shared_ptr<ParameterCollection> Given; ///< To the last wizard.
    /// The wizard; gives whether it was completed.
    std::function<bool(ParameterCollection&)> Run = [](ParameterCollection&) { return false; };

protected:
    virtual std::shared_ptr<LauncherResult> Result(bool cancelled)
    {
        return std::make_shared<FakeResult>(cancelled);
    }
};

class FakePane : public PaneAlleleList
{
public:
    void SetLocus(const std::shared_ptr<Locus>& oLocus) override { Shown = oLocus; }
    void RefreshAlleles() override { ++Refreshes; }

    std::shared_ptr<Locus> Shown;
    int Refreshes = 0;
};

class FakeBinning : public BinningContext
{
public:
    void SetInitialized(bool initialized) override { Initialized = initialized; }
    void SetChangedFlag(bool changed) override { Changed = changed; }

    bool Initialized = true;
    bool Changed = false;
};

/// A host of fakes. It has no grid; who needs one derives from it.
class FakeHost : public Host, public ObjectManagerGlobal
{
public:
    Tamrivo::Utility& SharedUtility() override { return Utility; }
    Tamrivo::Launcher& SharedLauncher() override { return Launcher; }
    ObjectManagerGlobal& SharedObjectManagerGlobal() override { return *this; }
    ObjectManager& Manager() override { return Objects; }
    GridHelper& SharedGridHelper() override { throw std::logic_error("no grid"); }
    Tamrivo::Screen& SharedScreen() override { return Screen; }
    std::shared_ptr<ObjectManager> NewObjectManager() override
    {
        return std::shared_ptr<ObjectManager>(&Objects, [](ObjectManager*) {});
    }
    std::shared_ptr<PageBase> NewPageBase() override { return Base; }
    std::shared_ptr<ServiceBase> NewServiceBase() override { return nullptr; }
    std::shared_ptr<ReportContextType> NewReportContextType() override { return nullptr; }
    std::shared_ptr<LocusTagEntry> NewLocusTagEntry() override { return nullptr; }
    std::shared_ptr<PaneAlleleList> NewPaneAlleleList() override { return Pane; }
    std::shared_ptr<Gridocx> NewGrid() override { throw std::logic_error("no grid"); }
    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string& title) override
    {
        Messages.push_back(title + "|" + text + "|" + std::to_string(kind));
        return Answer;
    }

    FakeUtility Utility;
    FakeLauncher Launcher;
    FakeObjectManager Objects;
    Tamrivo::Screen Screen;
    std::shared_ptr<FakePageBase> Base = std::make_shared<FakePageBase>();
    std::shared_ptr<FakePane> Pane = std::make_shared<FakePane>();
    std::vector<std::string> Messages;
    MessageAnswer Answer = MessageAnswer::Ok;
};

} // namespace Tamrivo::Fakes
