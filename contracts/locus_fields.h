#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace Tamrivo
{

/// Values of `LocusFields::AlleleNamingConventionTypeID`.
namespace AlleleNamingConvention
{
inline constexpr std::int32_t NominalSize = 1000;
inline constexpr std::int32_t Alphabetic = 1001;
inline constexpr std::int32_t Numeric = 1002;
} // namespace AlleleNamingConvention

/// Values of `LocusFields::PrimerLabelTypeID`.
namespace PrimerLabel
{
inline constexpr std::int32_t Forward = 1003;
inline constexpr std::int32_t Reverse = 1004;
inline constexpr std::int32_t None = 1005;
} // namespace PrimerLabel

/// What a locus holds besides its tag, its identity and its alleles. All of it is set by whoever
/// edits the locus; the initial values are those of a new locus.
struct LocusFields
{
    std::string LocusName;
    std::int32_t ProjectID = 0; ///< `Project::ProjectID`; 0: none chosen yet.
    std::string ProjectName;
    std::int32_t DyeIndex = 0;     ///< Position in the list of dyes, 0 to 3.
    std::int32_t FragStart = 60;   ///< Start of the fragment length range, nt.
    std::int32_t FragEnd = 640;    ///< End of the fragment length range, nt.
    std::int32_t RepeatLength = 4; ///< Length of the repeat unit, nt.
    std::string RepeatUnitSequence;
    std::int32_t ShortestAlleleSize = 60;      ///< nt
    std::string RepeatsInShortestAllele = "1"; ///< A number, as text.
    std::int32_t AlleleNamingConventionTypeID = AlleleNamingConvention::NominalSize;
    std::string StartAtAlphanumeric = "A"; ///< First allele name of alphabetic naming.
    std::int32_t StartAtNumeric = 1;       ///< First allele number of numeric naming.
    std::string PrimerSet;
    std::string GenBank; ///< Accession.
    std::int32_t PrimerLabelTypeID = PrimerLabel::None;
    std::string FwdPrimer;                 ///< 5' to 3'
    std::string RevPrimer;                 ///< 5' to 3'
    double ConfInt = 0.5;                  ///< Confidence interval entered by the user, +/- nt.
    double SystemConfInt = 0.5;            ///< System generated confidence interval, +/- nt.
    std::int32_t UserSpecifiedConfInt = 0; ///< 1: `ConfInt` overrides `SystemConfInt`.
    bool SearchForStutter = false;
    bool DetShortStutter = true;   ///< Detect stutter shorter than the allele.
    bool DetLongStutter = false;   ///< Detect stutter longer than the allele.
    std::int32_t StutterWidth = 1; ///< Detection window, repeats.
    std::int32_t RelStutter = 15;  ///< Maximum height relative to the allele's peak, percent.
    bool ApparentSizeIncludesA = false;
    bool DetectA = false;
    bool UseA = false; ///< Call the allele by its +A peak.
    bool DetectSpuriousPeaks = false;
    std::int32_t MaxSpurHeight = 10; ///< Maximum height of spurious peaks, percent.
    std::int32_t Ploidy = 2;

    bool operator==(const LocusFields&) const = default;
};

/// A field by its name.
struct LocusField
{
    std::string_view Name;
    std::variant<std::string LocusFields::*, std::int32_t LocusFields::*, double LocusFields::*,
                 bool LocusFields::*>
        Member;
};

/// All members of `LocusFields` in their order.
inline constexpr LocusField LocusFieldTable[] = {
    {"LocusName", &LocusFields::LocusName},
    {"ProjectID", &LocusFields::ProjectID},
    {"ProjectName", &LocusFields::ProjectName},
    {"DyeIndex", &LocusFields::DyeIndex},
    {"FragStart", &LocusFields::FragStart},
    {"FragEnd", &LocusFields::FragEnd},
    {"RepeatLength", &LocusFields::RepeatLength},
    {"RepeatUnitSequence", &LocusFields::RepeatUnitSequence},
    {"ShortestAlleleSize", &LocusFields::ShortestAlleleSize},
    {"RepeatsInShortestAllele", &LocusFields::RepeatsInShortestAllele},
    {"AlleleNamingConventionTypeID", &LocusFields::AlleleNamingConventionTypeID},
    {"StartAtAlphanumeric", &LocusFields::StartAtAlphanumeric},
    {"StartAtNumeric", &LocusFields::StartAtNumeric},
    {"PrimerSet", &LocusFields::PrimerSet},
    {"GenBank", &LocusFields::GenBank},
    {"PrimerLabelTypeID", &LocusFields::PrimerLabelTypeID},
    {"FwdPrimer", &LocusFields::FwdPrimer},
    {"RevPrimer", &LocusFields::RevPrimer},
    {"ConfInt", &LocusFields::ConfInt},
    {"SystemConfInt", &LocusFields::SystemConfInt},
    {"UserSpecifiedConfInt", &LocusFields::UserSpecifiedConfInt},
    {"SearchForStutter", &LocusFields::SearchForStutter},
    {"DetShortStutter", &LocusFields::DetShortStutter},
    {"DetLongStutter", &LocusFields::DetLongStutter},
    {"StutterWidth", &LocusFields::StutterWidth},
    {"RelStutter", &LocusFields::RelStutter},
    {"ApparentSizeIncludesA", &LocusFields::ApparentSizeIncludesA},
    {"DetectA", &LocusFields::DetectA},
    {"UseA", &LocusFields::UseA},
    {"DetectSpuriousPeaks", &LocusFields::DetectSpuriousPeaks},
    {"MaxSpurHeight", &LocusFields::MaxSpurHeight},
    {"Ploidy", &LocusFields::Ploidy},
};

} // namespace Tamrivo
