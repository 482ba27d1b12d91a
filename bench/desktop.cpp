#include "bench/figures.h"
#include "bench/sample_store.h"
#include "bench/timing.h"
#include "desktop/forms/form_view.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/hosted_views.h"
#include "platform/framework/host_application.h"
#include "selector/str_locus_tag_selector.h"

#include <QApplication>

namespace Tamrivo::Bench
{

namespace
{

constexpr int ManyLoci = 100'000;

} // namespace

double FirstPaint()
{
    // Nobody is to see the window.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    char name[] = "tamrivo_bench";
    char* arguments[] = {name};
    int count = 1;
    const QApplication application(count, arguments);

    Store& store = StoreOfLoci(ManyLoci).Get();
    DesktopFrontEnd frontEnd;
    HostApplication host(store, frontEnd);
    auto parameter = host.Parameters().Find("Painted");
    if (!parameter)
        parameter = host.Parameters().Create("Painted", TagLists::OneEmpty);

    const auto initialize = [&] {
        STRLocusTagSelector selector(host);
        selector.Initialize(parameter);
    };
    const auto paint = [&] {
        STRLocusTagSelector selector(host);
        selector.Initialize(parameter);
        FormView view(selector, frontEnd.UserActions(), NewHostedView);
        view.resize(view.sizeHint());
        view.show();
        QCoreApplication::processEvents();
        view.repaint();
    };
    return RatioOf(5, paint, initialize);
}

} // namespace Tamrivo::Bench
