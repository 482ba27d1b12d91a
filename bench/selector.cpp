#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "host/framework/front_end.h"
#include "host/framework/host_application.h"
#include "host/grid/grid_user.h"
#include "selector/str_locus_tag_selector.h"

#include <cmath>
#include <ctime>
#include <functional>
#include <limits>

namespace Tamrivo::Bench
{

namespace
{

constexpr int FewRows = 1'000;

/// Nobody sits in front of it.
class NoFrontEnd : public FrontEnd
{
public:
    void RunWizard(WizardSession&) override {}
    void ShowMenu(UserControl&, Menu&) override {}
    MessageAnswer ShowMessage(const std::string&, std::int32_t, const std::string&) override
    {
        return MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport&) override {}
    void ShowFailure(const ErrorRecord&) override {}
};

/// A selector on a store of loci, of which every second one is selected.
struct OpenSelector
{
    explicit OpenSelector(int loci) : Store(StoreOfLoci(loci).Get())
    {
        LocusTagEntries& entries = Parameter->FragAnalysisParam().LocusTagList(0);
        const auto stored = CurrentLoci(Store.Manager(), "");
        bool isSelected = false;
        for (const auto& member : stored->Members())
        {
            isSelected = !isSelected;
            if (isSelected)
                entries.Add(
                    std::make_shared<StoredTagEntry>(Store, As<Locus>(member)->LocusTagID()));
        }
        Initialize();
    }

    void Initialize() { Selector.Initialize(Parameter); }

    Tamrivo::Store& Store;
    NoFrontEnd Nobody;
    HostApplication Host{Store, Nobody};
    std::shared_ptr<StoredAnalysisParameter> Parameter = [this] {
        if (auto found = Host.Parameters().Find("Measured"))
            return found;
        return Host.Parameters().Create("Measured", TagLists::OneEmpty);
    }();
    STRLocusTagSelector Selector{Host};
};

/// Time that the program has had a processor for, seconds. It isn't lengthened by other programs,
/// which interrupt a long call and spare a short one.
double ProcessorSeconds()
{
    std::timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// How much longer `work` takes with many loci than with few, against n log n. `prepare` runs
/// before each measured call.
double Growth(const std::function<void(OpenSelector&)>& prepare,
              const std::function<void(OpenSelector&)>& work)
{
    const auto seconds = [&](int loci, int times) {
        OpenSelector open(loci);
        double fastest = std::numeric_limits<double>::max();
        for (; times > 0; --times)
        {
            prepare(open);
            const double start = ProcessorSeconds();
            work(open);
            fastest = std::min(fastest, ProcessorSeconds() - start);
        }
        return fastest;
    };
    const auto steps = [](double count) { return count * std::log(count); };
    return seconds(ManyLoci, 5) / seconds(FewRows, 50) * steps(FewRows) / steps(ManyLoci);
}

} // namespace

double SelectorInitialize()
{
    OpenSelector open(ManyLoci);
    return RatioOf(
        5, [&] { open.Initialize(); }, [&] { CurrentLoci(open.Store.Manager(), "Name"); });
}

double SelectorSort()
{
    return Growth([](OpenSelector& open) { User::Click(open.Selector.mnuDescending); },
                  [](OpenSelector& open) { User::Click(open.Selector.mnuAscending); });
}

double SelectorAddAll()
{
    return Growth([](OpenSelector& open) { open.Selector.cmdRemoveAll.Click(); },
                  [](OpenSelector& open) { open.Selector.cmdAddAll.Click(); });
}

double SelectorRemoveAll()
{
    return Growth([](OpenSelector& open) { open.Selector.cmdAddAll.Click(); },
                  [](OpenSelector& open) { open.Selector.cmdRemoveAll.Click(); });
}

double SelectorSave()
{
    return Growth(
        [](OpenSelector&) {},
        [](OpenSelector& open) { open.Selector.Save(open.Parameter->FragAnalysisParam()); });
}

double SelectorMove()
{
    OpenSelector open(ManyLoci);
    open.Selector.cmdRemoveAll.Click();
    return 1000 * FastestOf(100, [&] { User::DoubleClick(open.Selector.gridAvailable, 1); });
}

} // namespace Tamrivo::Bench
