#include "core/numbers.h"
#include "core/text.h"
#include "host/checks/check_rules.h"
#include "host/checks/nucleotides.h"

#include <string_view>
#include <utility>

namespace Tamrivo
{

namespace
{

struct SequenceField
{
    std::string_view Name;
    std::string LocusFields::*Text;
    const char* What;
};

constexpr SequenceField sequenceFields[] = {
    {"RepeatUnitSequence", &LocusFields::RepeatUnitSequence, "repeat sequence"},
    {"FwdPrimer", &LocusFields::FwdPrimer, "forward primer"},
    {"RevPrimer", &LocusFields::RevPrimer, "reverse primer"},
};

/// Nucleotides and their ambiguity codes (NC-IUB 1984, IUPAC-IUB nomenclature).
constexpr std::string_view nucleotideLetters = "ACGTURYSWKMBDHVNacgturyswkmbdhvn";

} // namespace

void CheckRepeatLength(const CheckedLocus& locus, Findings& findings)
{
    const std::string sequence = Trim(locus.Fields.RepeatUnitSequence);
    const std::size_t length = CharacterCount(sequence);
    if (length > 0 && std::cmp_not_equal(length, locus.Fields.RepeatLength))
        findings.OfField(locus, "RepeatUnitSequence",
                         "The repeat sequence " + sequence + " has " + std::to_string(length) +
                             " nt; expected the repeat length of " +
                             NtText(locus.Fields.RepeatLength));
}

void CheckLetters(const CheckedLocus& locus, Findings& findings)
{
    for (const SequenceField& field : sequenceFields)
    {
        const std::string sequence = Trim(locus.Fields.*field.Text);
        const std::size_t wrong = sequence.find_first_not_of(nucleotideLetters);
        if (wrong == std::string::npos)
            continue;
        const std::size_t place = CharacterCount(sequence.substr(0, wrong));
        findings.OfField(locus, field.Name,
                         "The " + std::string(field.What) + " has \"" +
                             Characters(sequence, place, 1) + "\" as letter " +
                             std::to_string(place + 1) +
                             "; expected the IUPAC nucleotide codes "
                             "ACGTU and RYSWKMBDHVN");
    }
}

void CheckUnknownDye(const CheckedLocus& locus, Findings& findings)
{
    if (!locus.HasKnownDye)
        findings.OfField(locus, "DyeIndex",
                         "The dye " + locus.Dye + " is none of the store's; expected one of them");
}

} // namespace Tamrivo
