#pragma once

#include "contracts/allele.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Tamrivo
{

using AlleleRows = std::vector<std::shared_ptr<Allele>>;

/// What is wrong with a row of an allele list.
struct AlleleProblem
{
    std::int32_t Row; ///< Counted from 1.
    std::string Reason;

    bool operator==(const AlleleProblem&) const = default;
};

/// Pairs of rows whose bins overlap; a row that overlaps any other stands in at least one of them.
std::vector<std::pair<std::int32_t, std::int32_t>> OverlappingBins(const AlleleRows& rows);

/// All problems of a list, ordered by row; none when the list is valid, which means:
///
/// - every allele has a name that no other has; neither case nor blanks around it count;
/// - its size lies inside its bin, bounds included;
/// - no two bins overlap. Bins that merely touch don't, as the bins of neighbours do when the
///   confidence interval is half the repeat unit. Two equal bins do, even without extent.
///
/// Takes n log n time for n rows.
std::vector<AlleleProblem> AlleleProblems(const AlleleRows& rows);

/// What is doubtful in a list though it may be valid, ordered by row: bins without width, in which
/// no measured size falls.
std::vector<AlleleProblem> AlleleWarnings(const AlleleRows& rows);

} // namespace Tamrivo
