#include "editor/locus_editor_page.h"

namespace Tamrivo
{

template <class... Arguments>
void LocusEditorPage::On(Event<Arguments...>& event, void (LocusEditorPage::*handler)(Arguments...))
{
    m_connections.On(event, [this, handler](Arguments... arguments) {
        (this->*handler)(std::forward<Arguments>(arguments)...);
    });
}

LocusEditorPage::LocusEditorPage(Host& host)
    : LocusEditorForm(host), Guarded(host.SharedUtility(), "LocusEditorPage"), m_host(host)
{
    ConnectControls();
    UserControl_Initialize();
}

void LocusEditorPage::ConnectPageBase()
{
    using Page = LocusEditorPage;
    On(m_oPageBase->Initialize, &Page::m_oPageBase_Initialize);
    On(m_oPageBase->Activate, &Page::m_oPageBase_Activate);
    On(m_oPageBase->Deactivate, &Page::m_oPageBase_Deactivate);
    On(m_oPageBase->Validate, &Page::m_oPageBase_Validate);
    On(m_oPageBase->Save, &Page::m_oPageBase_Save);
}

void LocusEditorPage::ConnectControls()
{
    using Page = LocusEditorPage;

    On(cmdSaveAs.Click, &Page::cmdSaveAs_Click);
    On(cmdGenAlleleList.Click, &Page::cmdGenAlleleList_Click);
    On(chkMakeCurrent.Click, &Page::chkMakeCurrent_Click);
    ConnectGroup(chkSearchForStutter, "chkSearchForStutter_Click", &Page::DisplaySearchForStutter);
    ConnectGroup(chkDetectSpuriousPeaks, "chkDetectSpuriousPeaks_Click",
                 &Page::DisplayDetectSpuriousPeaks);
    ConnectGroup(chkUserSpecified, "chkUserSpecified_Click", &Page::DisplayUserSpecified);
    for (OptionButton& option : optAlleleNaming)
        m_connections.On(option.Click, [this, &option] { optAlleleNaming_Click(*option.Index()); });
    On(udStartAtAlphanumeric.UpClick, &Page::udStartAtAlphanumeric_UpClick);
    On(udStartAtAlphanumeric.DownClick, &Page::udStartAtAlphanumeric_DownClick);

    On(txtLocusTag.Change, &Page::txtLocusTag_Change);
    On(txtStartAtNumeric.Change, &Page::txtStartAtNumeric_Change);
    On(txtShortestAlleleSize.LostFocus, &Page::txtShortestAlleleSize_LostFocus);
    ConnectInputRules();
}

void LocusEditorPage::ConnectPane()
{
    using Page = LocusEditorPage;
    On(ctlPaneAlleleList->AlleleEdited, &Page::ctlPaneAlleleList_AlleleEdited);
    On(ctlPaneAlleleList->ListChanged, &Page::ctlPaneAlleleList_ListChanged);
    On(ctlPaneAlleleList->ValidityChanged, &Page::ctlPaneAlleleList_ValidityChanged);
}

} // namespace Tamrivo
