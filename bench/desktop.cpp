#include "bench/figures.h"
#include "bench/memory.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "desktop/findings/finding_watch.h"
#include "desktop/forms/form_view.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/hosted_views.h"
#include "desktop/library/library_table.h"
#include "desktop/library/library_view.h"
#include "desktop/window/main_window.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"
#include "host/grid/grid_user.h"
#include "host/library/library.h"
#include "selector/str_locus_tag_selector.h"

#include <QApplication>
#include <QScrollBar>

namespace Tamrivo::Bench
{

namespace
{

/// The windows of a program that nobody is to see, on a store of many loci.
class Windows
{
public:
    Windows()
    {
        if (!m_parameter)
            m_parameter = m_host.Parameters().Create("Painted", TagLists::OneEmpty);
    }

    std::unique_ptr<STRLocusTagSelector> Open()
    {
        auto selector = std::make_unique<STRLocusTagSelector>(m_host);
        selector->Initialize(m_parameter);
        return selector;
    }

    std::unique_ptr<FormView> Show(STRLocusTagSelector& selector)
    {
        auto view = std::make_unique<FormView>(selector, m_frontEnd.UserActions(), HostedViews({}));
        view->resize(view->sizeHint());
        view->show();
        Paint();
        return view;
    }

    DesktopFrontEnd& FrontEnd() { return m_frontEnd; }

    static void Paint() { QCoreApplication::processEvents(); }

private:
    int m_count = 1;
    char m_name[14] = "tamrivo_bench";
    char* m_arguments[1] = {m_name};
    QApplication m_application{(qputenv("QT_QPA_PLATFORM", "offscreen"), m_count), m_arguments};
    DesktopFrontEnd m_frontEnd;
    HostApplication m_host{StoreOfLoci(ManyLoci).Get(), m_frontEnd};
    std::shared_ptr<StoredAnalysisParameter> m_parameter = m_host.Parameters().Find("Painted");
};

/// A window on the store of many loci, with nothing going on behind it.
class OpenedWindow
{
public:
    OpenedWindow()
    {
        m_window.show();
        m_window.Bench().OpenStore(StoreOfLoci(ManyLoci).Path());
        Loci().Watch().Stop();
        Windows::Paint();
    }

    LibraryView& Loci() const { return m_window.Bench().Loci(); }

private:
    Windows m_windows;
    MainWindow m_window{m_windows.FrontEnd()};
};

} // namespace

double LibraryInView()
{
    Windows windows;
    const std::string address = StoreOfLoci(ManyLoci).Path();
    return RatioOf(
        5,
        [&] {
            auto window = std::make_unique<MainWindow>(windows.FrontEnd());
            window->show();
            window->Bench().OpenStore(address);
            Windows::Paint();
            return window;
        },
        [&] {
            auto store = std::make_unique<Store>(address);
            auto library = std::make_unique<Library>(*store);
            return std::pair(std::move(store), std::move(library));
        });
}

double MemoryOfWindow()
{
    Windows windows;
    const std::string address = StoreOfLoci(ManyLoci).Path();
    MainWindow window(windows.FrontEnd());
    window.show();
    Windows::Paint();
    const std::size_t empty = HeapBytes();
    std::size_t ofLibrary = 0;
    {
        Store store(address);
        const Library library(store);
        ofLibrary = HeapBytes() - empty;
    }
    const std::size_t before = HeapBytes();
    window.Bench().OpenStore(address);
    Windows::Paint();
    return static_cast<double>(HeapBytes() - before) / static_cast<double>(ofLibrary);
}

double ChoosingInWindow()
{
    const OpenedWindow window;
    window.Loci().Preview().setCurrentIndex(LocusPreview::Lanes);
    int row = 0;
    return 1000 * FastestOf(30, [&] {
               window.Loci().LociTable().ChooseRows({row += 1000});
               Windows::Paint();
           });
}

double ScrollingInWindow()
{
    const OpenedWindow window;
    QScrollBar& bar = *window.Loci().LociTable().verticalScrollBar();
    return 1000 * FastestOf(30, [&] {
               bar.setValue(bar.value() + bar.maximum() / 31);
               Windows::Paint();
           });
}

double FirstPaint()
{
    Windows windows;
    return RatioOf(
        5,
        [&] {
            const auto selector = windows.Open();
            windows.Show(*selector);
        },
        [&] { windows.Open(); });
}

double WindowSort()
{
    Windows windows;
    const auto shown = windows.Open();
    const auto view = windows.Show(*shown);
    const auto hidden = windows.Open();
    const auto sort = [](STRLocusTagSelector& selector) {
        User::Click(selector.mnuDescending);
        User::Click(selector.mnuAscending);
        Windows::Paint();
    };
    return RatioOf(
        5, [&] { sort(*shown); }, [&] { sort(*hidden); });
}

double WindowMove()
{
    Windows windows;
    const auto selector = windows.Open();
    const auto view = windows.Show(*selector);
    return 1000 * FastestOf(100, [&] {
               User::DoubleClick(selector->gridAvailable, 1);
               Windows::Paint();
           });
}

} // namespace Tamrivo::Bench
