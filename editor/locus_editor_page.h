#pragma once

#include "core/guard.h"
#include "core/reference.h"
#include "editor/locus_editor_form.h"

#include <initializer_list>

namespace Tamrivo
{

/// The page of the wizard "LocusEditor": edits one locus tag.
///
/// It opens on the `Locus` under `ParameterKey::Locus`, shows it in its fields and stores it when
/// the framework raises Save. Alleles are generated and edited in a working copy, and reach the
/// locus at Save. With a `BinningContext` under `ParameterKey::Binning` the page shares the locus
/// with its host instead: it reads part of it again at each Activate, writes that part back at each
/// Deactivate, and the pane works on the locus itself.
///
/// A handler bears the name of its object and event. Failures of page events go to the framework;
/// those of control events end in the page, after a report.
class LocusEditorPage final : public LocusEditorForm, public IPageAccess, private Guarded
{
public:
    explicit LocusEditorPage(Host& host);

    /// The page's side of the framework, created with the page.
    std::shared_ptr<PageBase> Page() override;

private:
    // Tables of the steps by which fields and locus exchange their content; see editor/steps.h.
    struct Steps;
    struct FieldSteps;
    struct DefaultSteps;
    struct BinningSteps;
    struct GenerationSteps;
    struct InputRules;

    // Life cycle
    void ConnectControls();
    template <class... Arguments>
    void On(Event<Arguments...>& event, void (LocusEditorPage::*handler)(Arguments...));
    void ConnectPageBase();
    void ConnectPane();
    void UserControl_Initialize();
    void m_oPageBase_Initialize(const std::shared_ptr<PanePositions>& oLastPanePositions);
    void m_oPageBase_Activate();
    void m_oPageBase_Deactivate();
    void m_oPageBase_Save();
    void chkMakeCurrent_Click();
    static void m_oLocus_IsCurrentChanged();
    void HoldLocus(const std::shared_ptr<Locus>& oLocus);
    void TakeParameters(Guard& run);
    void ChooseProject(Guard& run);
    void TakeAllelesOfCopy(Guard& run);
    void ShowMode();

    // Fields and locus
    void LoadLocusData();
    /// Carries all fields into `oLocus`, without reading it.
    void UpdateLocus(const Reference<Locus>& oLocus);
    void ClearInformation();
    void LoadProjects();
    void LoadDefaults();

    // Validation
    void m_oPageBase_Validate(bool& bIsValid);
    /// Marks the tag field when it keeps the page from being stored.
    bool TagIsValid(Guard& run);

    // Input rules
    bool IsDecimalPresent(std::int16_t iKey, const std::string& sText);
    /// What filters keys and mends what the focus leaves stands in tables of rows, each under its
    /// procedure's name; these have a body of their own.
    void ConnectInputRules();
    void FragStartLeft(Guard& run);
    void FragEndLeft(Guard& run);
    void txtShortestAlleleSize_LostFocus();
    void txtStartAtNumeric_Change();
    /// Keeps the shortest allele size from lying below the fragment range, and above it.
    void RaiseShortestAlleleSize();
    void LowerShortestAlleleSize();

    // Allele naming
    void optAlleleNaming_Click(int Index);
    void StartAtAlphanumeric(bool bEnabled);
    void StartAtNumeric(bool bEnabled);
    using StartAtStep = std::string (Locus::*)(const std::string& text) const;
    void StepStartAtAlphanumeric(const char* sProcedure, StartAtStep step);
    void udStartAtAlphanumeric_UpClick();
    void udStartAtAlphanumeric_DownClick();
    void txtLocusTag_Change();

    // Allele list
    void cmdGenAlleleList_Click();
    void ctlPaneAlleleList_AlleleEdited(Allele& oAllele);
    void ctlPaneAlleleList_ListChanged();
    void ctlPaneAlleleList_ValidityChanged(bool& bIsValid);
    void NoteChangedAlleles();

    // Groups of controls that are switched on and off; their texts and ticks stay as they are
    using Display = void (LocusEditorPage::*)(bool bEnabled);
    void EnableGroup(const char* sProcedure, bool bEnabled,
                     std::initializer_list<Control*> controls);
    void ConnectGroup(CheckBox& box, const char* sProcedure, Display display);
    void DisplaySearchForStutter(bool bEnabled);
    void DisplayDetectSpuriousPeaks(bool bEnabled);
    void DisplayUserSpecified(bool bEnabled);

    // Save As
    void cmdSaveAs_Click();
    void CountNewTag(Guard& run);

    Utility& SharedUtility() const { return m_host.SharedUtility(); }
    ObjectManager& Objects() const { return m_host.SharedObjectManagerGlobal().Manager(); }
    /// The collection that the page shares with whoever started the wizard.
    ParameterCollection& Parameters() const;
    bool HasParameter(const char* key) const;
    void RemoveParameter(const char* key);
    /// Whether a current locus has the tag, blanks at its end not counted.
    bool TagIsCurrent(const std::string& sTag) const;
    /// The locus whose alleles the pane shows and generation rebuilds.
    const Reference<Locus>& WorkingLocus() const { return m_bBinning ? m_oLocus : m_oCopyOfLocus; }

    Host& m_host;
    Reference<PageBase> m_oPageBase;
    Reference<Locus> m_oLocus;            ///< What Save stores.
    Reference<Locus> m_oCopyOfLocus;      ///< Scratch object of the allele list.
    Reference<BinningContext> m_oBinning; ///< In binning mode alone.
    Reference<ObjectList> m_oCurrentLoci; ///< Snapshot against which tags are unique.
    bool m_bBinning = false;
    bool m_bNewLocus = false;        ///< The locus had no stored identity at opening.
    bool m_bSavedAs = false;         ///< A Save As has led to another tag.
    std::string m_sLoadedLocusTag;   ///< As loaded; empty for a new locus.
    bool m_bAlleleListValid = false; ///< The pane's last word.
    float m_sngSystemConfInt = 0;    ///< +/- nt
    bool m_bDeactivated = false;
    Connections m_connections;
    Connection m_locusConnection; ///< Of the locus that the page holds now.
};

} // namespace Tamrivo
