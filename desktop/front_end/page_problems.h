#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace Tamrivo
{

class Control;
class EditorFindings;
class LocusEditorForm;
class UserControl;

/// What a problem of a page amounts to.
enum class PageProblemKind
{
    Obstacle, ///< It keeps the page from being valid.
    Error,    ///< A check calls it a mistake.
    Warning,  ///< A check calls it worth a look.
};

/// Something that is wrong on a page, or doubtful.
struct PageProblem
{
    QString Text;
    const Control* Where;    ///< A field, or the allele pane; null: the page as a whole.
    std::int32_t Allele = 0; ///< Row of the pane, counted from 1.
    PageProblemKind Kind = PageProblemKind::Obstacle;

    bool operator==(const PageProblem&) const = default;
};

/// Why a page isn't valid, as far as it tells: its marked fields in the order of the focus, each
/// reason once, and the problems of its allele list.
std::vector<PageProblem> ProblemsOf(const UserControl& page);

/// Appends what a check has found in the locus on the editor's page. Of an allele with which the
/// page finds fault itself nothing more is told.
void AddFindings(std::vector<PageProblem>& problems, LocusEditorForm& page,
                 const EditorFindings& findings);

} // namespace Tamrivo
