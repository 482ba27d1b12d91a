#pragma once

#include "contracts/locus.h"

namespace Tamrivo
{

/// What an allele holds. The library only carries the values along; the host gives them meaning.
struct AlleleFields
{
    double AlleleReal1 = 0;      ///< Size, nt.
    double AlleleReal2 = 0;      ///< Start of the bin, nt.
    double AlleleReal3 = 0;      ///< End of the bin, nt.
    double AlleleReal4 = 0;      ///< Number of repeats.
    double AlleleReal5 = 0;      ///< Unused.
    std::string AlleleText1;     ///< Name.
    std::string AlleleText2;     ///< Unused.
    std::string AlleleText3;     ///< Unused.
    std::int32_t AlleleInt1 = 0; ///< How the row came about, an `AlleleOrigin`.
    std::int32_t AlleleInt2 = 0; ///< 1: virtual, not in the ladder.
    std::int32_t AlleleInt3 = 0; ///< Unused.

    bool operator==(const AlleleFields&) const = default;
};

/// Values of `AlleleFields::AlleleInt1`.
namespace AlleleOrigin
{
inline constexpr std::int32_t Generated = 0;
inline constexpr std::int32_t Edited = 1;
inline constexpr std::int32_t Imported = 2;
} // namespace AlleleOrigin

/// One row of a locus's allele list.
class Allele : public BusinessObject, public AlleleFields
{
public:
    std::string Name() const override { return AlleleText1; }

    /// Tells the allele which locus it belongs to.
    virtual void SetAlleleOwner(const std::shared_ptr<Locus>& owner) = 0;
};

} // namespace Tamrivo
