#pragma once

#include "automation/named_host.h"
#include "service/service.h"

#include <memory>

namespace Tamrivo::Automation
{

/// The report service as clients see it.
class ServiceObject final : public TableObject
{
public:
    const Class& ClassOf() const override;

    Value GetHost(const Member&, const List&);
    Value PutHost(const Member&, const List& arguments);
    Value ContextTypes(const Member&, const List&);
    Value Contexts(const Member&, const List& arguments);

private:
    Value Do(std::size_t position, const List& arguments) override;
    ServiceBase& Made();

    ObjectPointer m_client;
    std::unique_ptr<NamedHost> m_host;
    std::unique_ptr<Service> m_service;
};

inline constexpr std::array ServiceRows{
    Row<ServiceObject>{{"Host", Access::Get, Type::Object, {}}, &ServiceObject::GetHost},
    Row<ServiceObject>{{"Host", Access::Put, Type::None, {{{"value", Type::Object}}}},
                       &ServiceObject::PutHost},
    Row<ServiceObject>{{"ContextTypes", Access::Get, Type::Values, {}},
                       &ServiceObject::ContextTypes},
    Row<ServiceObject>{{"Contexts", Access::Method, Type::Values, {{{"id", Type::Long}}}},
                       &ServiceObject::Contexts},
};
inline constexpr auto ServiceMembers = MembersOf(ServiceRows);
inline constexpr Class ServiceClass{"Service", "1B9D7F53-8C40-4E26-A5D8-0C2E4A6F8B08",
                                    "The contexts that reports are made for.", ServiceMembers};

} // namespace Tamrivo::Automation
