#include "desktop/window/main_window.h"

#include "desktop/forms/actions.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/reports/reports_window.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "desktop/window/parameter_list.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/start_page.h"
#include "desktop/window/store_session.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>

namespace Tamrivo
{

namespace
{

/// The last part of a store's address, which tells stores apart well enough in a title.
QString StoreName(const std::string& address)
{
    const QString text = ToQString(address);
    return text.contains("://") ? text.section('/', -1).section('?', 0, 0)
                                : QFileInfo(text).fileName();
}

} // namespace

MainWindow::MainWindow(DesktopFrontEnd& frontEnd)
    : m_frontEnd(frontEnd), m_splitter(new QSplitter(this)), m_pages(new QStackedWidget(this))
{
    setObjectName("main");
    MakeMenus();
    MakeParameterList();
    m_pages->addWidget(
        new StartPage("No store is open.", {CommandNamed("open"), CommandNamed("create")}, this));
    m_pages->addWidget(new StartPage(
        "Choose an analysis parameter at the left, or begin here.\n"
        "A locus is defined once; each analysis parameter chooses the loci that it uses.",
        {CommandNamed("newParameter"), CommandNamed("newLocus"), CommandNamed("import")}, this));
    m_splitter->addWidget(m_list);
    m_splitter->addWidget(m_pages);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
    statusBar();
    RestorePlace(*this, {fontMetrics().averageCharWidth() * 190, fontMetrics().lineSpacing() * 56});
    ShowState();
}

MainWindow::~MainWindow()
{
    CloseParameter();
}

void MainWindow::MakeParameterList()
{
    m_list =
        new ParameterList({CommandNamed("newParameter"), CommandNamed("renameParameter"),
                           CommandNamed("duplicateParameter"), CommandNamed("deleteParameter")},
                          this);
    m_list->onChosen = [this](const std::string& name) { ChooseParameter(name); };
}

HostApplication& MainWindow::Host() const
{
    return m_session->Host();
}

bool MainWindow::Run(const std::function<void()>& action) const
{
    return m_frontEnd.UserActions().Run(action);
}

bool MainWindow::OpenStore(const std::string& address)
{
    if (!MayLeave())
        return false;
    std::unique_ptr<StoreSession> opened;
    const bool isOpen = Run([&] { opened = std::make_unique<StoreSession>(address, m_frontEnd); });
    if (!isOpen)
        return false;
    CloseParameter();
    m_reports.reset();
    // The former session gives the front end back before the new one takes it.
    m_session.reset();
    m_session = std::move(opened);
    m_frontEnd.SetHost(&Host());
    // A password must not end up among the settings.
    if (Host().Store().Name() == address)
        RememberStore(ToQString(address));
    ShowNames();
    ShowState();
    Run([this] {
        const std::string last = FromQString(LastParameter(ToQString(Host().Store().Name())));
        if (!last.empty() && Host().Parameters().Find(last))
            ShowParameter(last);
    });
    return true;
}

void MainWindow::ShowNames()
{
    Run([this] { m_list->SetNames(Host().Parameters().Names()); });
    m_list->ShowChosen(m_view != nullptr ? m_view->Name() : std::string());
}

void MainWindow::ShowState()
{
    const bool hasStore = m_session != nullptr;
    const bool mayWrite = hasStore && !Host().Store().IsReadOnly();
    const bool isChanged = m_view != nullptr && m_view->IsChanged();
    QString title;
    if (m_view != nullptr)
        title += ToQString(m_view->Name()) + "[*] – ";
    if (hasStore)
        title += StoreName(Host().Store().Name()) + (mayWrite ? "" : " (read only)") + " – ";
    setWindowTitle(title + "Tamrivo");
    setWindowModified(isChanged);

    for (QAction* command : findChildren<QAction*>())
    {
        const QString needs = command->property("needs").toString();
        const bool isPossible = (!needs.contains("store") || hasStore) &&
                                (!needs.contains("writing") || mayWrite) &&
                                (!needs.contains("parameter") || m_view != nullptr) &&
                                (!needs.contains("changes") || isChanged);
        if (!needs.isEmpty())
            command->setEnabled(isPossible);
    }
    m_list->setEnabled(hasStore);
    if (m_view != nullptr)
        m_pages->setCurrentWidget(m_view);
    else
        m_pages->setCurrentIndex(hasStore ? 1 : 0);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!MayLeave())
        return event->ignore();
    RememberPlace(*this);
    m_reports.reset();
    QMainWindow::closeEvent(event);
}

} // namespace Tamrivo
