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
    void AddSelectedLocusTags(Collection<std::shared_ptr<Locus>>& loci) const override
    {
        for (const auto& locus : m_selector.SelectedLocusTags())
            loci.Add(locus);
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
     ClassId::Service,
     &Create<Service, IServiceAccess>},
    {"Tamrivo.LocusEditorPage",
     ClassId::LocusEditorPage,
     CreatePage<LocusEditorPage>},
    {"Tamrivo.STRLocusTagSelector",
     ClassId::STRLocusTagSelector,
     &Create<UsableSelector, ILocusTagSelector, UserControl, User::FormUser>},
    {"Tamrivo.SaveAsLocusPage",
     ClassId::SaveAsLocusPage,
     CreatePage<SaveAsLocusPage>},
};
// clang-format on

} // namespace

std::span<const CreatableClass> CreatableClasses()
{
    return Table;
}

} // namespace Tamrivo
