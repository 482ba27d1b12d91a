#pragma once

#include "automation/memory_locus.h"
#include "automation/object.h"

#include <optional>

namespace Tamrivo::Automation
{

/// The host that stands in where a client gives none, under the names by which any host is called.
/// It keeps loci in memory, hands out copies, and notes what it is told.
class MemoryHost final : public TableObject
{
public:
    const Class& ClassOf() const override;

    Value Create(const Member&, const List& arguments);
    Value Query(const Member&, const List& arguments);
    Value Save(const Member&, const List& arguments);
    Value StartWizard(const Member&, const List& arguments);
    Value ShowMessage(const Member&, const List& arguments);
    Value ReportError(const Member&, const List& arguments);
    Value Answer(const Member&, const List& arguments);
    Value Messages(const Member&, const List&) { return m_messages; }
    Value Reports(const Member&, const List&) { return m_reports; }

private:
    Value Do(std::size_t position, const List& arguments) override;

    std::vector<std::shared_ptr<MemoryLocus>> m_loci;
    List m_messages;
    List m_reports;
    std::optional<std::int32_t> m_answer;
};

inline constexpr std::array MemoryHostRows{
    Row<MemoryHost>{{"Create", Access::Method, Type::Object, {{{"kind", Type::Text}}}},
                    &MemoryHost::Create},
    Row<MemoryHost>{
        {"Query", Access::Method, Type::Values, {{{"name", Type::Text}, {"ordering", Type::Text}}}},
        &MemoryHost::Query},
    Row<MemoryHost>{{"Save", Access::Method, Type::None, {{{"object", Type::Object}}}},
                    &MemoryHost::Save},
    Row<MemoryHost>{{"StartWizard",
                     Access::Method,
                     Type::Boolean,
                     {{{"name", Type::Text}, {"parameters", Type::Object}}}},
                    &MemoryHost::StartWizard},
    Row<MemoryHost>{{"ShowMessage",
                     Access::Method,
                     Type::Long,
                     {{{"text", Type::Text}, {"kind", Type::Long}, {"title", Type::Text}}}},
                    &MemoryHost::ShowMessage},
    Row<MemoryHost>{{"ReportError",
                     Access::Method,
                     Type::None,
                     {{{"class", Type::Text},
                       {"procedure", Type::Text},
                       {"number", Type::Long},
                       {"text", Type::Text},
                       {"final", Type::Boolean}}}},
                    &MemoryHost::ReportError},
    Row<MemoryHost>{{"Answer", Access::Method, Type::None, {{{"answer", Type::Text}}}},
                    &MemoryHost::Answer},
    Row<MemoryHost>{{"Messages", Access::Get, Type::Values, {}}, &MemoryHost::Messages},
    Row<MemoryHost>{{"Reports", Access::Get, Type::Values, {}}, &MemoryHost::Reports},
};
inline constexpr auto MemoryHostMembers = MembersOf(MemoryHostRows);
inline constexpr Class MemoryHostClass{"MemoryHost", "A94C7E32-5D1B-4F60-8C2A-3E4F5A6B7C05",
                                       "The host in memory that stands in for one of the client's.",
                                       MemoryHostMembers};

} // namespace Tamrivo::Automation
