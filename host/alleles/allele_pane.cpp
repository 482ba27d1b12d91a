#include "host/alleles/allele_pane.h"

#include "controls/user.h"
#include "core/text.h"
#include "host/alleles/allele_rows.h"
#include "host/alleles/new_allele.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace Tamrivo
{

namespace
{

void SetCell(AlleleFields& fields, std::int32_t row, const AlleleColumn& column,
             std::string_view text)
{
    if (column.SetText == nullptr)
        throw User::Refusal(std::string(column.Title) + " follows from name and size");
    try
    {
        column.SetText(fields, text);
    }
    catch (const User::Refusal& refusal)
    {
        throw User::Refusal("Row " + std::to_string(row) + ", " + std::string(column.Title) + ": " +
                            refusal.what());
    }
}

} // namespace

void AllelePane::SetLocus(const std::shared_ptr<Locus>& oLocus)
{
    AlleleRows rows = oLocus ? RowsOf(*oLocus) : AlleleRows();
    m_locus = oLocus;
    m_held = {};
    m_done.clear();
    m_undone.clear();
    Show(std::move(rows));
    Changed();
    AnnounceValidity();
}

void AllelePane::RefreshAlleles()
{
    if (!m_locus)
        return;
    AlleleRows rows = RowsOf(*m_locus);
    Change change{.ToRemove = Without(rows, m_rows), .ToAdd = Without(m_rows, rows)};
    if (!change.ToRemove.empty() || !change.ToAdd.empty())
    {
        m_done.push_back(change);
        m_undone.clear();
    }
    m_held = {};
    Show(std::move(rows));
    Announce(change);
}

std::int32_t AllelePane::AddRow(std::optional<std::int32_t> after)
{
    RequireLocus();
    const std::shared_ptr<Allele> before = after            ? RowAt(*after)
                                           : m_rows.empty() ? nullptr
                                                            : m_rows.back();
    LeaveRow();
    const std::ptrdiff_t place = before ? NumberOf(*before) : 0;
    std::optional<double> nextSize;
    if (place < std::ssize(m_rows))
        nextSize = m_rows[static_cast<std::size_t>(place)]->AlleleReal1;
    const auto allele =
        NewAllele(before ? FieldsAfter(*before, nextSize, *m_locus) : FirstFields(*m_locus));
    Do({.ToAdd = {allele}}, {allele, place});
    return NumberOf(*allele);
}

AlleleFields AllelePane::FieldsOfNew(double size) const
{
    RequireLocus();
    return FieldsOfSize(size, m_rows, *m_locus);
}

std::int32_t AllelePane::AddRowOfSize(double size)
{
    const auto allele = NewAllele(FieldsOfNew(size));
    Do({.ToAdd = {allele}});
    return NumberOf(*allele);
}

void AllelePane::RemoveRows(const std::vector<std::int32_t>& rows)
{
    Change change;
    for (const std::int32_t row : std::set<std::int32_t>(rows.begin(), rows.end()))
        change.ToRemove.push_back(RowAt(row));
    if (!change.ToRemove.empty())
        Do(std::move(change));
}

void AllelePane::EditCell(std::int32_t row, const AlleleColumn& column, std::string_view text)
{
    const std::shared_ptr<Allele> allele = RowAt(row);
    AlleleFields fields = *allele;
    SetCell(fields, row, column, text);
    if (fields == *allele)
        return;
    Derive(fields, *m_locus);
    if (m_held.Row != allele)
        LeaveRow();
    Do({.Edits = {{allele, fields}}}, {allele, NumberOf(*allele) - 1});
}

void AllelePane::LeaveRow()
{
    if (!m_held.Row)
        return;
    m_held = {};
    AlleleRows rows = m_rows;
    SortBySize(rows);
    if (rows == m_rows)
        return;
    Arrange(std::move(rows));
    Changed();
}

void AllelePane::PasteCells(std::int32_t row, std::size_t column,
                            const std::vector<std::vector<std::string>>& cells)
{
    RequireLocus();
    Change change;
    std::shared_ptr<Allele> last = m_rows.empty() ? nullptr : m_rows.back();
    const std::size_t room = std::size(AlleleColumns) - column;
    for (const auto& line : cells)
    {
        if (line.size() > room)
            throw User::Refusal("A line of " + std::to_string(line.size()) +
                                " cells doesn't fit from the column \"" +
                                std::string(AlleleColumns[column].Title) +
                                "\" on; nothing was pasted. Start further left");
        const bool isNew = row > std::ssize(m_rows);
        AlleleFields fields = !isNew ? AlleleFields(*RowAt(row))
                              : last ? FieldsAfter(*last, {}, *m_locus)
                                     : FirstFields(*m_locus);
        const AlleleFields before = fields;
        for (std::size_t i = 0; i < line.size(); ++i)
        {
            if (AlleleColumns[column + i].SetText != nullptr)
                SetCell(fields, row, AlleleColumns[column + i], line[i]);
        }
        if (isNew || fields != before)
            Derive(fields, *m_locus);
        if (isNew)
            change.ToAdd.push_back(last = NewAllele(fields));
        else if (fields != before)
            change.Edits.push_back({RowAt(row), fields});
        ++row;
    }
    if (!change.ToAdd.empty() || !change.Edits.empty())
        Do(std::move(change));
}

void AllelePane::ReplaceRows(const std::vector<AlleleFields>& alleles)
{
    RequireLocus();
    Change change;
    AlleleRows rest = m_rows;
    for (const AlleleFields& fields : alleles)
    {
        const auto same = std::ranges::find_if(rest, [&](const std::shared_ptr<Allele>& row) {
            return EqualNoCase(Trim(row->AlleleText1), Trim(fields.AlleleText1));
        });
        if (same == rest.end())
        {
            change.ToAdd.push_back(NewAllele(fields));
            continue;
        }
        if (static_cast<const AlleleFields&>(**same) != fields)
            change.Edits.push_back({*same, fields});
        rest.erase(same);
    }
    change.ToRemove = std::move(rest);
    if (!change.ToAdd.empty() || !change.Edits.empty() || !change.ToRemove.empty())
        Do(std::move(change));
}

void AllelePane::Undo()
{
    if (!CanUndo())
        throw User::Refusal("The allele list has no change to undo");
    Step(m_done, m_undone);
}

void AllelePane::Redo()
{
    if (!CanRedo())
        throw User::Refusal("The allele list has no change to make again");
    Step(m_undone, m_done);
}

const std::shared_ptr<Allele>& AllelePane::RowAt(std::int32_t row) const
{
    RequireLocus();
    if (row < 1 || row > std::ssize(m_rows))
        throw User::Refusal("The allele list has no row " + std::to_string(row) + "; it has " +
                            std::to_string(m_rows.size()));
    return m_rows[static_cast<std::size_t>(row - 1)];
}

std::int32_t AllelePane::NumberOf(const Allele& allele) const
{
    const auto found = std::ranges::find(m_rows, &allele, &std::shared_ptr<Allele>::get);
    return static_cast<std::int32_t>(found - m_rows.begin()) + 1;
}

std::shared_ptr<Allele> AllelePane::NewAllele(const AlleleFields& fields) const
{
    auto allele = CreateObject<Allele>(m_objects.Manager(), "Allele");
    allele->SetAlleleOwner(m_locus);
    static_cast<AlleleFields&>(*allele) = fields;
    return allele;
}

void AllelePane::RequireLocus() const
{
    if (!m_locus)
        throw User::Refusal("The allele list shows no locus");
}

void AllelePane::Do(Change change, HeldRow held)
{
    m_held = std::move(held);
    Make(change);
    m_undone.clear();
    m_done.push_back(change);
    Announce(change);
}

void AllelePane::Step(std::vector<Change>& from, std::vector<Change>& to)
{
    m_held = {};
    Change change = from.back();
    Make(change);
    from.pop_back();
    to.push_back(change);
    Announce(change);
}

void AllelePane::Make(Change& change)
{
    AlleleRows rows = Without(RowsOf(*m_locus), change.ToRemove);
    std::ranges::copy(change.ToAdd, std::back_inserter(rows));
    std::swap(change.ToRemove, change.ToAdd);
    for (Edit& edit : change.Edits)
        std::swap(static_cast<AlleleFields&>(*edit.Row), edit.Fields);
    if (m_held.Row)
        std::erase(rows, m_held.Row);
    SortBySize(rows);
    if (m_held.Row)
        rows.insert(rows.begin() + std::min(m_held.Place, std::ssize(rows)), m_held.Row);
    Arrange(std::move(rows));
}

void AllelePane::Arrange(AlleleRows rows)
{
    Rebuild(m_locus->Alleles(), rows);
    Show(std::move(rows));
}

void AllelePane::Announce(const Change& change)
{
    Changed();
    for (const Edit& edit : change.Edits)
        AlleleEdited(*edit.Row);
    if (!change.ToRemove.empty() || !change.ToAdd.empty())
        ListChanged();
    AnnounceValidity();
}

void AllelePane::Show(AlleleRows rows)
{
    m_rows = std::move(rows);
    m_problems = AlleleProblems(m_rows);
    m_warnings = AlleleWarnings(m_rows);
}

void AllelePane::AnnounceValidity()
{
    bool isValid = IsValid();
    if (isValid == m_announcedValid)
        return;
    m_announcedValid = isValid;
    ValidityChanged(isValid);
}

} // namespace Tamrivo
