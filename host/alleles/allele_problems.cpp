#include "host/alleles/allele_problems.h"

#include "core/text.h"

#include <algorithm>
#include <tuple>

namespace Tamrivo
{

namespace
{

class Check
{
public:
    explicit Check(const AlleleRows& rows) : m_rows(rows) {}

    std::vector<AlleleProblem> Run()
    {
        CheckNames();
        CheckSizes();
        CheckBins();
        std::ranges::stable_sort(m_problems, {}, &AlleleProblem::Row);
        return std::move(m_problems);
    }

private:
    void Add(std::size_t position, std::string reason)
    {
        m_problems.push_back({Row(position), std::move(reason)});
    }

    static std::int32_t Row(std::size_t position)
    {
        return static_cast<std::int32_t>(position) + 1;
    }

    void CheckNames()
    {
        struct Named
        {
            std::string Name;
            std::size_t Position;
        };
        std::vector<Named> named;
        for (std::size_t i = 0; i < m_rows.size(); ++i)
        {
            std::string name = FoldCase(Trim(m_rows[i]->AlleleText1));
            if (name.empty())
                Add(i, "The name is missing");
            else
                named.push_back({std::move(name), i});
        }
        std::ranges::stable_sort(named, {}, &Named::Name);

        for (auto first = named.begin(); first != named.end();)
        {
            const auto end = std::find_if(
                first, named.end(), [&](const Named& other) { return other.Name != first->Name; });
            for (auto same = first; end - first > 1 && same != end; ++same)
            {
                const auto other = same == first ? first + 1 : first;
                Add(same->Position,
                    "The name is the same as in row " + std::to_string(Row(other->Position)));
            }
            first = end;
        }
    }

    void CheckSizes()
    {
        for (std::size_t i = 0; i < m_rows.size(); ++i)
        {
            const Allele& allele = *m_rows[i];
            if (!(allele.AlleleReal2 <= allele.AlleleReal1 &&
                  allele.AlleleReal1 <= allele.AlleleReal3))
                Add(i, "The size lies outside the bin");
        }
    }

    void CheckBins()
    {
        for (const auto& [row, other] : OverlappingBins(m_rows))
        {
            AddOverlap(row, other);
            AddOverlap(other, row);
        }
    }

    void AddOverlap(std::int32_t row, std::int32_t other)
    {
        m_problems.push_back({row, "The bin overlaps that of row " + std::to_string(other)});
    }

    const AlleleRows& m_rows;
    std::vector<AlleleProblem> m_problems;
};

} // namespace

std::vector<std::pair<std::int32_t, std::int32_t>> OverlappingBins(const AlleleRows& rows)
{
    struct Bin
    {
        double From;
        double To;
        std::int32_t Row;
    };
    std::vector<Bin> bins;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        const Bin bin{rows[i]->AlleleReal2, rows[i]->AlleleReal3, static_cast<std::int32_t>(i) + 1};
        if (bin.From <= bin.To)
            bins.push_back(bin);
    }
    std::ranges::sort(bins, {},
                      [](const Bin& bin) { return std::tuple(bin.From, bin.To, bin.Row); });

    // Of the bins that start further left, the one that reaches furthest right overlaps a bin if
    // any of them does.
    std::vector<std::pair<std::int32_t, std::int32_t>> pairs;
    const Bin* reaching = nullptr;
    for (const Bin& bin : bins)
    {
        const bool isSame = reaching && bin.From == reaching->From && bin.To == reaching->To;
        if (reaching && (bin.From < reaching->To || isSame))
            pairs.emplace_back(bin.Row, reaching->Row);
        if (!reaching || bin.To >= reaching->To)
            reaching = &bin;
    }
    return pairs;
}

std::vector<AlleleProblem> AlleleProblems(const AlleleRows& rows)
{
    return Check(rows).Run();
}

std::vector<AlleleProblem> AlleleWarnings(const AlleleRows& rows)
{
    std::vector<AlleleProblem> warnings;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        if (rows[i]->AlleleReal2 == rows[i]->AlleleReal3)
            warnings.push_back({static_cast<std::int32_t>(i) + 1, "The bin has no width"});
    }
    return warnings;
}

} // namespace Tamrivo
