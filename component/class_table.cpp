#include "component/class_table.h"

#include "component/component_object.h"
#include "editor/locus_editor_page.h"
#include "saveas/save_as_locus_page.h"
#include "selector/str_locus_tag_selector.h"
#include "service/service.h"

namespace Tamrivo
{

namespace
{

/// A form of the library and the door through which a person acts on it.
template <class Page>
class UsablePage
{
public:
    explicit UsablePage(Host& host) : m_page(host), m_user(m_page) {}

    operator IPageAccess&() { return m_page; }
    operator UserControl&() { return m_page; }
    operator User::FormUser&() { return m_user; }

private:
    Page m_page;
    User::FormUser m_user;
};

class UsableSelector : public ILocusTagSelector
{
public:
    explicit UsableSelector(Host& host) : m_selector(host), m_user(m_selector) {}

    operator UserControl&() { return m_selector; }
    operator User::FormUser&() { return m_user; }

    std::shared_ptr<ObjectList> AllLocusTags() const override { return m_selector.AllLocusTags(); }
    std::int32_t NumberOfSelectedLocusTags() const override
    {
        return m_selector.NumberOfSelectedLocusTags();
    }
    Collection<std::shared_ptr<Locus>> SelectedLocusTags() const override
    {
        return m_selector.SelectedLocusTags();
    }
    void Initialize(const std::shared_ptr<AnalysisParameter>& oAnalysisParameter) override
    {
        m_selector.Initialize(oAnalysisParameter);
    }
    void Save(FragAnalysisParam& oFragAnalysisParam) override
    {
        m_selector.Save(oFragAnalysisParam);
    }
    bool Enabled() const override { return m_selector.Enabled(); }
    void SetEnabled(bool bValue) override { m_selector.SetEnabled(bValue); }

private:
    STRLocusTagSelector m_selector;
    User::FormUser m_user;
};

template <class T, class... Offered>
IUnknown* Create(Host& host)
{
    return (new ComponentObject<T, Offered...>(host))->Identity();
}

template <class Page>
constexpr auto CreatePage = &Create<UsablePage<Page>, IPageAccess, UserControl, User::FormUser>;

// clang-format off
const CreatableClass Table[] = {
    {"Tamrivo.Service",
     {0x51496F5B, 0x0C08, 0x4A20, {0xBC, 0x03, 0xE2, 0x4D, 0x68, 0x5B, 0x0C, 0xFD}},
     &Create<Service, IServiceAccess>},
    {"Tamrivo.LocusEditorPage",
     {0x745EFFE3, 0xDF40, 0x4AF9, {0xB2, 0xF8, 0x04, 0x96, 0xE4, 0xFE, 0x09, 0x99}},
     CreatePage<LocusEditorPage>},
    {"Tamrivo.STRLocusTagSelector",
     {0x1116FB84, 0xAEF4, 0x41FE, {0x80, 0xA9, 0xB5, 0x8C, 0x8C, 0x6C, 0xDA, 0xD4}},
     &Create<UsableSelector, ILocusTagSelector, UserControl, User::FormUser>},
    {"Tamrivo.SaveAsLocusPage",
     {0x4A0CF6AC, 0xD32B, 0x4E9D, {0xBD, 0x92, 0x15, 0x6D, 0x6D, 0x31, 0x1D, 0x8F}},
     CreatePage<SaveAsLocusPage>},
};
// clang-format on

} // namespace

std::span<const CreatableClass> CreatableClasses()
{
    return Table;
}

} // namespace Tamrivo
