#pragma once

#include "host/checks/check_rules.h"

#include <QString>

#include <cstddef>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Tamrivo
{

/// Errors and warnings among findings.
struct FindingCounts
{
    std::size_t Errors = 0;
    std::size_t Warnings = 0;

    void Add(std::span<const Finding> found);
    /// "1 error, 2 warnings"; empty: there are none.
    QString Text() const;
};

/// Findings of a check by the locus that they are about.
class FindingsOfLoci
{
public:
    FindingsOfLoci() = default;
    /// @param found those of a locus one after the other
    explicit FindingsOfLoci(std::vector<Finding> found);

    std::span<const Finding> Of(const std::string& tag) const;

private:
    std::vector<Finding> m_found;
    std::unordered_map<std::string, std::pair<std::size_t, std::size_t>> m_rangeOfTag;
};

} // namespace Tamrivo
