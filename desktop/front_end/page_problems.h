#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace Tamrivo
{

class Control;
class UserControl;

/// Something that keeps a page from being valid.
struct PageProblem
{
    QString Text;
    const Control* Where;    ///< A field, or the allele pane.
    std::int32_t Allele = 0; ///< Row of the pane, counted from 1.

    bool operator==(const PageProblem&) const = default;
};

/// Why a page isn't valid, as far as it tells: its marked fields in the order of the focus, each
/// reason once, and the problems of its allele list.
std::vector<PageProblem> ProblemsOf(const UserControl& page);

} // namespace Tamrivo
