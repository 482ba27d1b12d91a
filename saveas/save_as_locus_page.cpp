#include "saveas/save_as_locus_page.h"

#include "core/text.h"

namespace Tamrivo
{

SaveAsLocusPage::SaveAsLocusPage(Host& host)
    : Guarded(host.SharedUtility(), "SaveAsLocusPage"), m_host(host)
{
    UserControl_Initialize();
    m_connections.On(txtLocusName.Change, [this] { txtLocusName_Change(); });
    m_connections.On(lstLocusNameList.Click, [this] { lstLocusNameList_Click(); });
}

void SaveAsLocusPage::ConnectPageBase()
{
    m_connections.On(m_oPageBase->Initialize, [this](const auto&) { m_oPageBase_Initialize(); });
    m_connections.On(m_oPageBase->Validate,
                     [this](bool& bIsValid) { m_oPageBase_Validate(bIsValid); });
    m_connections.On(m_oPageBase->Save, [this] { m_oPageBase_Save(); });
}

std::shared_ptr<PageBase> SaveAsLocusPage::Page()
{
    return Propagating("IPageAccess_Page (Get)",
                       [&](Guard&) -> std::shared_ptr<PageBase> { return m_oPageBase; });
}

void SaveAsLocusPage::UserControl_Initialize()
{
    Terminal("UserControl_Initialize", [&](Guard& run) {
        run([&] { m_oPageBase = m_host.NewPageBase(); });
        run([&] { ConnectPageBase(); });
    });
}

void SaveAsLocusPage::m_oPageBase_Initialize()
{
    Reporting("m_oPageBase_Initialize", [&](Guard& run) {
        run([&] {
            if (m_host.SharedUtility().KeyExists(Parameters(), ParameterKey::LocusName))
                Parameters().Remove(ParameterKey::LocusName);
        });
        run([&] { m_oCurrentLoci = CurrentLoci(Objects(), "Name"); });
        run([&] {
            m_oSaveLocus =
                ParameterItem<std::shared_ptr<Locus>>(Parameters(), ParameterKey::SaveLocusAs);
        });
        run([&] { LoadLocusNameList(); });
        run([&] { txtLocusName.SetText(""); });
    });
}

void SaveAsLocusPage::LoadLocusNameList()
{
    Reporting("LoadLocusNameList", [&](Guard& run) {
        const std::int32_t lCount = run([&] { return m_oCurrentLoci->Count(); });
        for (std::int32_t lIndex = 1; lIndex <= lCount; ++lIndex)
        {
            run([&] {
                const Reference<BusinessObject> oLocus = m_oCurrentLoci->Item(lIndex);
                lstLocusNameList.AddItem(TrimRight(oLocus->Name()));
            });
        }
    });
}

void SaveAsLocusPage::txtLocusName_Change()
{
    Reporting("txtLocusName_Change", [&](Guard& run) { run([&] { m_oPageBase->PageChanged(); }); });
}

void SaveAsLocusPage::lstLocusNameList_Click()
{
    Reporting("lstLocusNameList_Click", [&](Guard& run) {
        run([&] { txtLocusName.SetText(lstLocusNameList.List(lstLocusNameList.ListIndex())); });
    });
}

void SaveAsLocusPage::m_oPageBase_Validate(bool& bIsValid)
{
    Propagating("m_oPageBase_Validate", [&](Guard& run) {
        bIsValid = true;
        const std::string sTag = TrimRight(txtLocusName.Text());
        if (sTag.empty() ||
            run([&] { return m_host.SharedUtility().KeyExists(*m_oCurrentLoci, sTag); }))
            bIsValid = false;
    });
}

void SaveAsLocusPage::m_oPageBase_Save()
{
    Reporting("m_oPageBase_Save", [&](Guard& run) {
        const std::string& sTag = txtLocusName.Text();
        if (run([&] { return !EqualNoCase(sTag, m_oSaveLocus->LocusTag()); }))
        {
            run([&] { m_oSaveLocus->SetLocusTag(sTag); });
            run([&] { Objects().Save(*m_oSaveLocus, true); });
            return;
        }
        const MessageAnswer nAnswer = run([&] {
            return m_host.ShowMessage("Do you want to save over existing Locus?",
                                      MessageKind::ExclamationYesNo, "Save Over Existing Locus");
        });
        if (nAnswer != MessageAnswer::No)
            run([&] { m_oSaveLocus->SetLocusTag(sTag); });
    });
}

ParameterCollection& SaveAsLocusPage::Parameters() const
{
    return *Reference<ParameterCollection>(m_oPageBase->Parameters());
}

} // namespace Tamrivo
