#pragma once

#include "contracts/allele.h"
#include "contracts/object_manager.h"
#include "host/store/store.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace Tamrivo::Testing
{

// Stores for the programs that do them harm.

constexpr int AllelesOfSample = 25;
constexpr int LociOfUpdate = 5;
constexpr int MarkersOfPanel = 20;

inline void Require(bool isSo, const std::string& otherwise)
{
    if (!isSo)
        throw std::runtime_error(otherwise);
}

/// A directory that goes with the object.
class TemporaryDirectory
{
public:
    TemporaryDirectory()
    {
        std::string name = std::filesystem::temp_directory_path() / "tamrivo_faults.XXXXXX";
        m_path = mkdtemp(name.data());
    }
    ~TemporaryDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// Gives the locus and its alleles a number by which a half locus would show.
inline void SetEverywhere(Locus& locus, int number)
{
    locus.FragEnd = number;
    for (const auto& allele : locus.Alleles().Members())
        As<Allele>(allele)->AlleleReal1 = number;
}

/// That number. Raises `std::runtime_error` when it isn't the same everywhere.
inline int NumberEverywhere(Locus& locus)
{
    Require(locus.Alleles().Count() == AllelesOfSample, "a locus lacks alleles");
    for (const auto& allele : locus.Alleles().Members())
        Require(As<Allele>(allele)->AlleleReal1 == locus.FragEnd, "a locus is half another one");
    return locus.FragEnd;
}

inline void SaveSample(Store& store, const std::string& tag, int saves = 1)
{
    const auto locus = CreateObject<Locus>(store.Manager(), "Locus");
    locus->SetLocusTag(tag);
    for (int number = 0; number < AllelesOfSample; ++number)
    {
        auto allele = CreateObject<Allele>(store.Manager(), "Allele");
        allele->AlleleText1 = std::to_string(number);
        locus->Alleles().Add(allele);
    }
    for (int number = 0; number < saves; ++number)
    {
        SetEverywhere(*locus, number);
        store.Manager().Save(*locus, true);
    }
}

/// "Saved", "U0" to "U4" and, with two revisions, "Restored".
inline void FillSample(const std::string& address)
{
    Store store(address);
    SaveSample(store, "Saved");
    SaveSample(store, "Restored", 2);
    for (int at = 0; at < LociOfUpdate; ++at)
        SaveSample(store, "U" + std::to_string(at));
}

/// A panel table of markers whose names begin so.
inline std::string PanelOf(const std::string& prefix)
{
    std::string text = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tVirtual\tColor\tRepeat"
                       "\tMarker.Min\tMarker.Max\tOffset\n";
    for (int marker = 0; marker < MarkersOfPanel; ++marker)
    {
        for (int allele = 5; allele < 15; ++allele)
        {
            const std::string size = std::to_string(80 + 4 * allele);
            text += "Panel\t" + prefix + std::to_string(marker) + '\t' + std::to_string(allele) +
                    '\t' + size + ".25\t" + size + "\t" + size +
                    ".5\t0\tblue\t4\t90.5\t240.5\t80\n";
        }
    }
    return text;
}

} // namespace Tamrivo::Testing
