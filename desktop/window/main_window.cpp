#include "desktop/window/main_window.h"

#include "desktop/common/actions.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/window/given_needs.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/status_line.h"
#include "desktop/window/workbench.h"
#include "host/framework/host_application.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

#include <utility>

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

/// Marks the theme that is in use among the commands that choose one.
void MarkTheme(const Commands& commands, QObject* window)
{
    const std::pair<CommandProcedure, Theme> themes[] = {
        {Do<&ViewCommands::UseDesktopTheme>, Theme::Desktop},
        {Do<&ViewCommands::UseLightTheme>, Theme::Light},
        {Do<&ViewCommands::UseDarkTheme>, Theme::Dark},
    };
    auto* choice = new QActionGroup(window);
    for (const auto& [procedure, theme] : themes)
    {
        QAction* command = choice->addAction(&commands[procedure]);
        command->setCheckable(true);
        command->setChecked(ChosenTheme() == theme);
    }
}

} // namespace

MainWindow::MainWindow(DesktopFrontEnd& frontEnd)
    : m_bench(new Workbench(frontEnd, *this)),
      m_store(*m_bench),
      m_panelFiles(*m_bench),
      m_search(*m_bench),
      m_loci(*m_bench),
      m_parameters(*m_bench),
      m_reports(*m_bench),
      m_view(*m_bench),
      m_help(*m_bench),
      m_history(*m_bench),
      m_commands(*this,
                 {m_commands, m_store, m_panelFiles, m_search, m_loci, m_parameters, m_history,
                  m_reports, m_view, m_help},
                 m_bench->UserActions())
{
    setObjectName("main");
    setAcceptDrops(true);
    setCentralWidget(m_bench);
    statusBar()->addWidget(new StatusLine(*m_bench, this), 1);
    connect(m_bench, &Workbench::Changed, this, [this] {
        m_commands.Enable(GivenBy(*m_bench));
        ShowTitle();
    });
    connect(m_bench, &Workbench::StoreClosing, this, [this] {
        m_reports.CloseWindow();
        m_history.CloseWindow();
    });
    connect(m_bench, &Workbench::Told, this, [this](const QString& news) {
        constexpr int readingTime = 10'000; // ms
        if (!news.isEmpty())
            statusBar()->showMessage(news, readingTime);
    });
    m_bench->Offer(m_commands);
    MarkTheme(m_commands, this);
    RestorePlace(*this, {fontMetrics().averageCharWidth() * 190, fontMetrics().lineSpacing() * 56});
}

MainWindow::~MainWindow()
{
    // While what it tells of its end is there.
    delete m_bench;
}

void MainWindow::ShowTitle()
{
    const ParameterView* parameter = m_bench->Parameter().View();
    QString title;
    if (parameter != nullptr)
        title += ToQString(parameter->Name()) + "[*] – ";
    if (m_bench->HasStore())
    {
        const Store& store = m_bench->Host().Store();
        title += StoreName(store.Name()) + (store.IsReadOnly() ? " (read only)" : "") + " – ";
    }
    setWindowTitle(title + "Tamrivo");
    setWindowModified(parameter != nullptr && parameter->IsChanged());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_bench->MayClose())
        return event->ignore();
    RememberPlace(*this);
    m_reports.CloseWindow();
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls() && m_commands[Do<&PanelFileCommands::Import>].isEnabled())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
    {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    event->acceptProposedAction();
    // The program that the files come from waits until the drop has ended.
    if (!paths.isEmpty())
        QTimer::singleShot(0, this, [this, paths] {
            m_bench->UserActions().Run([&] { m_panelFiles.ImportFiles(paths); });
        });
}

} // namespace Tamrivo
