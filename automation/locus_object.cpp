#include "automation/locus_object.h"

#include "automation/conversions.h"
#include "core/dates.h"

namespace Tamrivo::Automation
{

namespace
{

template <class Fields>
const auto& FieldNamed(const Fields& fields, std::string_view name)
{
    return *std::ranges::find(fields, name, [](const auto& field) { return field.Name; });
}

/// The field that a member stands for, in a table of fields.
template <class Table, class Fields>
Value ReadField(const Table& table, const Fields& fields, const Member& member)
{
    return std::visit([&](auto field) { return Value(fields.*field); },
                      FieldNamed(table, member.Name).Member);
}

template <class Table, class Fields>
void WriteField(const Table& table, Fields& fields, const Member& member, const Value& value)
{
    std::visit(
        [&](auto field) {
            using Content = std::remove_reference_t<decltype(fields.*field)>;
            fields.*field = std::get<Content>(value);
        },
        FieldNamed(table, member.Name).Member);
}

} // namespace

const Class& LocusObject::ClassOf() const
{
    return LocusClass;
}

Value LocusObject::Do(std::size_t position, const List& arguments)
{
    return position < LocusOwnRows.size()
               ? DoRow(*this, LocusOwnRows, position, arguments)
               : DoRow(*this, LocusFieldRows, position - LocusOwnRows.size(), arguments);
}

Value LocusObject::GetField(const Member& member, const List&)
{
    return ReadField(LocusFieldTable, static_cast<const LocusFields&>(*m_locus), member);
}

Value LocusObject::PutField(const Member& member, const List& arguments)
{
    WriteField(LocusFieldTable, static_cast<LocusFields&>(*m_locus), member, arguments[0]);
    return {};
}

Value LocusObject::PutLocusTag(const Member&, const List& arguments)
{
    m_locus->SetLocusTag(Text(arguments, 0));
    return {};
}

Value LocusObject::PutIsCurrent(const Member&, const List& arguments)
{
    m_locus->SetIsCurrent(Argument<bool>(arguments, 0));
    return {};
}

Value LocusObject::PutLocusID(const Member&, const List& arguments)
{
    m_locus->SetLocusID(Long(arguments, 0));
    return {};
}

Value LocusObject::PutLocusTagID(const Member&, const List& arguments)
{
    m_locus->SetLocusTagID(Long(arguments, 0));
    return {};
}

Value LocusObject::DateLastModified(const Member&, const List&)
{
    return DateText(m_locus->DateLastModified());
}

Value LocusObject::Alleles(const Member&, const List&)
{
    List alleles;
    for (const auto& member : m_locus->Alleles().Members())
        alleles.push_back(std::make_shared<AlleleObject>(As<Allele>(member)));
    return alleles;
}

Value LocusObject::AddAllele(const Member&, const List& arguments)
{
    const auto allele = ToAllele(Argument<ObjectPointer>(arguments, 0));
    allele->SetAlleleOwner(m_locus);
    m_locus->Alleles().Add(allele);
    return {};
}

Value LocusObject::RemoveAllele(const Member&, const List& arguments)
{
    m_locus->Alleles().Remove(Long(arguments, 0));
    return {};
}

Value LocusObject::GenerateAlleles(const Member&, const List&)
{
    m_locus->GenerateAlleles();
    return {};
}

Value LocusObject::Clone(const Member&, const List&)
{
    return ToObject(m_locus->Clone());
}

const Class& AlleleObject::ClassOf() const
{
    return AlleleClass;
}

Value AlleleObject::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, AlleleFieldRows, position, arguments);
}

Value AlleleObject::GetField(const Member& member, const List&)
{
    return ReadField(AlleleFieldTable, static_cast<const AlleleFields&>(*m_allele), member);
}

Value AlleleObject::PutField(const Member& member, const List& arguments)
{
    WriteField(AlleleFieldTable, static_cast<AlleleFields&>(*m_allele), member, arguments[0]);
    return {};
}

} // namespace Tamrivo::Automation
