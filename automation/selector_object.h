#pragma once

#include "automation/form_object.h"
#include "automation/named_objects.h"
#include "host/grid/grid_user.h"
#include "selector/str_locus_tag_selector.h"

namespace Tamrivo::Automation
{

/// The selector as clients see it. A menu that has popped up waits for Pick or Dismiss; until then
/// only reading is possible.
class SelectorObject final : public FormObject
{
public:
    const Class& ClassOf() const override;

    Value Initialize(const Member&, const List& arguments);
    Value SelectedLocusTags(const Member&, const List&);
    Value NumberOfSelectedLocusTags(const Member&, const List&);
    Value AllLocusTags(const Member&, const List&);
    Value Save(const Member&, const List&);
    Value Enabled(const Member&, const List&);
    Value PutEnabled(const Member&, const List& arguments);
    Value Cell(const Member&, const List& arguments);
    Value CellClick(const Member&, const List& arguments);
    Value CellToggle(const Member&, const List& arguments);
    Value CellExtend(const Member&, const List& arguments);
    Value CellDouble(const Member&, const List& arguments);
    Value CellRight(const Member&, const List& arguments);
    Value Pick(const Member&, const List& arguments);
    Value Dismiss(const Member&, const List&);

private:
    Value Do(std::size_t position, const List& arguments) override;
    bool HasForm() const override { return m_selector != nullptr; }
    UserControl& MakeForm(NamedHost& host) override;
    void RequirePerson() override;

    /// The selector once it is initialized, else a `User::Refusal`.
    STRLocusTagSelector& Filled();
    User::GridControl& GridNamed(const std::string& name);
    User::GridControl& GridForPerson(const List& arguments);

    std::unique_ptr<STRLocusTagSelector> m_selector;
    std::shared_ptr<NamedParameter> m_parameter;
    Menu* m_openMenu = nullptr;
    Connection m_menus;
};

inline constexpr ParameterType GridParameter{"grid", Type::Text};
inline constexpr std::array<ParameterType, 6> CellParameters{
    {GridParameter, {"row", Type::Long}, {"column", Type::Long}}};

inline constexpr std::array SelectorRows{
    Row<SelectorObject>{{"Initialize", Access::Method, Type::None, {{{"parameter", Type::Object}}}},
                        &SelectorObject::Initialize},
    Row<SelectorObject>{{"SelectedLocusTags", Access::Get, Type::Values, {}},
                        &SelectorObject::SelectedLocusTags},
    Row<SelectorObject>{{"NumberOfSelectedLocusTags", Access::Get, Type::Long, {}},
                        &SelectorObject::NumberOfSelectedLocusTags},
    Row<SelectorObject>{{"AllLocusTags", Access::Get, Type::Values, {}},
                        &SelectorObject::AllLocusTags},
    Row<SelectorObject>{{"Save", Access::Method, Type::None, {}}, &SelectorObject::Save},
    Row<SelectorObject>{{"Enabled", Access::Get, Type::Boolean, {}}, &SelectorObject::Enabled},
    Row<SelectorObject>{{"Enabled", Access::Put, Type::None, {{{"value", Type::Boolean}}}},
                        &SelectorObject::PutEnabled},
    Row<SelectorObject>{{"Cell", Access::Method, Type::Text, CellParameters},
                        &SelectorObject::Cell},
    Row<SelectorObject>{{"CellClick", Access::Method, Type::None, CellParameters},
                        &SelectorObject::CellClick},
    Row<SelectorObject>{{"CellToggle", Access::Method, Type::None, CellParameters},
                        &SelectorObject::CellToggle},
    Row<SelectorObject>{{"CellExtend", Access::Method, Type::None, CellParameters},
                        &SelectorObject::CellExtend},
    Row<SelectorObject>{{"CellDouble", Access::Method, Type::None, CellParameters},
                        &SelectorObject::CellDouble},
    Row<SelectorObject>{{"CellRight", Access::Method, Type::None, CellParameters},
                        &SelectorObject::CellRight},
    Row<SelectorObject>{{"Pick", Access::Method, Type::None, {{{"item", Type::Text}}}},
                        &SelectorObject::Pick},
    Row<SelectorObject>{{"Dismiss", Access::Method, Type::None, {}}, &SelectorObject::Dismiss},
};
inline constexpr auto SelectorMembers = MembersOf(FormRows, SelectorRows);
inline constexpr Class SelectorClass{"Selector", "F6A1C3D5-7E92-4A08-B4C6-8D0E2F4A6C07",
                                     "The selector of locus tags.", SelectorMembers};

} // namespace Tamrivo::Automation
