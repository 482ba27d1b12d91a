#include "host/checks/loci_beside.h"

#include "core/text.h"
#include "host/checks/store_check.h"
#include "host/loci/keys.h"
#include "host/store/bulk_alleles.h"
#include "host/store/locus_table.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace Tamrivo
{

namespace
{

/// The lengths that range and bins of a locus take, nt.
std::pair<double, double> ReachOf(const CheckedLocus& locus)
{
    std::pair<double, double> reach(locus.Fields.FragStart, locus.Fields.FragEnd);
    for (const AlleleFields* allele : locus.Alleles)
    {
        reach.first = std::min(reach.first, allele->AlleleReal2);
        reach.second = std::max(reach.second, allele->AlleleReal3);
    }
    return reach;
}

bool HaveSamePrimers(const LocusFields& left, const LocusFields& right)
{
    return !left.FwdPrimer.empty() && EqualNoCase(Trim(left.FwdPrimer), Trim(right.FwdPrimer)) &&
           EqualNoCase(Trim(left.RevPrimer), Trim(right.RevPrimer));
}

} // namespace

struct LociBeside::Beside
{
    CheckedLocus Locus;
    std::pair<double, double> Reach;
};

LociBeside::LociBeside(Store& store, const Dyes& dyes, const std::string& tag,
                       const std::string& panel)
    : m_store(store), m_dyes(dyes), m_tag(tag), m_panel(FoldCase(Trim(panel)))
{}

LociBeside::~LociBeside() = default;

bool LociBeside::Step()
{
    if (!m_numbers)
        ReadNumbers();
    else if (!m_isRead)
        ReadLoci();
    else if (m_beside.size() < m_loci.size())
        ReadAlleles();
    else
        return false;
    return true;
}

void LociBeside::ReadNumbers()
{
    m_numbers.emplace();
    ParameterStore parameters(m_store);
    const std::int32_t number = FindLocusNumber(m_store.SharedDatabase(), m_tag);
    for (const std::string& name : parameters.NamesUsing(number))
    {
        const auto parameter = parameters.Open(name);
        const auto& tagList = parameter->FragAnalysisParam().TagList;
        for (const auto& entry : tagList->Entries())
            m_numbers->insert(entry->TagID(0));
    }
    m_isRead = m_numbers->empty() && m_panel.empty();
}

void LociBeside::ReadLoci()
{
    const std::string key = LookupKey(m_tag);
    auto some = m_store.CurrentLociAfter(m_last, LociAtOnce);
    m_isRead = some.size() < LociAtOnce;
    if (!some.empty())
        m_last = some.back()->LocusID();
    std::erase_if(some, [&](const std::shared_ptr<StoredLocus>& locus) {
        const std::string panel = FoldCase(Trim(locus->PrimerSet));
        return locus->TagKey() == key ||
               !(m_numbers->contains(locus->LocusTagID()) || (!panel.empty() && panel == m_panel));
    });
    std::ranges::move(some, std::back_inserter(m_loci));
}

void LociBeside::ReadAlleles()
{
    const std::size_t begin = m_beside.size();
    const std::size_t count = std::min(LociAtOnce, m_loci.size() - begin);
    LoadAlleles(LociWithoutAlleles(std::span(std::as_const(m_loci)).subspan(begin, count)));
    for (std::size_t at = begin; at < begin + count; ++at)
    {
        CheckedLocus locus = CheckedLocusOf(*m_loci[at], m_dyes);
        const auto reach = ReachOf(locus);
        m_beside.push_back({std::move(locus), reach});
    }
}

std::vector<Finding> LociBeside::FindingsOf(const CheckedLocus& edited) const
{
    std::vector<Finding> found;
    CheckLocus(edited, AllCheckRules(), found);
    const auto [from, to] = ReachOf(edited);
    LociTogether together;
    for (const Beside& beside : m_beside)
    {
        const LocusFields& fields = beside.Locus.Fields;
        const bool isNear = fields.DyeIndex == edited.Fields.DyeIndex && beside.Reach.first <= to &&
                            from <= beside.Reach.second;
        if (isNear || HaveSamePrimers(fields, edited.Fields))
            together.Loci.push_back(&beside.Locus);
    }
    // Of loci with the same primers the last one is told of.
    together.Loci.push_back(&edited);
    const std::size_t alone = found.size();
    CheckGroup(together, AllCheckRules(), found);
    found.erase(std::remove_if(found.begin() + static_cast<std::ptrdiff_t>(alone), found.end(),
                               [&](const Finding& finding) { return finding.Tag != edited.Tag; }),
                found.end());
    std::ranges::stable_sort(found, {}, &Finding::Rule);
    return found;
}

} // namespace Tamrivo
