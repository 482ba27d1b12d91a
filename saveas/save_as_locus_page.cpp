#include "saveas/save_as_locus_page.h"

#include "core/text.h"

namespace Tamrivo
{

SaveAsLocusPage::SaveAsLocusPage(Host& host)
    : Guarded(host.SharedUtility(), "SaveAsLocusPage"), m_host(host)
{
    UserControl_Initialize();
    txtLocusName.Change = [this] { txtLocusName_Change(); };
    lstLocusNameList.Click = [this] { lstLocusNameList_Click(); };
    if (!m_oPageBase)
        return;
    m_oPageBase->Initialize = [this](const auto&) { m_oPageBase_Initialize(); };
    m_oPageBase->Validate = [this](bool& bIsValid) { m_oPageBase_Validate(bIsValid); };
    m_oPageBase->Save = [this] { m_oPageBase_Save(); };
}

SaveAsLocusPage::~SaveAsLocusPage()
{
    if (!m_oPageBase)
        return;
    m_oPageBase->Initialize = nullptr;
    m_oPageBase->Validate = nullptr;
    m_oPageBase->Save = nullptr;
}

std::shared_ptr<PageBase> SaveAsLocusPage::Page()
{
    return Propagating("IPageAccess_Page (Get)",
                       [&](Guard& run) { return run([&] { return m_oPageBase; }); });
}

void SaveAsLocusPage::UserControl_Initialize()
{
    Terminal("UserControl_Initialize",
             [&](Guard& run) { run([&] { m_oPageBase = m_host.NewPageBase(); }); });
}

void SaveAsLocusPage::m_oPageBase_Initialize()
{
    Reporting("m_oPageBase_Initialize", [&](Guard& run) {
        run([&] {
            ParameterCollection& parameters = *m_oPageBase->Parameters();
            if (m_host.SharedUtility().KeyExists(parameters, ParameterKey::LocusName))
                parameters.Remove(ParameterKey::LocusName);
        });
        run([&] { m_oCurrentLoci = CurrentLoci(Objects(), "Name"); });
        run([&] {
            m_oSaveLocus = ParameterItem<std::shared_ptr<Locus>>(*m_oPageBase->Parameters(),
                                                                 ParameterKey::SaveLocusAs);
        });
        run([&] { LoadLocusNameList(); });
        run([&] { txtLocusName.SetText(""); });
    });
}

void SaveAsLocusPage::LoadLocusNameList()
{
    Reporting("LoadLocusNameList", [&](Guard& run) {
        const auto count = run([&] { return m_oCurrentLoci->Count(); });
        for (std::int32_t index = 1; index <= count; ++index)
        {
            run([&] { lstLocusNameList.AddItem(TrimRight(m_oCurrentLoci->Item(index)->Name())); });
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
        const std::string tag = TrimRight(txtLocusName.Text());
        if (tag.empty() ||
            run([&] { return m_host.SharedUtility().KeyExists(*m_oCurrentLoci, tag); }))
            bIsValid = false;
    });
}

void SaveAsLocusPage::m_oPageBase_Save()
{
    Reporting("m_oPageBase_Save", [&](Guard& run) {
        const std::string& tag = txtLocusName.Text();
        if (run([&] { return !EqualNoCase(tag, m_oSaveLocus->LocusTag()); }))
        {
            run([&] { m_oSaveLocus->SetLocusTag(tag); });
            run([&] { Objects().Save(*m_oSaveLocus, true); });
            return;
        }
        const MessageAnswer answer = run([&] {
            return m_host.ShowMessage("Do you want to save over existing Locus?",
                                      MessageKind::ExclamationYesNo, "Save Over Existing Locus");
        });
        if (answer != MessageAnswer::No)
            run([&] { m_oSaveLocus->SetLocusTag(tag); });
    });
}

} // namespace Tamrivo
