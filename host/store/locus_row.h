#pragma once

#include "contracts/locus_fields.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace Tamrivo
{

/// A row of the table Locus, as statements are bound to it. It stays where it is while a statement
/// is bound.
struct LocusRow
{
    LocusRow()
    {
        for (const LocusField& field : LocusFieldTable)
        {
            if (const auto* member = std::get_if<bool LocusFields::*>(&field.Member))
                Switches.push_back({*member, 0});
        }
    }

    LocusRow(const LocusRow&) = delete;
    LocusRow& operator=(const LocusRow&) = delete;

    std::int32_t LocusID = 0;
    std::int32_t Revision = 0;
    std::string LocusTag;
    std::string TagKey;
    std::int32_t IsCurrent = 0;
    long long DateLastModified = 0; ///< Seconds since 1970, UTC.
    LocusFields Fields;

    /// A truth value of `Fields`, which the database keeps as 0 or 1.
    struct Switch
    {
        bool LocusFields::*Member;
        std::int32_t Value;
    };
    std::vector<Switch> Switches;

    /// After a read.
    void SwitchesToFields()
    {
        for (const Switch& row : Switches)
            Fields.*row.Member = row.Value != 0;
    }
    /// Before a write.
    void FieldsToSwitches()
    {
        for (Switch& row : Switches)
            row.Value = Fields.*row.Member ? 1 : 0;
    }

    /// Calls `visit(name, value)` for each column, in one order always.
    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("LocusID", LocusID);
        visit("Revision", Revision);
        visit("LocusTag", LocusTag);
        visit("TagKey", TagKey);
        visit("IsCurrent", IsCurrent);
        visit("DateLastModified", DateLastModified);

        auto nextSwitch = Switches.begin();
        const auto visitField = [&](std::string_view name, auto member) {
            if constexpr (std::is_same_v<decltype(member), bool LocusFields::*>)
                visit(name, (nextSwitch++)->Value);
            else
                visit(name, Fields.*member);
        };
        for (const LocusField& field : LocusFieldTable)
            std::visit([&](auto member) { visitField(field.Name, member); }, field.Member);
    }
};

} // namespace Tamrivo
