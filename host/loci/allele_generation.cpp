#include "host/loci/allele_generation.h"

#include "core/numbers.h"
#include "host/loci/start_at.h"

#include <limits>
#include <string>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(std::int32_t number, const std::string& reason)
{
    throw Failure(number, "GenerateAlleles", "No alleles were generated: " + reason);
}

/// Number of sizes from the shortest one up to the end of the range.
std::int64_t RowCount(const LocusFields& locus)
{
    if (locus.RepeatLength < 1)
        Refuse(ErrorNumber::InvalidArgument, "the repeat unit is " +
                                                 IntegerText(locus.RepeatLength) +
                                                 " nt long, and must be at least 1 nt");
    const std::int64_t span = std::int64_t{locus.FragEnd} - locus.ShortestAlleleSize;
    const std::int64_t count = span < 0 ? 0 : span / locus.RepeatLength + 1;
    if (count > MaximumGeneratedAlleles)
        Refuse(ErrorNumber::InvalidArgument,
               "the range from the shortest allele to the end of the fragment range would hold " +
                   std::to_string(count) + " of them, more than " +
                   std::to_string(MaximumGeneratedAlleles));
    return count;
}

double RepeatsInShortestAllele(const LocusFields& locus)
{
    if (!IsNumeric(locus.RepeatsInShortestAllele))
        Refuse(ErrorNumber::NotANumber, "the number of repeats in the shortest allele, \"" +
                                            locus.RepeatsInShortestAllele + "\", is no number");
    return ToDouble(locus.RepeatsInShortestAllele);
}

/// Gives the names of the rows one after the other.
class Names
{
public:
    explicit Names(const LocusFields& locus)
        : m_convention(locus.AlleleNamingConventionTypeID),
          m_letters(locus.StartAtAlphanumeric),
          m_number(locus.StartAtNumeric)
    {}

    std::string Next(std::int32_t size)
    {
        switch (m_convention)
        {
        case AlleleNamingConvention::NominalSize: return IntegerText(size);
        case AlleleNamingConvention::Alphabetic:
        {
            std::string name = m_letters;
            m_letters = NextStartAt(m_letters);
            return name;
        }
        case AlleleNamingConvention::Numeric:
            if (m_number > std::numeric_limits<std::int32_t>::max())
                Refuse(ErrorNumber::OutOfRange, "their numbers would not fit 32 bits");
            return IntegerText(static_cast<std::int32_t>(m_number++));
        default:
            Refuse(ErrorNumber::InvalidArgument,
                   "there is no allele naming convention " + IntegerText(m_convention));
        }
    }

private:
    std::int32_t m_convention;
    std::string m_letters;
    std::int64_t m_number;
};

} // namespace

double BinReach(const LocusFields& locus)
{
    if (locus.UserSpecifiedConfInt == 1)
        return locus.ConfInt;
    return locus.SystemConfInt == 0 ? LocusFields().SystemConfInt : locus.SystemConfInt;
}

std::vector<AlleleFields> GenerateAlleleRows(const LocusFields& locus)
{
    const auto count = static_cast<std::size_t>(RowCount(locus));
    const double firstRepeats = RepeatsInShortestAllele(locus);
    const double reach = BinReach(locus);

    std::vector<AlleleFields> rows(count);
    Names names(locus);
    std::int32_t size = locus.ShortestAlleleSize;
    for (std::size_t index = 0; index < count; ++index)
    {
        AlleleFields& row = rows[index];
        row.AlleleReal1 = size;
        row.AlleleReal2 = size - reach;
        row.AlleleReal3 = size + reach;
        row.AlleleReal4 = firstRepeats + static_cast<double>(index);
        row.AlleleText1 = names.Next(size);
        row.AlleleInt1 = AlleleOrigin::Generated;
        if (index + 1 < count)
            size += locus.RepeatLength;
    }
    return rows;
}

} // namespace Tamrivo
