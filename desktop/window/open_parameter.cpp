#include "desktop/window/open_parameter.h"

#include "core/text.h"
#include "desktop/common/actions.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/library/group_tree.h"
#include "desktop/library/library_view.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"
#include "desktop/window/workbench_pages.h"
#include "host/framework/host_application.h"

#include <unordered_set>
#include <utility>

namespace Tamrivo
{

OpenParameter::OpenParameter(Workbench& bench, WorkbenchPages& pages)
    : m_bench(bench), m_pages(pages)
{}

bool OpenParameter::MayLeave()
{
    return m_view == nullptr || m_view->MayLeave();
}

bool OpenParameter::Open(const std::string& name)
{
    const auto isOpen = [&] { return m_view != nullptr && EqualNoCase(m_view->Name(), name); };
    if (!isOpen() && MayLeave())
        Replace(name);
    return isOpen();
}

void OpenParameter::OpenLast()
{
    m_bench.UserActions().Run([this] {
        HostApplication& host = m_bench.Host();
        const std::string last = FromQString(LastParameter(ToQString(host.Store().Name())));
        if (!last.empty() && host.Parameters().Find(last))
            Replace(last);
    });
}

void OpenParameter::Replace(const std::string& name)
{
    ParameterView* view = nullptr;
    const bool isOpen = m_bench.UserActions().Run(
        [&] { view = new ParameterView(m_bench.Host(), m_bench.UserActions(), name, &m_pages); });
    if (!isOpen)
        return;
    Close();
    m_view = view;
    connect(view, &ParameterView::Changed, this, &OpenParameter::ShowSelection);
    m_pages.Add(*view);
    RememberParameter(ToQString(m_bench.Host().Store().Name()), ToQString(name));
    ShowSelection();
}

void OpenParameter::Close()
{
    if (m_view == nullptr)
        return;
    if (m_pages.IsShown(*m_view))
        m_pages.TurnToTable();
    delete std::exchange(m_view, nullptr);
    m_bench.Groups().MarkOpen({}, false, 0);
    m_bench.Loci().SetSelected(std::nullopt);
    emit Changed();
}

void OpenParameter::AddTo(const std::string& name, const std::vector<std::string>& tags)
{
    if (!Open(name))
        return;
    m_view->Select(tags, true);
    m_bench.Tell("Added to " + ToQString(name) + ". Save the parameter to keep it.");
}

void OpenParameter::Reload()
{
    if (m_view != nullptr)
        m_view->Reload();
}

void OpenParameter::ShowSelection()
{
    if (m_view == nullptr)
        return;
    std::unordered_set<std::int32_t> selected;
    for (const auto& locus : m_view->SelectedLoci())
        selected.insert(locus->LocusID());
    m_bench.Groups().MarkOpen(ToQString(m_view->Name()), m_view->IsChanged(), selected.size());
    m_bench.Loci().SetSelected(std::move(selected));
    emit Changed();
}

} // namespace Tamrivo
