#include "desktop/window/main_window.h"

#include "desktop/common/actions.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_table.h"
#include "desktop/library/library_view.h"
#include "desktop/reports/reports_window.h"
#include "desktop/window/parameter_bar.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/start_page.h"
#include "desktop/window/store_session.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace Tamrivo
{

namespace
{

constexpr int noStorePage = 0;
constexpr int emptyStorePage = 1;

/// The last part of a store's address, which tells stores apart well enough in a title.
QString StoreName(const std::string& address)
{
    const QString text = ToQString(address);
    return text.contains("://") ? text.section('/', -1).section('?', 0, 0)
                                : QFileInfo(text).fileName();
}

/// "Casework: 2 overlaps: TPOX and DYS391, 443 to 444 nt (blue)".
QString OverlapsOf(const std::string& parameter, const std::vector<std::shared_ptr<Locus>>& loci,
                   const Dyes& dyes)
{
    std::vector<LaneLocus> lanes;
    for (const auto& locus : loci)
        lanes.push_back({locus->LocusTag(), locus->DyeIndex, locus->FragStart, locus->FragEnd});
    const LocusOverlaps overlaps = FindOverlaps(lanes, 1);
    const QString name = ToQString(parameter) + ": ";
    if (overlaps.Count == 0)
        return name + "no overlaps.";
    const LocusOverlap& first = overlaps.Listed.front();
    return name + QString("%1 %2: %3 and %4, %5 to %6 nt (%7)")
                      .arg(overlaps.Count)
                      .arg(overlaps.Count == 1 ? "overlap" : "overlaps")
                      .arg(ToQString(lanes[first.First].Tag), ToQString(lanes[first.Second].Tag))
                      .arg(first.From)
                      .arg(first.To)
                      .arg(ToQString(dyes.ColorOf(lanes[first.First].DyeIndex)));
}

} // namespace

MainWindow::MainWindow(DesktopFrontEnd& frontEnd)
    : m_frontEnd(frontEnd),
      m_splitter(new QSplitter(this)),
      m_groups(new GroupTree(m_splitter)),
      m_pages(new QStackedWidget(this)),
      m_library(new LibraryView(frontEnd.UserActions(), this)),
      m_status(new QLabel(this))
{
    setObjectName("main");
    setAcceptDrops(true);
    MakeCommands();
    MakePages();
    m_status->setObjectName("status");
    m_status->setTextFormat(Qt::PlainText);
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(m_status, 1);
    RestorePlace(*this, {fontMetrics().averageCharWidth() * 190, fontMetrics().lineSpacing() * 56});
    ShowState();
}

MainWindow::~MainWindow()
{
    m_library->onChosen = {};
    CloseParameter();
}

void MainWindow::MakePages()
{
    m_bar = new ParameterBar({CommandNamed("selectLoci"), CommandNamed("save"),
                              CommandNamed("revert"), CommandNamed("closeParameter")},
                             this);
    m_pages->addWidget(
        new StartPage("No store is open.", {CommandNamed("open"), CommandNamed("create")}, this));
    m_pages->addWidget(
        new StartPage("The store has no loci yet.\nBring in a panel, or define a locus by hand.",
                      {CommandNamed("import"), CommandNamed("newLocus")}, this));
    m_pages->addWidget(m_library);

    m_groups->ParameterCommands = CommandsFor("parameter");
    m_groups->SearchCommands = CommandsFor("search");
    m_groups->onChosen = [this](const LocusGroup& group) { Run([&] { ChooseGroup(group); }); };
    m_groups->onDropped = [this](const std::string& parameter,
                                 const std::vector<std::string>& tags) {
        Run([&] { DropOn(parameter, tags); });
    };
    LibraryTable& table = m_library->LociTable();
    table.addActions(CommandsFor("locus"));
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    table.onDelete = [this] { CommandNamed("deleteLocus")->trigger(); };
    table.onEdit = [this] { CommandNamed("editLocus")->trigger(); };
    m_library->onChosen = [this] { ShowState(); };
    LocusLanes& lanes = m_library->Preview().Picture();
    lanes.onClicked = [this](const std::string& tag) { m_library->ChooseTags({tag}); };
    lanes.onDoubleClicked = [this](const std::string& tag) {
        m_library->ChooseTags({tag});
        // The press of the mouse ends before the editor waits for its own.
        QTimer::singleShot(0, this, [this] { CommandNamed("editLocus")->trigger(); });
    };
    m_library->onTicked = [this](const std::string& tag, bool isTicked) {
        Run([&] { m_view->Select({tag}, isTicked); });
    };

    auto* right = new QWidget(m_splitter);
    auto* layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, fontMetrics().averageCharWidth(), 0, 0);
    layout->addWidget(m_bar);
    layout->addWidget(m_pages, 1);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
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
    m_library->SetStore(nullptr);
    // The former session gives the front end back before the new one takes it.
    m_session.reset();
    m_session = std::move(opened);
    m_frontEnd.SetHost(&Host());
    m_library->SetStore(&Host().Store());
    // A password must not end up among the settings.
    if (Host().Store().Name() == address)
        RememberStore(ToQString(address));
    Reload({});
    Run([this] {
        const std::string last = FromQString(LastParameter(ToQString(Host().Store().Name())));
        if (!last.empty() && Host().Parameters().Find(last))
            ShowParameter(last);
    });
    return true;
}

void MainWindow::Reload(const QString& news, const std::vector<std::string>& choose)
{
    Run([&] {
        m_library->Read();
        if (m_view != nullptr)
            m_view->Reload();
        ShowGroups();
        if (!choose.empty())
            m_library->ChooseTags(choose);
    });
    ShowState();
    Tell(news);
}

void MainWindow::Tell(const QString& news)
{
    constexpr int readingTime = 10'000; // ms
    if (!news.isEmpty())
        statusBar()->showMessage(news, readingTime);
}

bool MainWindow::IsSelectorShown() const
{
    return m_view != nullptr && m_pages->currentWidget() == m_view;
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

    if (!IsSelectorShown())
    {
        const bool hasLoci = m_library->Loci() != nullptr && !m_library->Loci()->Loci().empty();
        const bool isBare = !hasLoci && m_view == nullptr;
        if (isBare)
            m_pages->setCurrentIndex(hasStore ? emptyStorePage : noStorePage);
        else
            m_pages->setCurrentWidget(m_library);
    }
    // What is highlighted on the selector's page is asked for when a command begins.
    const bool isSelector = IsSelectorShown();
    const std::size_t chosen = hasStore ? m_library->ChosenCount() : 0;
    for (QAction* command : findChildren<QAction*>())
    {
        const QStringList needs = command->property("needs").toString().split(' ');
        const bool isPossible = (!needs.contains("store") || hasStore) &&
                                (!needs.contains("writing") || mayWrite) &&
                                (!needs.contains("parameter") || m_view != nullptr) &&
                                (!needs.contains("changes") || (isChanged && mayWrite)) &&
                                (!needs.contains("locus") || isSelector || chosen == 1) &&
                                (!needs.contains("loci") || isSelector || chosen > 0) &&
                                (!needs.contains("pair") || (!isSelector && chosen == 2)) &&
                                (!needs.contains("table") || (hasStore && !isSelector));
        if (command->property("needs").isValid())
            command->setEnabled(isPossible);
    }
    m_groups->setEnabled(hasStore);
    CommandNamed("selectLoci")->setChecked(isSelector);
    m_bar->setVisible(m_view != nullptr);
    if (m_view != nullptr)
        m_bar->Show(ToQString(m_view->Name()), isChanged, !mayWrite);
    ShowStatus();
}

void MainWindow::ShowStatus()
{
    QString text;
    if (m_library->Loci() != nullptr)
        text =
            QString("%1 of %2 chosen.").arg(m_library->ChosenCount()).arg(m_library->ShownCount());
    if (m_session != nullptr && Host().Store().IsReadOnly())
        text += "  The store is read only.";
    if (m_view != nullptr && m_library->Loci() != nullptr)
        text +=
            "  " + OverlapsOf(m_view->Name(), m_view->SelectedLoci(), m_library->Loci()->LabDyes());
    m_status->setText(text);
    m_status->setToolTip(text);
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
