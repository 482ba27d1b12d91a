#include "host/panels/allele_update.h"

#include "host/panels/cells.h"
#include "host/panels/osiris/kit_names.h"

#include <algorithm>
#include <unordered_map>

namespace Tamrivo
{

namespace
{

std::string KeyOf(const std::string& name)
{
    const auto number = CellNumber(name);
    return number ? NumberCell(*number) : name;
}

std::string KeyOf(const AlleleFields& stored, const PanelMarker& marker)
{
    return marker.IsNominal ? KitAlleleName(stored) : KeyOf(stored.AlleleText1);
}

struct NumberOfAllele
{
    std::string_view Column;
    double AlleleFields::*Member;
};

constexpr NumberOfAllele numbersOfAllele[] = {{"Size", &AlleleFields::AlleleReal1},
                                              {"Size.Min", &AlleleFields::AlleleReal2},
                                              {"Size.Max", &AlleleFields::AlleleReal3}};

class Updater
{
public:
    Updater(const std::vector<AlleleFields>& stored, const std::vector<AlleleFields>& stated,
            const PanelMarker& marker)
        : m_marker(marker)
    {
        for (const AlleleFields& allele : stated)
            m_stated[KeyOf(allele.AlleleText1)].push_back(&allele);
        for (const AlleleFields& allele : stored)
            UpdateStored(allele);
        AddNew(stated);
    }

    AlleleUpdate Take() { return std::move(m_update); }

private:
    void UpdateStored(const AlleleFields& stored)
    {
        const auto stated = m_stated.find(KeyOf(stored, m_marker));
        if (stated != m_stated.end() && !stated->second.empty())
        {
            m_update.Alleles.push_back(Updated(stored, *stated->second.front()));
            stated->second.erase(stated->second.begin());
        }
        else if (m_marker.IsNominal && stored.AlleleInt2 == 1)
            m_update.Alleles.push_back(stored);
        else
            m_update.Differences.push_back({"Allele", stored.AlleleText1, stored.AlleleText1, ""});
    }

    AlleleFields Updated(const AlleleFields& stored, const AlleleFields& stated)
    {
        AlleleFields allele = stored;
        const std::size_t before = m_update.Differences.size();
        if (!m_marker.IsNominal)
        {
            for (const NumberOfAllele& number : numbersOfAllele)
                Change(allele, number.Member, stated, number.Column);
        }
        if (m_marker.Stated.Virtual)
            Change(allele, &AlleleFields::AlleleInt2, stated, "Virtual");
        if (m_marker.Stated.Repeats)
            Change(allele, &AlleleFields::AlleleReal4, stated, "AlleleReal4");
        if (m_marker.Stated.Origin)
            Change(allele, &AlleleFields::AlleleInt1, stated, "AlleleInt1");
        else if (m_update.Differences.size() > before)
            allele.AlleleInt1 = AlleleOrigin::Imported;
        return allele;
    }

    template <class Value>
    void Change(AlleleFields& allele, Value AlleleFields::*member, const AlleleFields& stated,
                std::string_view column)
    {
        if (allele.*member == stated.*member)
            return;
        m_update.Differences.push_back({std::string(column), allele.AlleleText1,
                                        NumberCell(allele.*member), NumberCell(stated.*member)});
        allele.*member = stated.*member;
    }

    void AddNew(const std::vector<AlleleFields>& stated)
    {
        bool isAny = false;
        for (const AlleleFields& allele : stated)
        {
            auto& left = m_stated[KeyOf(allele.AlleleText1)];
            if (std::ranges::find(left, &allele) == left.end())
                continue;
            isAny = true;
            m_update.Alleles.push_back(allele);
            m_update.Differences.push_back({"Allele", allele.AlleleText1, "", allele.AlleleText1});
        }
        if (isAny)
            std::ranges::stable_sort(m_update.Alleles, {}, &AlleleFields::AlleleReal1);
    }

    const PanelMarker& m_marker;
    std::unordered_map<std::string, std::vector<const AlleleFields*>> m_stated;
    AlleleUpdate m_update;
};

} // namespace

AlleleUpdate UpdateAlleles(const std::vector<AlleleFields>& stored,
                           const std::vector<AlleleFields>& stated, const PanelMarker& marker)
{
    return Updater(stored, stated, marker).Take();
}

} // namespace Tamrivo
