#include "desktop/window/search_commands.h"

#include "core/error.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/workbench.h"
#include "host/library/search.h"

namespace Tamrivo
{

void SearchCommands::Find()
{
    m_workbench.TurnToTable();
    m_workbench.Loci().FocusSearch();
}

void SearchCommands::Keep()
{
    const QString search = m_workbench.Loci().SearchText().simplified();
    const SearchResult found = Search(*m_workbench.Loci().Loci(), FromQString(search));
    if (search.isEmpty() || !found.Errors.empty())
        throw Failure(ErrorNumber::InvalidArgument, "Search",
                      search.isEmpty() ? "There is no search to keep: type one first"
                                       : "The search is not kept: " + found.Errors.front());
    QStringList searches = KeptSearches();
    searches.removeAll(search);
    RememberSearches(searches << search);
    m_workbench.ShowGroups();
    m_workbench.Groups().Choose({LocusGroup::Kind::Search, search});
    m_workbench.Tell("Kept the search as a group.");
}

void SearchCommands::Forget()
{
    QStringList searches = KeptSearches();
    const LocusGroup chosen = m_workbench.Groups().Chosen();
    const bool isSearch = chosen.What == LocusGroup::Kind::Search;
    searches.removeAll(isSearch ? chosen.Name : m_workbench.Loci().SearchText().simplified());
    RememberSearches(searches);
    m_workbench.ShowGroups();
}

} // namespace Tamrivo
