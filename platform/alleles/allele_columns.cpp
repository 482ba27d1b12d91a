#include "platform/alleles/allele_columns.h"

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

void Set(std::string& name, std::string_view text)
{
    const std::string trimmed = Trim(text);
    if (std::ranges::any_of(trimmed, IsControlCharacter))
        throw User::Refusal("A name can't hold tabs, line ends or other control characters");
    if (CharacterCount(trimmed) > MaxAlleleName)
        throw User::Refusal("A name can't be longer than " + std::to_string(MaxAlleleName) +
                            " characters");
    name = trimmed;
}

void Set(double& number, std::string_view text)
{
    try
    {
        number = ToDouble(text);
    }
    catch (const Failure& failure)
    {
        throw User::Refusal(failure.Record().Description);
    }
}

const std::string& Text(const std::string& name)
{
    return name;
}

std::string Text(double number)
{
    return DoubleText(number);
}

} // namespace

std::string CellText(const AlleleFields& allele, const AlleleColumn& column)
{
    return std::visit([&](auto member) -> std::string { return Text(allele.*member); },
                      column.Member);
}

void SetCellText(AlleleFields& allele, const AlleleColumn& column, std::string_view text)
{
    std::visit([&](auto member) { Set(allele.*member, text); }, column.Member);
}

} // namespace Tamrivo
