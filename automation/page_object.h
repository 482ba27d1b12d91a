#pragma once

#include "automation/form_object.h"
#include "host/alleles/pane_user.h"
#include "host/framework/wizard_session.h"

namespace Tamrivo::Automation
{

/// A page of a wizard as clients see it: opened once, used, and saved.
class PageObject final : public FormObject
{
public:
    /// Makes the library's page: its form, which gives its page object.
    using Maker = std::shared_ptr<UserControl> (*)(Tamrivo::Host& host,
                                                   std::shared_ptr<PageBase>& base);

    explicit PageObject(Maker maker) : m_maker(maker) {}

    const Class& ClassOf() const override;

    Value Open(const Member&, const List& arguments);
    Value Activate(const Member&, const List&);
    Value Deactivate(const Member&, const List&);
    Value Validate(const Member&, const List&);
    Value Save(const Member&, const List&);
    Value Pane(const Member&, const List&);

    /// Raises `User::Refusal` for a page without an allele pane.
    const User::AllelePaneControl& PaneControl();
    void RequirePerson() override { OpenSession(); }

private:
    Value Do(std::size_t position, const List& arguments) override;
    bool HasForm() const override { return m_page != nullptr; }
    UserControl& MakeForm(NamedHost& host) override;
    /// The wizard; raises `User::Refusal` before it has begun and after it has ended.
    WizardSession& OpenSession();

    Maker m_maker;
    std::shared_ptr<UserControl> m_page;
    std::shared_ptr<HostPageBase> m_base;
    std::unique_ptr<WizardSession> m_session;
    Connection m_reports;
};

std::shared_ptr<PageObject> NewEditorPage();
std::shared_ptr<PageObject> NewSaveAsPage();

inline constexpr std::array PageRows{
    Row<PageObject>{{"Open", Access::Method, Type::None, {{{"parameters", Type::Object}}}},
                    &PageObject::Open},
    Row<PageObject>{{"Activate", Access::Method, Type::None, {}}, &PageObject::Activate},
    Row<PageObject>{{"Deactivate", Access::Method, Type::None, {}}, &PageObject::Deactivate},
    Row<PageObject>{{"Validate", Access::Method, Type::Boolean, {}}, &PageObject::Validate},
    Row<PageObject>{{"Save", Access::Method, Type::None, {}}, &PageObject::Save},
    Row<PageObject>{{"Pane", Access::Get, Type::Object, {}}, &PageObject::Pane},
};
inline constexpr auto PageMembers = MembersOf(FormRows, PageRows);
inline constexpr Class PageClass{"Page", "D2E8B4A6-0F3C-4B79-9D51-6A7C8E9F0B06",
                                 "A page of a wizard.", PageMembers};

} // namespace Tamrivo::Automation
