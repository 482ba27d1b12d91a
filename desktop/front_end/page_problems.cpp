#include "desktop/front_end/page_problems.h"

#include "controls/text_field.h"
#include "controls/user_control.h"
#include "desktop/common/text.h"
#include "host/alleles/pane_user.h"

#include <algorithm>

namespace Tamrivo
{

std::vector<PageProblem> ProblemsOf(const UserControl& page)
{
    std::vector<PageProblem> problems;
    for (const Control* control : page.InTabOrder())
    {
        const auto* field = dynamic_cast<const TextField*>(control);
        if (field != nullptr && field->BackColor() != Color::WindowBackground)
        {
            const QString text = ToQString(field->ToolTipText());
            if (!text.isEmpty() &&
                std::ranges::find(problems, text, &PageProblem::Text) == problems.end())
                problems.push_back({text, field});
        }
        if (const auto* pane = dynamic_cast<const User::AllelePaneControl*>(control))
        {
            for (const AlleleProblem& problem : User::AllelesOf(*pane).Problems())
                problems.push_back({QString("Allele list, row %1: %2.")
                                        .arg(problem.Row)
                                        .arg(ToQString(problem.Reason)),
                                    pane, problem.Row});
        }
    }
    return problems;
}

} // namespace Tamrivo
