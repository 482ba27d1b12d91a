#pragma once

#include <cstdint>

namespace Tamrivo
{

/// The least and the greatest whole number of a field.
struct Range
{
    std::int32_t Low;
    std::int32_t High;

    /// Number of characters that the greatest takes.
    constexpr int Digits() const
    {
        int digits = 1;
        for (std::int32_t rest = High; rest >= 10; rest /= 10)
            ++digits;
        return digits;
    }
};

/// What the fields of a locus keep to: the form's limits and spin buttons, the repair of a field
/// that is left, and what an import refuses.
namespace Limit
{
inline constexpr Range FragmentRange{0, 999};      ///< nt, for its start and its end
inline constexpr Range RepeatLength{1, 255};       ///< nt
inline constexpr Range Repeats{1, 1000};           ///< In the shortest allele.
inline constexpr Range ShortestAlleleSize{0, 999}; ///< nt
inline constexpr Range StartAtNumeric{1, 10000};
inline constexpr Range TypedStartAtNumeric{1, 999}; ///< What a person can give it.
inline constexpr Range ConfInt{0, 1};               ///< +/- nt, fractions included
inline constexpr Range StutterWidth{1, 10};         ///< Repeats.
inline constexpr Range RelStutter{1, 100};          ///< Percent.
inline constexpr Range MaxSpurHeight{1, 100};       ///< Percent.
inline constexpr Range Ploidy{2, 10};

// Most characters of a text.
inline constexpr int LocusTag = 128;
inline constexpr int LocusName = 128;
inline constexpr int RepeatUnitSequence = 10;
inline constexpr int PrimerSet = 50;
inline constexpr int GenBank = 50;
inline constexpr int Primer = 50; ///< Each of the two.
} // namespace Limit

} // namespace Tamrivo
