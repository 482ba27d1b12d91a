#include "desktop/front_end/page_problems.h"

#include "controls/text_field.h"
#include "controls/user_control.h"
#include "desktop/common/text.h"
#include "desktop/findings/editor_findings.h"
#include "desktop/findings/finding_place.h"
#include "editor/locus_editor_form.h"
#include "host/alleles/pane_user.h"
#include "host/checks/check_rules.h"

#include <algorithm>
#include <set>

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

void AddFindings(std::vector<PageProblem>& problems, LocusEditorForm& page,
                 const EditorFindings& findings)
{
    std::set<std::int32_t> faulty;
    for (const PageProblem& problem : problems)
        faulty.insert(problem.Allele);
    for (const Finding& finding : findings.Found())
    {
        const FindingPlace place = PlaceOf(page, finding);
        if (place.Allele > 0 && faulty.contains(place.Allele))
            continue;
        const QString allele =
            finding.Allele.empty() ? "" : "Allele " + ToQString(finding.Allele) + ": ";
        problems.push_back({allele + ToQString(finding.Message) + ".", place.Where, place.Allele,
                            finding.Rule->Weight == Severity::Error ? PageProblemKind::Error
                                                                    : PageProblemKind::Warning});
    }
    if (!findings.FailureText().isEmpty())
        problems.push_back({"The loci beside this one are not checked: " + findings.FailureText(),
                            nullptr, 0, PageProblemKind::Warning});
}

} // namespace Tamrivo
