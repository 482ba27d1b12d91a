#pragma once

#include "contracts/host.h"
#include "controls/buttons.h"
#include "controls/hosted_control.h"
#include "controls/label.h"
#include "controls/menu.h"
#include "controls/user_control.h"
#include "selector/gridocx.h"

namespace Tamrivo
{

/// The controls of `STRLocusTagSelector`.
class STRLocusTagSelectorForm : public UserControl
{
protected:
    explicit STRLocusTagSelectorForm(Host& host)
        : UserControl("STRLocusTagSelector", 7920, 4395), m_host(host)
    {}
    ~STRLocusTagSelectorForm() override = default;

    Host& m_host;

public:
    CommandButton cmdAddSingle{
        {.Name = "cmdAddSingle", .In = *this, .TabIndex = 0, .Place = {3765, 1080, 375, 375}},
        {.Caption = ">", .ToolTipText = "Add Selected STR Locus Tags", .Font = BoldFont}};
    CommandButton cmdRemoveSingle{
        {.Name = "cmdRemoveSingle", .In = *this, .TabIndex = 1, .Place = {3765, 1560, 375, 375}},
        {.Caption = "<", .ToolTipText = "Remove Selected STR Locus Tags", .Font = BoldFont}};
    CommandButton cmdAddAll{
        {.Name = "cmdAddAll", .In = *this, .TabIndex = 2, .Place = {3765, 2025, 375, 375}},
        {.Caption = ">>", .ToolTipText = "Add All STR Locus Tags", .Font = BoldFont}};
    CommandButton cmdRemoveAll{
        {.Name = "cmdRemoveAll", .In = *this, .TabIndex = 3, .Place = {3765, 2505, 375, 375}},
        {.Caption = "<<", .ToolTipText = "Remove all STR Locus Tags", .Font = BoldFont}};
    CommandButton cmdEditSTRLocus{
        {.Name = "cmdEditSTRLocus", .In = *this, .TabIndex = 4, .Place = {15, 4335, 1065, 315}},
        {.Caption = "&Edit Locus", .Enabled = false}};
    CommandButton cmdNewSTRLocus{
        {.Name = "cmdNewSTRLocus", .In = *this, .TabIndex = 5, .Place = {1185, 4335, 1065, 315}},
        {.Caption = "&New Locus"}};
    HostedControl<Gridocx> gridAvailable{
        {.Name = "gridAvailable", .In = *this, .TabIndex = 6, .Place = {15, 360, 3570, 3735}},
        {.Object = m_host.NewGrid()}};
    HostedControl<Gridocx> gridSelected{
        {.Name = "gridSelected", .In = *this, .TabIndex = 7, .Place = {4275, 360, 3600, 3735}},
        {.Object = m_host.NewGrid()}};
    Label strAvailable{
        {.Name = "strAvailable", .In = *this, .TabIndex = 8, .Place = {15, 0, 735, 300}},
        {.Caption = "Available:"}};
    Label strSelected{
        {.Name = "strSelected", .In = *this, .TabIndex = 9, .Place = {4275, 0, 1125, 345}},
        {.Caption = "Selected:"}};

    Menu mnuSTRLocusAvailable{{.Name = "mnuSTRLocusAvailable", .In = *this},
                              {.Caption = "STR Locus", .Visible = false}};
    MenuItem mnuAdd{{.Name = "mnuAdd", .In = mnuSTRLocusAvailable}, {.Caption = "Add"}};
    MenuItem mnuSeparator{{.Name = "mnuSeparator", .In = mnuSTRLocusAvailable},
                          {.Caption = "-", .Separator = true}};
    MenuItem mnuEditAvailable{{.Name = "mnuEditAvailable", .In = mnuSTRLocusAvailable},
                              {.Caption = "Edit"}};
    MenuItem mnuNewAvailable{{.Name = "mnuNewAvailable", .In = mnuSTRLocusAvailable},
                             {.Caption = "New"}};

    Menu mnuSTRLocusColumn{{.Name = "mnuSTRLocusColumn", .In = *this},
                           {.Caption = "STR Locus Column", .Visible = false}};
    MenuItem mnuAscending{{.Name = "mnuAscending", .In = mnuSTRLocusColumn},
                          {.Caption = "Sort Ascending"}};
    MenuItem mnuDescending{{.Name = "mnuDescending", .In = mnuSTRLocusColumn},
                           {.Caption = "Sort Descending"}};

    Menu mnuSTRLocusSelected{{.Name = "mnuSTRLocusSelected", .In = *this},
                             {.Caption = "STR Locus"}};
    MenuItem mnuRemove{{.Name = "mnuRemove", .In = mnuSTRLocusSelected}, {.Caption = "Remove"}};
    MenuItem mnuSep2{{.Name = "mnuSep2", .In = mnuSTRLocusSelected},
                     {.Caption = "-", .Separator = true}};
    MenuItem mnuEditSelected{{.Name = "mnuEditSelected", .In = mnuSTRLocusSelected},
                             {.Caption = "Edit"}};
    MenuItem mnuNewSelected{{.Name = "mnuNewSelected", .In = mnuSTRLocusSelected},
                            {.Caption = "New"}};
};

} // namespace Tamrivo
