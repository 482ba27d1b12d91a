#pragma once

#include "automation/page_object.h"
#include "host/alleles/pane_user.h"

namespace Tamrivo::Automation
{

/// The allele pane of a page as clients see it. Rows are counted from 1 and kept by size; what is
/// changed goes through the pane, as a person's edits do.
class PaneObject final : public TableObject
{
public:
    /// @param page has an allele pane
    explicit PaneObject(std::shared_ptr<PageObject> page) : m_page(std::move(page)) {}

    const Class& ClassOf() const override;

    Value Columns(const Member&, const List&);
    Value Count(const Member&, const List&);
    Value RowOf(const Member&, const List& arguments);
    Value Cell(const Member&, const List& arguments);
    Value Problems(const Member&, const List&);
    Value Warnings(const Member&, const List&);
    Value Add(const Member&, const List& arguments);
    Value Edit(const Member&, const List& arguments);
    Value Leave(const Member&, const List&);
    Value Remove(const Member&, const List& arguments);
    Value Undo(const Member&, const List&);
    Value Redo(const Member&, const List&);

private:
    Value Do(std::size_t position, const List& arguments) override;

    const AllelePane& Pane() const;
    /// Raises `User::Refusal` where no person could use the pane at present.
    const User::AllelePaneControl& ForPerson() const;

    std::shared_ptr<PageObject> m_page;
};

inline constexpr ParameterType RowParameter{"row", Type::Long};
inline constexpr ParameterType ColumnParameter{"column", Type::Text};

inline constexpr std::array PaneRows{
    Row<PaneObject>{{"Columns", Access::Get, Type::Values, {}}, &PaneObject::Columns},
    Row<PaneObject>{{"Count", Access::Get, Type::Long, {}}, &PaneObject::Count},
    Row<PaneObject>{{"RowOf", Access::Method, Type::Long, {{{"name", Type::Text}}}},
                    &PaneObject::RowOf},
    Row<PaneObject>{{"Cell", Access::Method, Type::Text, {{RowParameter, ColumnParameter}}},
                    &PaneObject::Cell},
    Row<PaneObject>{{"Problems", Access::Get, Type::Values, {}}, &PaneObject::Problems},
    Row<PaneObject>{{"Warnings", Access::Get, Type::Values, {}}, &PaneObject::Warnings},
    Row<PaneObject>{{"Add", Access::Method, Type::Long, {{{"after", Type::Long}}}},
                    &PaneObject::Add},
    Row<PaneObject>{{"Edit",
                     Access::Method,
                     Type::None,
                     {{RowParameter, ColumnParameter, {"text", Type::Text}}}},
                    &PaneObject::Edit},
    Row<PaneObject>{{"Leave", Access::Method, Type::None, {}}, &PaneObject::Leave},
    Row<PaneObject>{{"Remove", Access::Method, Type::None, {{RowParameter}}}, &PaneObject::Remove},
    Row<PaneObject>{{"Undo", Access::Method, Type::None, {}}, &PaneObject::Undo},
    Row<PaneObject>{{"Redo", Access::Method, Type::None, {}}, &PaneObject::Redo},
};
inline constexpr auto PaneMembers = MembersOf(PaneRows);
inline constexpr Class PaneClass{"AllelePane", "E7C4A1B9-3D60-4F82-8B5A-9F1D2C3B4A0B",
                                 "The alleles of a page's locus, to be read and edited.",
                                 PaneMembers};

} // namespace Tamrivo::Automation
