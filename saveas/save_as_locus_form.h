#pragma once

#include "contracts/locus_limits.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_field.h"
#include "controls/user_control.h"

namespace Tamrivo
{

/// The controls of `SaveAsLocusPage`.
class SaveAsLocusForm : public UserControl
{
protected:
    SaveAsLocusForm() : UserControl("SaveAsLocusPage", 4710, 4980) {}
    ~SaveAsLocusForm() override = default;

public:
    TextField txtLocusName{
        {.Name = "txtLocusName", .In = *this, .TabIndex = 0, .Place = {480, 600, 3735, 300}},
        {.Text = "Locus Name", .MaxLength = Limit::LocusTag}};
    ListBox lstLocusNameList{
        {.Name = "lstLocusNameList", .In = *this, .TabIndex = 1, .Place = {480, 1560, 3735, 3180}}};
    Label lblLocusName{
        {.Name = "lblLocusName", .In = *this, .TabIndex = 2, .Place = {480, 240, 3735, 255}},
        {.Caption = "New Locus Tag:", .Font = BoldFont}};
    Label lblExistLocus{
        {.Name = "lblExistLocus", .In = *this, .TabIndex = 3, .Place = {480, 1200, 3735, 255}},
        {.Caption = "Existing Locus Tags", .Font = BoldFont}};
};

} // namespace Tamrivo
