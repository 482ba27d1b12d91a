#include "host/alleles/allele_columns.h"

#include "controls/user.h"
#include "core/numbers.h"
#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

bool IsControlCharacter(char byte)
{
    return (byte >= 0 && byte < ' ') || byte == 0x7F;
}

void SetName(AlleleFields& allele, std::string_view text)
{
    const std::string trimmed = Trim(text);
    if (std::ranges::any_of(trimmed, IsControlCharacter))
        throw User::Refusal("A name can't hold tabs, line ends or other control characters");
    if (CharacterCount(trimmed) > MaxAlleleName)
        throw User::Refusal("A name can't be longer than " + std::to_string(MaxAlleleName) +
                            " characters");
    allele.AlleleText1 = trimmed;
}

template <double AlleleFields::*member>
void SetNumber(AlleleFields& allele, std::string_view text)
{
    try
    {
        allele.*member = ToDouble(text);
    }
    catch (const Failure& failure)
    {
        throw User::Refusal(failure.Record().Description);
    }
}

template <double AlleleFields::*member>
std::string Number(const AlleleFields& allele)
{
    return DoubleText(allele.*member);
}

void SetVirtual(AlleleFields& allele, std::string_view text)
{
    const std::string word = Trim(text);
    const bool isVirtual = EqualNoCase(word, "true");
    if (!isVirtual && !EqualNoCase(word, "false"))
        throw User::Refusal("\"" + word + "\" is neither true nor false");
    allele.AlleleInt2 = isVirtual ? 1 : 0;
}

std::string RepeatsText(const AlleleFields& allele)
{
    return allele.AlleleReal4 == 0 ? "" : DoubleText(allele.AlleleReal4);
}

} // namespace

const AlleleColumn AlleleColumns[7] = {
    {"name", "Name", CellKind::Text, [](const AlleleFields& allele) { return allele.AlleleText1; },
     SetName},
    {"size", "Size (nt)", CellKind::Number, Number<&AlleleFields::AlleleReal1>,
     SetNumber<&AlleleFields::AlleleReal1>},
    {"from", "Bin from (nt)", CellKind::Number, Number<&AlleleFields::AlleleReal2>,
     SetNumber<&AlleleFields::AlleleReal2>},
    {"to", "Bin to (nt)", CellKind::Number, Number<&AlleleFields::AlleleReal3>,
     SetNumber<&AlleleFields::AlleleReal3>},
    {"virtual", "Virtual", CellKind::Truth,
     [](const AlleleFields& allele) -> std::string {
         return allele.AlleleInt2 == 1 ? "true" : "false";
     },
     SetVirtual},
    {"repeats", "Repeats", CellKind::Number, RepeatsText, nullptr},
    {"origin", "Origin", CellKind::Text,
     [](const AlleleFields& allele) { return OriginText(allele.AlleleInt1); }, nullptr},
};

std::string OriginText(std::int32_t origin)
{
    switch (origin)
    {
    case AlleleOrigin::Generated: return "generated";
    case AlleleOrigin::Edited: return "edited";
    case AlleleOrigin::Imported: return "imported";
    default: return IntegerText(origin);
    }
}

} // namespace Tamrivo
