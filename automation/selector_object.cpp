#include "automation/selector_object.h"

#include "automation/conversions.h"

namespace Tamrivo::Automation
{

const Class& SelectorObject::ClassOf() const
{
    return SelectorClass;
}

Value SelectorObject::Do(std::size_t position, const List& arguments)
{
    return position < FormRows.size()
               ? DoRow<FormObject>(*this, FormRows, position, arguments)
               : DoRow(*this, SelectorRows, position - FormRows.size(), arguments);
}

UserControl& SelectorObject::MakeForm(NamedHost& host)
{
    m_selector = std::make_unique<STRLocusTagSelector>(host);
    m_menus =
        m_selector->PopupMenuRequested.Connect([this](Menu& menu, int) { m_openMenu = &menu; });
    return *m_selector;
}

STRLocusTagSelector& SelectorObject::Filled()
{
    Form();
    if (!m_parameter)
        throw User::Refusal("The selector isn't filled; call Initialize first");
    return *m_selector;
}

void SelectorObject::RequirePerson()
{
    Filled();
    if (m_openMenu)
        throw User::Refusal("The menu \"" + m_openMenu->Caption() +
                            "\" is open; Pick one of its items or Dismiss it");
}

User::GridControl& SelectorObject::GridNamed(const std::string& name)
{
    auto* const grid = dynamic_cast<User::GridControl*>(Form().Find(name));
    if (!grid)
        throw User::Refusal(std::string(Form().Name()) + " has no grid \"" + name +
                            "\"; it has gridAvailable and gridSelected");
    return *grid;
}

User::GridControl& SelectorObject::GridForPerson(const List& arguments)
{
    RequirePerson();
    return GridNamed(Text(arguments, 0));
}

Value SelectorObject::Initialize(const Member&, const List& arguments)
{
    Form();
    auto parameter = std::make_shared<NamedParameter>(Argument<ObjectPointer>(arguments, 0),
                                                      *HostOfForm().NewObjectManager());
    m_selector->Initialize(parameter);
    m_parameter = std::move(parameter);
    m_openMenu = nullptr;
    return {};
}

Value SelectorObject::SelectedLocusTags(const Member&, const List&)
{
    List loci;
    for (const auto& locus : Filled().SelectedLocusTags())
        loci.emplace_back(ToObject(locus));
    return loci;
}

Value SelectorObject::NumberOfSelectedLocusTags(const Member&, const List&)
{
    return Filled().NumberOfSelectedLocusTags();
}

Value SelectorObject::AllLocusTags(const Member&, const List&)
{
    List loci;
    for (const auto& locus : Filled().AllLocusTags()->Members())
        loci.emplace_back(ToObject(locus));
    return loci;
}

Value SelectorObject::Save(const Member&, const List&)
{
    Filled().Save(m_parameter->FragAnalysisParam());
    m_parameter->WriteBack();
    return {};
}

Value SelectorObject::Enabled(const Member&, const List&)
{
    Form();
    return m_selector->Enabled();
}

Value SelectorObject::PutEnabled(const Member&, const List& arguments)
{
    Form();
    m_selector->SetEnabled(Argument<bool>(arguments, 0));
    return {};
}

Value SelectorObject::Cell(const Member&, const List& arguments)
{
    const Gridocx& grid = GridNamed(Text(arguments, 0)).Object();
    const double row = Long(arguments, 1);
    const double column = Long(arguments, 2);
    return row == 0 ? grid.GetValueRowCol(row, column) : grid.GetTextRowCol(row, column);
}

Value SelectorObject::CellClick(const Member&, const List& arguments)
{
    User::Click(GridForPerson(arguments), Long(arguments, 1), Long(arguments, 2));
    return {};
}

Value SelectorObject::CellToggle(const Member&, const List& arguments)
{
    User::Toggle(GridForPerson(arguments), Long(arguments, 1));
    return {};
}

Value SelectorObject::CellExtend(const Member&, const List& arguments)
{
    User::ExtendTo(GridForPerson(arguments), Long(arguments, 1));
    return {};
}

Value SelectorObject::CellDouble(const Member&, const List& arguments)
{
    User::DoubleClick(GridForPerson(arguments), Long(arguments, 1), Long(arguments, 2));
    return {};
}

Value SelectorObject::CellRight(const Member&, const List& arguments)
{
    User::RightClick(GridForPerson(arguments), Long(arguments, 1), Long(arguments, 2));
    return {};
}

Value SelectorObject::Pick(const Member&, const List& arguments)
{
    if (!m_openMenu)
        throw User::Refusal("No menu is open; CellRight opens one");
    for (Control* child : m_openMenu->Children())
    {
        auto* const item = dynamic_cast<MenuItem*>(child);
        if (!item || item->Name() != Text(arguments, 0))
            continue;
        User::RequireReach(*item);
        m_openMenu = nullptr;
        User::Click(*item);
        return {};
    }
    throw User::Refusal("The menu \"" + m_openMenu->Caption() + "\" has no item \"" +
                        Text(arguments, 0) + "\"");
}

Value SelectorObject::Dismiss(const Member&, const List&)
{
    if (!m_openMenu)
        throw User::Refusal("No menu is open; CellRight opens one");
    m_openMenu = nullptr;
    return {};
}

} // namespace Tamrivo::Automation
