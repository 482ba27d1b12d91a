#include "desktop/front_end/page_reasons.h"

#include "controls/text_field.h"
#include "controls/user_control.h"
#include "desktop/common/text.h"
#include "host/alleles/pane_user.h"

#include <QStringList>

namespace Tamrivo
{

namespace
{

TextField* MarkedField(Control* control)
{
    auto* field = dynamic_cast<TextField*>(control);
    return field != nullptr && field->BackColor() != Color::WindowBackground ? field : nullptr;
}

} // namespace

QStringList ReasonsOf(const UserControl& page)
{
    QStringList reasons;
    for (Control* control : page.InTabOrder())
    {
        if (const TextField* field = MarkedField(control))
            reasons += ToQString(field->ToolTipText());
        if (const auto* pane = dynamic_cast<User::AllelePaneControl*>(control))
        {
            for (const AlleleProblem& problem : User::AllelesOf(*pane).Problems())
                reasons += QString("Allele list, row %1: %2.")
                               .arg(problem.Row)
                               .arg(ToQString(problem.Reason));
        }
    }
    reasons.removeAll(QString());
    reasons.removeDuplicates();
    return reasons;
}

TextField* FirstFault(const UserControl& page)
{
    for (Control* control : page.FocusOrder())
    {
        if (TextField* field = MarkedField(control))
            return field;
    }
    return nullptr;
}

} // namespace Tamrivo
