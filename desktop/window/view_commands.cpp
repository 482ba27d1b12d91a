#include "core/error.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/front_end/desktop_front_end.h"
#include "desktop/front_end/message_boxes.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/reports/reports_window.h"
#include "desktop/window/main_window.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/store_session.h"
#include "host/library/search.h"

#include <QApplication>
#include <QMessageBox>
#include <QStackedWidget>

#include <algorithm>

namespace Tamrivo
{

void MainWindow::ChooseGroup(const LocusGroup& group)
{
    const bool isParameter = group.What == LocusGroup::Kind::Parameter;
    if (isParameter && !ChooseParameter(FromQString(group.Name)))
        return m_groups->Choose({});
    m_pages->setCurrentWidget(m_library);
    m_library->ShowGroup(group);
    if (isParameter)
        m_library->Preview().setCurrentIndex(LocusPreview::Lanes);
    ShowState();
}

void MainWindow::ShowGroups()
{
    m_groups->Show(GroupsOf(*m_library->Loci(), KeptSearches()), *m_library->Loci());
    if (m_view != nullptr)
        ShowSelection();
    m_library->ShowGroup(m_groups->Chosen());
}

void MainWindow::FindLoci()
{
    m_pages->setCurrentWidget(m_library);
    ShowState();
    m_library->FocusSearch();
}

void MainWindow::KeepSearch()
{
    const QString search = m_library->SearchText().simplified();
    const SearchResult found = Search(*m_library->Loci(), FromQString(search));
    if (search.isEmpty() || !found.Errors.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Search",
                      search.isEmpty() ? "There is no search to keep: type one first"
                                       : "The search is not kept: " + found.Errors.front());
    QStringList searches = KeptSearches();
    searches.removeAll(search);
    RememberSearches(searches << search);
    ShowGroups();
    m_groups->Choose({LocusGroup::Kind::Search, search});
    Tell("Kept the search as a group.");
}

void MainWindow::ForgetSearch()
{
    QStringList searches = KeptSearches();
    const LocusGroup chosen = m_groups->Chosen();
    const bool isSearch = chosen.What == LocusGroup::Kind::Search;
    searches.removeAll(isSearch ? chosen.Name : m_library->SearchText().simplified());
    RememberSearches(searches);
    ShowGroups();
}

ReportsWindow& MainWindow::Reports()
{
    if (!m_reports)
        m_reports = std::make_unique<ReportsWindow>(Host(), m_frontEnd.UserActions());
    m_reports->show();
    m_reports->raise();
    m_reports->activateWindow();
    return *m_reports;
}

void MainWindow::ShowReport()
{
    Reports().ShowAll();
}

void MainWindow::ShowParameterReport()
{
    Reports().ShowParameter(m_view->Name(), m_view->SelectedTags());
}

void MainWindow::SavePicture()
{
    if (IsSelectorShown())
        return m_view->Picture().SavePictureAs();
    m_library->Preview().setCurrentIndex(LocusPreview::Lanes);
    m_library->Preview().Picture().SavePictureAs();
}

void MainWindow::ChangeText(int steps)
{
    constexpr int most = 12;
    constexpr int least = -3;
    const int before = TextSteps();
    const int after = std::clamp(before + steps, least, most);
    RememberTextSteps(after);
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() + after - before);
    QApplication::setFont(font);
}

void MainWindow::NormalText()
{
    ChangeText(-TextSteps());
}

void MainWindow::ShowLog()
{
    OpenLog(this);
}

void MainWindow::ShowAbout()
{
    QMessageBox::about(this, "About Tamrivo",
                       "<h3>Tamrivo " TAMRIVO_VERSION "</h3>"
                       "<p>Defines STR loci and chooses those that an analysis uses.</p>");
}

} // namespace Tamrivo
