#include "editor/locus_editor_page.h"

namespace Tamrivo
{

namespace
{

template <class... Arguments>
void On(Event<Arguments...>& event, LocusEditorPage& page,
        void (LocusEditorPage::*handler)(Arguments...))
{
    event = [&page, handler](Arguments... arguments) {
        (page.*handler)(std::forward<Arguments>(arguments)...);
    };
}

} // namespace

LocusEditorPage::LocusEditorPage(Host& host)
    : LocusEditorForm(host), Guarded(host.SharedUtility(), "LocusEditorPage"), m_host(host)
{
    ConnectControls();
    UserControl_Initialize();
}

LocusEditorPage::~LocusEditorPage()
{
    // The host may hold the page base and the pane for longer than the page.
    if (m_oPageBase)
    {
        m_oPageBase->Initialize = nullptr;
        m_oPageBase->Activate = nullptr;
        m_oPageBase->Deactivate = nullptr;
        m_oPageBase->Validate = nullptr;
        m_oPageBase->Save = nullptr;
    }
    ctlPaneAlleleList->AlleleEdited = nullptr;
    ctlPaneAlleleList->ListChanged = nullptr;
    ctlPaneAlleleList->ValidityChanged = nullptr;
}

void LocusEditorPage::ConnectPageBase()
{
    using Page = LocusEditorPage;
    On(m_oPageBase->Initialize, *this, &Page::m_oPageBase_Initialize);
    On(m_oPageBase->Activate, *this, &Page::m_oPageBase_Activate);
    On(m_oPageBase->Deactivate, *this, &Page::m_oPageBase_Deactivate);
    On(m_oPageBase->Validate, *this, &Page::m_oPageBase_Validate);
    On(m_oPageBase->Save, *this, &Page::m_oPageBase_Save);
}

void LocusEditorPage::ConnectControls()
{
    using Page = LocusEditorPage;

    On(cmdSaveAs.Click, *this, &Page::cmdSaveAs_Click);
    On(cmdGenAlleleList.Click, *this, &Page::cmdGenAlleleList_Click);
    On(chkMakeCurrent.Click, *this, &Page::chkMakeCurrent_Click);
    On(chkSearchForStutter.Click, *this, &Page::chkSearchForStutter_Click);
    On(chkDetectSpuriousPeaks.Click, *this, &Page::chkDetectSpuriousPeaks_Click);
    On(chkUserSpecified.Click, *this, &Page::chkUserSpecified_Click);
    for (OptionButton& option : optAlleleNaming)
        option.Click = [this, &option] { optAlleleNaming_Click(*option.Index()); };
    On(udStartAtAlphanumeric.UpClick, *this, &Page::udStartAtAlphanumeric_UpClick);
    On(udStartAtAlphanumeric.DownClick, *this, &Page::udStartAtAlphanumeric_DownClick);

    On(txtLocusTag.Change, *this, &Page::txtLocusTag_Change);
    On(txtStartAtNumeric.Change, *this, &Page::txtStartAtNumeric_Change);

    On(txtFragStart.KeyPress, *this, &Page::txtFragStart_KeyPress);
    On(txtFragEnd.KeyPress, *this, &Page::txtFragEnd_KeyPress);
    On(txtRepeat.KeyPress, *this, &Page::txtRepeat_KeyPress);
    On(txtRepeatsInShortestAllele.KeyPress, *this, &Page::txtRepeatsInShortestAllele_KeyPress);
    On(txtShortestAlleleSize.KeyPress, *this, &Page::txtShortestAlleleSize_KeyPress);
    On(txtStartAtAlphanumeric.KeyPress, *this, &Page::txtStartAtAlphanumeric_KeyPress);
    On(txtStartAtNumeric.KeyPress, *this, &Page::txtStartAtNumeric_KeyPress);
    On(txtStutterWidth.KeyPress, *this, &Page::txtStutterWidth_KeyPress);
    On(txtRelStutter.KeyPress, *this, &Page::txtRelStutter_KeyPress);
    On(txtMaxSpurHeight.KeyPress, *this, &Page::txtMaxSpurHeight_KeyPress);
    On(txtConfInt.KeyPress, *this, &Page::txtConfInt_KeyPress);

    On(txtFragStart.LostFocus, *this, &Page::txtFragStart_LostFocus);
    On(txtFragEnd.LostFocus, *this, &Page::txtFragEnd_LostFocus);
    On(txtRepeat.LostFocus, *this, &Page::txtRepeat_LostFocus);
    On(txtRepeatsInShortestAllele.LostFocus, *this, &Page::txtRepeatsInShortestAllele_LostFocus);
    On(txtShortestAlleleSize.LostFocus, *this, &Page::txtShortestAlleleSize_LostFocus);
    On(txtStartAtAlphanumeric.LostFocus, *this, &Page::txtStartAtAlphanumeric_LostFocus);
    On(txtStartAtNumeric.LostFocus, *this, &Page::txtStartAtNumeric_LostFocus);
    On(txtStutterWidth.LostFocus, *this, &Page::txtStutterWidth_LostFocus);
    On(txtRelStutter.LostFocus, *this, &Page::txtRelStutter_LostFocus);
    On(txtMaxSpurHeight.LostFocus, *this, &Page::txtMaxSpurHeight_LostFocus);
    On(txtPloidy.LostFocus, *this, &Page::txtPloidy_LostFocus);
    On(txtConfInt.LostFocus, *this, &Page::txtConfInt_LostFocus);

    PaneAlleleList& pane = ctlPaneAlleleList.Object();
    On(pane.AlleleEdited, *this, &Page::ctlPaneAlleleList_AlleleEdited);
    On(pane.ListChanged, *this, &Page::ctlPaneAlleleList_ListChanged);
    On(pane.ValidityChanged, *this, &Page::ctlPaneAlleleList_ValidityChanged);
}

} // namespace Tamrivo
