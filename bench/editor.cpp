#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "controls/user.h"
#include "editor/locus_editor_page.h"
#include "host/framework/front_end.h"
#include "host/framework/host_application.h"
#include "host/framework/wizard_session.h"
#include "tests/fakes/fake_host.h"

#include <functional>
#include <stdexcept>

namespace Tamrivo::Bench
{

namespace
{

/// A person who measures the page of a wizard and cancels.
class Person : public FrontEnd
{
public:
    using Task = std::function<double(LocusEditorPage&)>;

    explicit Person(Task task) : m_task(std::move(task)) {}

    double Figure() const { return m_figure; }

    void RunWizard(WizardSession& wizard) override
    {
        m_figure = m_task(dynamic_cast<LocusEditorPage&>(wizard.Page()));
        wizard.Cancel();
    }
    void ShowMenu(UserControl&, Menu&) override {}
    MessageAnswer ShowMessage(const std::string&, std::int32_t, const std::string&) override
    {
        return MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport& report) override { ShowFailure(report.Error); }
    void ShowFailure(const ErrorRecord& error) override
    {
        throw std::runtime_error(error.Description);
    }

private:
    Task m_task;
    double m_figure = 0;
};

/// What a person measures on the page of a new locus, in a store of that many loci.
double OnNewLocus(int loci, Person::Task task)
{
    Person person(std::move(task));
    HostApplication host(StoreOfLoci(loci).Get(), person);
    host.NewLocus(false);
    return person.Figure();
}

/// Seconds for one key in the tag field, with the validation that it brings about.
double KeySeconds(int loci)
{
    return OnNewLocus(loci, [](LocusEditorPage& page) {
        User::Type(page.txtLocusTag, "D3S135");
        constexpr int keys = 1000;
        const double seconds = FastestOf(50, [&] {
            for (int i = 0; i < keys / 2; ++i)
            {
                User::Press(page.txtLocusTag, '8');
                User::Press(page.txtLocusTag, User::Backspace);
            }
        });
        return seconds / keys;
    });
}

/// Seconds for generating that many rows with the button, the pane's part included.
double GenerationSeconds(int rows)
{
    return OnNewLocus(100, [rows](LocusEditorPage& page) {
        page.txtFragStart.SetText("0");
        page.txtShortestAlleleSize.SetText("0");
        page.txtFragEnd.SetText(std::to_string(rows - 1));
        page.txtRepeat.SetText("1");
        return FastestOf(30, [&] { User::Click(page.cmdGenAlleleList); });
    });
}

} // namespace

double KeyInTag()
{
    return KeySeconds(100'000) * 1e6;
}

double KeyInTagByLoci()
{
    return KeySeconds(100'000) / KeySeconds(100);
}

double GenerationClick()
{
    return GenerationSeconds(1000) * 1e3;
}

double GenerationByRows()
{
    return GenerationSeconds(1000) / 4 / GenerationSeconds(250);
}

/// Opening a page on a stored locus and saving it, on a host whose store takes no time: blanking
/// and defaults are included, so that loading and updating alone take less.
double LoadAndUpdate()
{
    Fakes::FakeHost host;
    host.Objects.AddProject("Default", 1);
    LocusEditorPage page(host);
    const auto loci = CurrentLoci(StoreOfLoci(100).Get().Manager(), "");
    ParameterCollection& parameters = *host.Base->Collection;

    const double seconds = FastestOf(50, [&] {
        for (const auto& locus : loci->Members())
        {
            parameters.Add(As<Locus>(locus), ParameterKey::Locus);
            host.Base->Initialize(nullptr);
            host.Base->Save();
        }
    });
    return seconds / loci->Count() * 1e6;
}

} // namespace Tamrivo::Bench
