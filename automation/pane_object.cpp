#include "automation/pane_object.h"

#include "core/text.h"

namespace Tamrivo::Automation
{

namespace
{

const AlleleColumn& ColumnNamed(const std::string& name)
{
    std::string names;
    for (const AlleleColumn& column : AlleleColumns)
    {
        if (EqualNoCase(column.Name, name))
            return column;
        names += (names.empty() ? "" : ", ") + std::string(column.Name);
    }
    throw User::Refusal("The pane has no column \"" + name + "\"; it has " + names);
}

List TextsOf(const std::vector<AlleleProblem>& problems)
{
    List texts;
    for (const AlleleProblem& problem : problems)
        texts.emplace_back("Row " + std::to_string(problem.Row) + ": " + problem.Reason);
    return texts;
}

} // namespace

const Class& PaneObject::ClassOf() const
{
    return PaneClass;
}

Value PaneObject::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, PaneRows, position, arguments);
}

const AllelePane& PaneObject::Pane() const
{
    return User::AllelesOf(m_page->PaneControl());
}

const User::AllelePaneControl& PaneObject::ForPerson() const
{
    m_page->RequirePerson();
    return m_page->PaneControl();
}

Value PaneObject::Columns(const Member&, const List&)
{
    List names;
    for (const AlleleColumn& column : AlleleColumns)
        names.emplace_back(std::string(column.Name));
    return names;
}

Value PaneObject::Count(const Member&, const List&)
{
    return static_cast<std::int32_t>(Pane().Rows().size());
}

Value PaneObject::RowOf(const Member&, const List& arguments)
{
    const AlleleRows& rows = Pane().Rows();
    const auto found = std::ranges::find_if(rows, [&](const auto& allele) {
        return EqualNoCase(Trim(allele->AlleleText1), Trim(Text(arguments, 0)));
    });
    return found == rows.end() ? 0 : static_cast<std::int32_t>(found - rows.begin()) + 1;
}

Value PaneObject::Cell(const Member&, const List& arguments)
{
    const AlleleRows& rows = Pane().Rows();
    const std::int32_t row = Long(arguments, 0);
    if (row < 1 || row > std::ssize(rows))
        throw User::Refusal("The pane has no row " + std::to_string(row) + "; it has " +
                            std::to_string(rows.size()));
    return ColumnNamed(Text(arguments, 1)).Text(*rows[static_cast<std::size_t>(row) - 1]);
}

Value PaneObject::Problems(const Member&, const List&)
{
    return TextsOf(Pane().Problems());
}

Value PaneObject::Warnings(const Member&, const List&)
{
    return TextsOf(Pane().Warnings());
}

Value PaneObject::Add(const Member&, const List& arguments)
{
    const std::int32_t after = Long(arguments, 0);
    return User::AddAllele(ForPerson(), after == 0 ? std::nullopt : std::optional(after));
}

Value PaneObject::Edit(const Member&, const List& arguments)
{
    User::EditAllele(ForPerson(), Long(arguments, 0), ColumnNamed(Text(arguments, 1)),
                     Text(arguments, 2));
    return {};
}

Value PaneObject::Leave(const Member&, const List&)
{
    User::LeaveAllele(ForPerson());
    return {};
}

Value PaneObject::Remove(const Member&, const List& arguments)
{
    User::RemoveAllele(ForPerson(), Long(arguments, 0));
    return {};
}

Value PaneObject::Undo(const Member&, const List&)
{
    User::UndoAlleles(ForPerson());
    return {};
}

Value PaneObject::Redo(const Member&, const List&)
{
    User::RedoAlleles(ForPerson());
    return {};
}

} // namespace Tamrivo::Automation
