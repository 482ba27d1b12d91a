#pragma once

#include "contracts/host.h"
#include "contracts/locus_limits.h"
#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/frames.h"
#include "controls/hosted_control.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/spin_button.h"
#include "controls/text_field.h"
#include "controls/user_control.h"

namespace Tamrivo
{

/// The form of the locus editor: every control with its name, container, tab index, place in twips,
/// and what it starts with.
///
/// `txtLocusTag` and `lblLocusTag` share a place, as do `cmbProjects` and `lblProject`: the page
/// shows either the pair that can be edited or the pair that can only be read.
class LocusEditorForm : public UserControl
{
public:
    /// @param host makes the allele pane
    explicit LocusEditorForm(Host& host);

    // Tabs and frames
    TabStrip SSTab1{{"SSTab1", *this, 3, {0, 840, 10995, 4455}},
                    {.Captions = {"&Locus Tag", "&Allele ID Criteria"}}};
    Frame fraLocusInformation{{"fraLocusInformation", SSTab1, 25, {120, 600, 5535, 2295}},
                              {.Caption = "Locus Information", .Tab = 0}};
    ControlArray<Frame> fraAncillaryInformation{
        {{"fraAncillaryInformation", SSTab1, 31, {5880, 600, 4995, 3735}, 1},
         {.Caption = "Ancillary Information", .Tab = 0}}};
    ControlArray<Frame> fraPrimerLabel{
        {{"fraPrimerLabel", fraAncillaryInformation.Item(1), 37, {90, 2280, 1410, 1320}, 2},
         {.Caption = "Primer Label"}}};
    ControlArray<Frame> fraPrimerSequence{
        {{"fraPrimerSequence", fraAncillaryInformation.Item(1), 32, {1575, 2280, 3255, 1320}, 3},
         {.Caption = "Primer Sequence"}}};
    Frame fraAlleleNamingConvention{
        {"fraAlleleNamingConvention", SSTab1, 68, {120, 3000, 5535, 1350}},
        {.Caption = "Allele Naming Convention", .Tab = 0}};
    Frame fraStutterDefinition{{"fraStutterDefinition", SSTab1, 57, {120, 600, 5535, 2295}},
                               {.Caption = "Stutter Definition", .Tab = 1}};
    Frame fraSpuriousPeakDetection{{"fraSpuriousPeakDetection", SSTab1, 62, {5880, 600, 4995, 975}},
                                   {.Caption = "Spurious Peak Detection", .Tab = 1}};
    Frame fraADetection{{"fraADetection", SSTab1, 64, {5880, 3000, 4995, 1200}},
                        {.Caption = "+ A Detection", .Tab = 1}};
    Frame Frame1{{"Frame1", SSTab1, 73, {120, 3000, 5535, 1215}},
                 {.Caption = "Confidence Interval", .Tab = 1}};

    // Directly on the page
    TextField txtLocusTag{{"txtLocusTag", *this, 0, {1560, 120, 3495, 285}},
                          {.MaxLength = Limit::LocusTag}};
    CheckBox chkMakeCurrent{{"chkMakeCurrent", *this, 1, {5400, 120, 1695, 255}},
                            {.Caption = "Used for Analysis", .Enabled = false, .Visible = false}};
    ComboBox cmbProjects{{"cmbProjects", *this, 2, {1560, 480, 3495, 315}}, {}};
    CommandButton cmdSaveAs{{"cmdSaveAs", *this, 4, {9600, 240, 1215, 375}},
                            {.Caption = "Save &As", .Enabled = false}};
    HostedControl<PaneAlleleList> ctlPaneAlleleList;
    Label Label10{{"Label10", *this, 80, {120, 165, 810, 195}}, {.Caption = "Locus Tag:"}};
    Label Label14{{"Label14", *this, 81, {120, 525, 540, 195}}, {.Caption = "Project:"}};
    Label lblDateLastModified{{"lblDateLastModified", *this, 83, {6840, 525, 2175, 195}},
                              {.Caption = "01/01/2001"}};
    Label lblLocusTag{{"lblLocusTag", *this, 85, {1560, 165, 3495, 195}}, {}};
    Label lblProject{{"lblProject", *this, 86, {1560, 525, 3495, 195}}, {}};

    // fraLocusInformation
    TextField txtLocusName{{"txtLocusName", fraLocusInformation, 5, {1440, 360, 3495, 285}},
                           {.MaxLength = Limit::LocusName}};
    ComboBox cmbDye{{"cmbDye", fraLocusInformation, 6, {2640, 720, 855, 315}},
                    {.List = {"D1", "D2", "D3", "D4"}}};
    TextField txtFragStart{
        {"txtFragStart", fraLocusInformation, 7, {2640, 1200, 675, 285}},
        {.Text = "60", .MaxLength = Limit::FragmentRange.Digits(), .Alignment = Alignment::Right}};
    TextField txtFragEnd{
        {"txtFragEnd", fraLocusInformation, 8, {3975, 1215, 675, 285}},
        {.Text = "640", .MaxLength = Limit::FragmentRange.Digits(), .Alignment = Alignment::Right}};
    TextField txtRepeat{{"txtRepeat", fraLocusInformation, 9, {2640, 1560, 675, 285}},
                        {.MaxLength = Limit::RepeatLength.Digits(), .Alignment = Alignment::Right}};
    TextField txtRepeatsInShortestAllele{
        {"txtRepeatsInShortestAllele", fraLocusInformation, 10, {2640, 1920, 675, 285}},
        {.MaxLength = Limit::Repeats.Digits(), .Alignment = Alignment::Right}};
    Label Label12{{"Label12", fraLocusInformation, 26, {120, 1970, 2265, 195}},
                  {.Caption = "# of repeats in shortest Allele:"}};
    Label Label5{{"Label5", fraLocusInformation, 27, {120, 1605, 1350, 195}},
                 {.Caption = "Repeat unit length:"}};
    SpinButton UpDown4{{"UpDown4", fraLocusInformation, 78, {3315, 1560, 240, 285}},
                       {.Linked = &txtRepeat,
                        .Min = Limit::RepeatLength.Low,
                        .Max = Limit::RepeatLength.High,
                        .Value = 1}};
    SpinButton UpDown5{{"UpDown5", fraLocusInformation, 79, {3315, 1920, 240, 285}},
                       {.Linked = &txtRepeatsInShortestAllele,
                        .Min = Limit::Repeats.Low,
                        .Max = Limit::Repeats.High,
                        .Value = 1}};
    Label lblLocus{{"lblLocus", fraLocusInformation, 84, {120, 405, 945, 195}},
                   {.Caption = "Locus Name:"}};

    // fraAncillaryInformation(1)
    TextField txtPrimerSet{
        {"txtPrimerSet", fraAncillaryInformation.Item(1), 16, {2160, 360, 2655, 285}},
        {.MaxLength = Limit::PrimerSet}};
    TextField txtGenBank{
        {"txtGenBank", fraAncillaryInformation.Item(1), 17, {2160, 840, 2655, 285}},
        {.MaxLength = Limit::GenBank}};
    TextField txtRepeatUnitSequence{
        {"txtRepeatUnitSequence", fraAncillaryInformation.Item(1), 18, {2160, 1320, 2655, 285}},
        {.MaxLength = Limit::RepeatUnitSequence}};
    TextField txtPloidy{{"txtPloidy", fraAncillaryInformation.Item(1), 19, {2160, 1800, 390, 285}},
                        {.Text = "2", .MaxLength = Limit::Ploidy.Digits()}};
    Label Label3{{"Label3", fraAncillaryInformation.Item(1), 38, {120, 885, 1500, 195}},
                 {.Caption = "GenBank Accession:"}};
    Label Label4{{"Label4", fraAncillaryInformation.Item(1), 39, {120, 405, 1170, 195}},
                 {.Caption = "Primer set name:"}};
    Label Label2{{"Label2", fraAncillaryInformation.Item(1), 67, {120, 1365, 1620, 195}},
                 {.Caption = "Repeat unit sequence:"}};
    SpinButton udPloidy{
        {"udPloidy", fraAncillaryInformation.Item(1), 76, {2551, 1800, 240, 285}},
        {.Linked = &txtPloidy, .Min = Limit::Ploidy.Low, .Max = Limit::Ploidy.High, .Value = 2}};
    Label Label13{{"Label13", fraAncillaryInformation.Item(1), 77, {120, 1800, 465, 195}},
                  {.Caption = "Ploidy:"}};

    // fraPrimerLabel(2)
    ControlArray<OptionButton> optPrimerLabel{
        {{"optPrimerLabel", fraPrimerLabel.Item(2), 20, {120, 220, 1005, 405}, 0},
         {.Caption = "&Forward"}},
        {{"optPrimerLabel", fraPrimerLabel.Item(2), 21, {120, 620, 1005, 285}, 1},
         {.Caption = "Rever&se"}},
        {{"optPrimerLabel", fraPrimerLabel.Item(2), 22, {120, 920, 1005, 285}, 2},
         {.Caption = "N&one"}},
    };

    // fraPrimerSequence(3)
    TextField txtFwd{{"txtFwd", fraPrimerSequence.Item(3), 23, {900, 315, 1635, 285}},
                     {.MaxLength = Limit::Primer}};
    TextField txtRev{{"txtRev", fraPrimerSequence.Item(3), 24, {900, 720, 1635, 285}},
                     {.MaxLength = Limit::Primer}};
    Label Label9{{"Label9", fraPrimerSequence.Item(3), 33, {2610, 780, 465, 195}},
                 {.Caption = "5' to 3'"}};
    Label Label8{{"Label8", fraPrimerSequence.Item(3), 34, {2610, 360, 465, 195}},
                 {.Caption = "5' to 3'"}};
    Label Label7{{"Label7", fraPrimerSequence.Item(3), 35, {90, 780, 645, 195}},
                 {.Caption = "Reverse:"}};
    Label Label6{{"Label6", fraPrimerSequence.Item(3), 36, {90, 360, 615, 195}},
                 {.Caption = "Forward:"}};

    // fraAlleleNamingConvention
    ControlArray<OptionButton> optAlleleNaming{
        {{"optAlleleNaming", fraAlleleNamingConvention, 11, {120, 270, 2025, 315}, 0},
         {.Caption = "Nominal size"}},
        {{"optAlleleNaming", fraAlleleNamingConvention, 12, {120, 600, 2025, 315}, 1},
         {.Caption = "Alphabetic"}},
        {{"optAlleleNaming", fraAlleleNamingConvention, 13, {120, 930, 2025, 315}, 2},
         {.Caption = "Numeric"}},
    };
    TextField txtStartAtAlphanumeric{
        {"txtStartAtAlphanumeric", fraAlleleNamingConvention, 14, {2925, 600, 420, 315}},
        {.Text = "A", .MaxLength = 1, .Alignment = Alignment::Right}};
    TextField txtStartAtNumeric{
        {"txtStartAtNumeric", fraAlleleNamingConvention, 15, {2925, 960, 420, 315}},
        {.Text = "1",
         .MaxLength = Limit::TypedStartAtNumeric.Digits(),
         .Alignment = Alignment::Right}};
    SpinButton udStartAtNumeric{
        {"udStartAtNumeric", fraAlleleNamingConvention, 69, {3346, 960, 240, 315}},
        {.Linked = &txtStartAtNumeric,
         .Min = Limit::TypedStartAtNumeric.Low,
         .Max = Limit::TypedStartAtNumeric.High,
         .Value = 1,
         .TabStop = false}};
    SpinButton udStartAtAlphanumeric{
        {"udStartAtAlphanumeric", fraAlleleNamingConvention, 70, {3346, 600, 240, 315}},
        {.TabStop = false}};
    Label lblStartAtNumeric{
        {"lblStartAtNumeric", fraAlleleNamingConvention, 71, {2280, 975, 555, 195}},
        {.Caption = "Start at:"}};
    Label lblStartAtAlphanumeric{
        {"lblStartAtAlphanumeric", fraAlleleNamingConvention, 72, {2280, 645, 555, 195}},
        {.Caption = "Start at:"}};
    CommandButton cmdGenAlleleList{
        {"cmdGenAlleleList", fraAlleleNamingConvention, 87, {3750, 900, 1575, 375}},
        {.Caption = "Generate Allele List"}};
    Label Label15{{"Label15", fraAlleleNamingConvention, 88, {3840, 240, 1365, 195}},
                  {.Caption = "Shortest Allele size:"}};
    TextField txtShortestAlleleSize{
        {"txtShortestAlleleSize", fraAlleleNamingConvention, 89, {4350, 510, 705, 315}},
        {.MaxLength = Limit::ShortestAlleleSize.Digits(), .Alignment = Alignment::Right}};
    SpinButton udShortestAlleleSize{
        {"udShortestAlleleSize", fraAlleleNamingConvention, 90, {5056, 495, 240, 315}},
        {.Linked = &txtShortestAlleleSize,
         .Min = 1,
         .Max = Limit::ShortestAlleleSize.High,
         .Value = 1,
         .TabStop = false}};

    // fraStutterDefinition
    CheckBox chkSearchForStutter{
        {"chkSearchForStutter", fraStutterDefinition, 41, {90, 315, 2265, 240}},
        {.Caption = "Search for Stutter"}};
    TextField txtStutterWidth{{"txtStutterWidth", fraStutterDefinition, 42, {3120, 600, 390, 285}},
                              {.MaxLength = Limit::StutterWidth.Digits()}};
    SpinButton UpDown1{{"UpDown1", fraStutterDefinition, 43, {3511, 600, 240, 285}},
                       {.Linked = &txtStutterWidth,
                        .Min = Limit::StutterWidth.Low,
                        .Max = Limit::StutterWidth.High,
                        .Value = 1}};
    TextField txtRelStutter{{"txtRelStutter", fraStutterDefinition, 44, {3120, 1080, 390, 285}},
                            {.MaxLength = Limit::RelStutter.Digits()}};
    SpinButton UpDown2{{"UpDown2", fraStutterDefinition, 45, {3511, 1080, 240, 285}},
                       {.Linked = &txtRelStutter,
                        .Min = Limit::RelStutter.Low,
                        .Max = Limit::RelStutter.High,
                        .Value = 1}};
    CheckBox chkDetShortStutter{
        {"chkDetShortStutter", fraStutterDefinition, 46, {405, 1395, 2805, 285}},
        {.Caption = "Detect stutter shorter than alelle"}};
    CheckBox chkDetLongStutter{
        {"chkDetLongStutter", fraStutterDefinition, 47, {405, 1755, 2670, 240}},
        {.Caption = "Detect stutter longer than allele"}};
    Label lblPercentage1{{"lblPercentage1", fraStutterDefinition, 58, {3840, 1120, 120, 195}},
                         {.Caption = "%"}};
    Label lblMaxRelativeStutter{
        {"lblMaxRelativeStutter", fraStutterDefinition, 59, {405, 1035, 2580, 195}},
        {.Caption = "Maximum relative stutter peak height"}};
    Label lblRepeats{{"lblRepeats", fraStutterDefinition, 60, {3840, 675, 525, 195}},
                     {.Caption = "repeats"}};
    Label lblStutterDetecWindow{
        {"lblStutterDetecWindow", fraStutterDefinition, 61, {405, 675, 2175, 195}},
        {.Caption = "Stutter detection window width"}};

    // fraSpuriousPeakDetection
    CheckBox chkDetectSpuriousPeaks{
        {"chkDetectSpuriousPeaks", fraSpuriousPeakDetection, 50, {90, 315, 2265, 240}},
        {.Caption = "Detect spurious peaks"}};
    TextField txtMaxSpurHeight{
        {"txtMaxSpurHeight", fraSpuriousPeakDetection, 51, {2970, 600, 390, 285}},
        {.MaxLength = Limit::MaxSpurHeight.Digits()}};
    SpinButton UpDown3{{"UpDown3", fraSpuriousPeakDetection, 52, {3361, 600, 240, 285}},
                       {.Linked = &txtMaxSpurHeight,
                        .Min = Limit::MaxSpurHeight.Low,
                        .Max = Limit::MaxSpurHeight.High,
                        .Value = 1}};
    Label lblMaxHeightSpurPeaks{
        {"lblMaxHeightSpurPeaks", fraSpuriousPeakDetection, 56, {360, 660, 2475, 195}},
        {.Caption = "Maximum height for spurious peaks"}};
    Label lblPercentage2{{"lblPercentage2", fraSpuriousPeakDetection, 63, {3670, 675, 120, 195}},
                         {.Caption = "%"}};

    // fraADetection
    CheckBox chkApparentSizeIncludesA{
        {"chkApparentSizeIncludesA", fraADetection, 53, {90, 270, 2745, 240}},
        {.Caption = "Apparent size includes +A"}};
    CheckBox chkDetectA{{"chkDetectA", fraADetection, 54, {90, 540, 1230, 240}},
                        {.Caption = "Detect +/- A"}};
    CheckBox chkUseA{{"chkUseA", fraADetection, 55, {90, 810, 2175, 240}},
                     {.Caption = "Use +A peak to call Allele"}};

    // Frame1
    CheckBox chkUserSpecified{{"chkUserSpecified", Frame1, 48, {240, 720, 3465, 240}},
                              {.Caption = "Overwrite system confidence interval"}};
    TextField txtConfInt{{"txtConfInt", Frame1, 49, {3960, 720, 645, 285}},
                         {.MaxLength = 5, .Alignment = Alignment::Right}};
    Label lblAlleleConfInt{{"lblAlleleConfInt", Frame1, 74, {525, 375, 3075, 195}},
                           {.Caption = "System generated allele confidence interval"}};
    Label Label11{{"Label11", Frame1, 75, {4680, 765, 390, 195}}, {.Caption = "+/- nt"}};
    Label lblConfInt{{"lblConfInt", Frame1, 91, {3960, 375, 630, 285}}, {}};
    Label Label17{{"Label17", Frame1, 92, {4680, 375, 390, 195}}, {.Caption = "+/- nt"}};

    // On the page and in fraLocusInformation; no index 3
    ControlArray<Label> Label1{
        {{"Label1", *this, 82, {5400, 525, 1305, 195}, 0}, {.Caption = "Date last modified:"}},
        {{"Label1", fraLocusInformation, 28, {120, 795, 330, 195}, 6}, {.Caption = "Dye:"}},
        {{"Label1", fraLocusInformation, 29, {120, 1200, 2430, 195}, 1},
         {.Caption = "Fragment length range between:"}},
        {{"Label1", fraLocusInformation, 30, {3480, 1250, 270, 255}, 2}, {.Caption = "and"}},
        {{"Label1", fraLocusInformation, 65, {4680, 1250, 135, 195}, 4}, {.Caption = "nt"}},
        {{"Label1", fraLocusInformation, 66, {3600, 1605, 375, 195}, 5}, {.Caption = "nt"}},
    };
};

} // namespace Tamrivo
