#include "desktop/front_end/page_history.h"

#include "controls/user_control.h"

#include <utility>

namespace Tamrivo
{

namespace
{

User::AllelePaneControl* PaneOf(const UserControl& page)
{
    for (Control* control : page.Controls())
    {
        if (auto* pane = dynamic_cast<User::AllelePaneControl*>(control))
            return pane;
    }
    return nullptr;
}

/// The position of the one field that differs; none when it is another number of them.
std::optional<std::size_t> OnlyDifference(const PageFields& left, const PageFields& right)
{
    std::optional<std::size_t> only;
    for (std::size_t at = 0; at < left.size(); ++at)
    {
        if (left[at] == right[at])
            continue;
        if (only)
            return std::nullopt;
        only = at;
    }
    return only;
}

} // namespace

PageHistory::PageHistory(UserControl& page) : m_page(page), m_fields(FieldsOf(page))
{
    if (const auto* pane = PaneOf(page))
    {
        m_pane = &User::AllelesOf(*pane);
        m_changes.On(User::AllelesOf(*pane).Changed, [this] { Await(); });
    }
    m_alleles = AlleleSteps();
    m_changes.On(page.ControlChanged, [this](Control&) { Await(); });
    // One action of the person may change several fields, one after another.
    m_changed.setSingleShot(true);
    m_changed.setInterval(0);
    connect(&m_changed, &QTimer::timeout, this, [this] { Note(); });
}

bool PageHistory::CanUndo() const
{
    return !m_done.empty() || m_changed.isActive();
}

void PageHistory::Await()
{
    if (m_changed.isActive())
        return;
    m_changed.start();
    emit Changed();
}

std::size_t PageHistory::AlleleSteps() const
{
    return m_pane == nullptr ? 0 : m_pane->Steps();
}

bool PageHistory::Extends(const PageFields& fields) const
{
    if (m_hasEnded || m_done.empty() || m_done.back().IsOfAlleles)
        return false;
    const auto field = OnlyDifference(m_fields, fields);
    return field && field == OnlyDifference(m_done.back().Before, m_done.back().After);
}

void PageHistory::Note()
{
    PageFields fields = FieldsOf(m_page);
    const std::size_t alleles = AlleleSteps();
    if (alleles < m_alleles)
        ForgetAlleles(m_alleles - alleles);
    const std::size_t added = alleles > m_alleles ? alleles - m_alleles : 0;
    m_alleles = alleles;
    if (added > 0 || fields != m_fields)
    {
        for (std::size_t at = 1; at < added; ++at)
            m_done.push_back({m_fields, m_fields, true});
        if (added == 0 && Extends(fields))
            m_done.back().After = fields;
        else
            m_done.push_back({m_fields, fields, added > 0});
        if (!m_done.back().IsOfAlleles && m_done.back().Before == m_done.back().After)
            m_done.pop_back();
        m_fields = std::move(fields);
        m_undone.clear();
        m_hasEnded = false;
    }
    emit Changed();
}

void PageHistory::ForgetAlleles(std::size_t steps)
{
    for (auto step = m_done.rbegin(); step != m_done.rend() && steps > 0; ++step)
    {
        if (std::exchange(step->IsOfAlleles, false))
            --steps;
    }
    std::erase_if(m_done,
                  [](const Step& step) { return !step.IsOfAlleles && step.Before == step.After; });
    m_undone.clear();
}

void PageHistory::EndStep()
{
    if (m_changed.isActive())
    {
        m_changed.stop();
        Note();
    }
    m_hasEnded = true;
}

Control* PageHistory::Undo()
{
    return Go(m_done, m_undone, &Step::Before, User::UndoAlleles);
}

Control* PageHistory::Redo()
{
    return Go(m_undone, m_done, &Step::After, User::RedoAlleles);
}

Control* PageHistory::Go(std::vector<Step>& from, std::vector<Step>& to, PageFields Step::*fields,
                         void (*stepAlleles)(const User::AllelePaneControl& pane))
{
    EndStep();
    if (from.empty())
        return nullptr;
    const Step step = from.back();
    if (step.IsOfAlleles)
        stepAlleles(*PaneOf(m_page));
    Control* changed = Restore(m_page, step.*fields);
    from.pop_back();
    to.push_back(step);
    m_fields = FieldsOf(m_page);
    m_alleles = AlleleSteps();
    emit Changed();
    return changed;
}

} // namespace Tamrivo
