#include "host/fit/proposal_cautions.h"

#include "core/numbers.h"
#include "host/fit/proposal.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr const char* ofAnotherKit =
    ". Compare with a sample whose alleles are known. If the proposed names are wrong, the sizes "
    "of "
    "the locus's alleles are those of another kit: delete its alleles, set its shortest allele and "
    "that one's repeats, and fit again";

/// Texts with commas between, the first few of them.
class ShortList
{
public:
    void Add(const std::string& text)
    {
        constexpr std::size_t most = 4;
        if (++m_count <= most)
            m_text.append(m_text.empty() ? "" : ", ").append(text);
        else
            m_more = " and " + std::to_string(m_count - most) + " more";
    }
    bool IsEmpty() const { return m_count == 0; }
    std::string Text() const { return m_text + m_more; }

private:
    std::size_t m_count = 0;
    std::string m_text;
    std::string m_more;
};

std::string AtSize(const AlleleFields& allele)
{
    return allele.AlleleText1 + " at " + DoubleText(allele.AlleleReal1) + " nt";
}

/// The allele whose bin has the size; null: none has.
const AlleleFields* AlleleAt(std::span<const AlleleFields* const> known, double size)
{
    const auto found = std::ranges::find_if(known, [size](const AlleleFields* allele) {
        return allele->AlleleReal2 <= size && size <= allele->AlleleReal3;
    });
    return found == known.end() ? nullptr : *found;
}

/// Empty: the names agree.
std::string NamesThatDisagree(std::span<const AlleleFields* const> known,
                              std::span<const ProposedAllele> proposed)
{
    ShortList others;
    ShortList news;
    std::size_t kept = 0;
    for (const auto& [allele, count] : proposed)
    {
        const auto isSame = [&name = allele.AlleleText1](const AlleleFields* other) {
            return HasAlleleName(*other, name);
        };
        const AlleleFields* const there = AlleleAt(known, allele.AlleleReal1);
        if (there != nullptr && !isSame(there))
            others.Add(AtSize(allele) + " is " + there->AlleleText1);
        if (std::ranges::any_of(known, isSame))
            ++kept;
        else
            news.Add(AtSize(allele));
    }
    if (!others.IsEmpty())
        return "The locus has other names where the sizes are: " + others.Text() + ofAnotherKit;
    if (known.size() >= proposed.size() && kept * 2 < proposed.size())
        return "The locus has " + std::to_string(kept) + " of the " +
               std::to_string(proposed.size()) + " proposed names; new are " + news.Text() +
               ofAnotherKit;
    return {};
}

/// Empty: all alleles are in the range.
std::string AllelesOutside(const LocusFields& locus, std::span<const ProposedAllele> proposed)
{
    ShortList outside;
    for (const auto& [allele, count] : proposed)
    {
        if (allele.AlleleReal1 < locus.FragStart || allele.AlleleReal1 > locus.FragEnd)
            outside.Add(AtSize(allele));
    }
    if (outside.IsEmpty())
        return {};
    return "Outside the range of " + IntegerText(locus.FragStart) + " to " +
           IntegerText(locus.FragEnd) + " nt: " + outside.Text() +
           ". Set a range that has them, or take sizes that aren't of the locus out of the table";
}

} // namespace

std::vector<std::string> CautionsOf(const LocusFields& locus,
                                    std::span<const AlleleFields* const> known,
                                    std::span<const ProposedAllele> proposed)
{
    std::vector<std::string> cautions;
    for (const std::string& caution :
         {NamesThatDisagree(known, proposed), AllelesOutside(locus, proposed)})
    {
        if (!caution.empty())
            cautions.push_back(caution);
    }
    return cautions;
}

} // namespace Tamrivo
