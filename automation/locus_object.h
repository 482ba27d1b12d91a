#pragma once

#include "automation/memory_locus.h"
#include "automation/object.h"
#include "contracts/allele.h"

namespace Tamrivo::Automation
{

/// A locus as clients see it. Its alleles are objects of their own, which stay those of the locus.
class LocusObject final : public TableObject
{
public:
    explicit LocusObject(std::shared_ptr<MemoryLocus> locus) : m_locus(std::move(locus)) {}

    const Class& ClassOf() const override;
    const std::shared_ptr<MemoryLocus>& Shared() const { return m_locus; }

    Value GetField(const Member& member, const List&);
    Value PutField(const Member& member, const List& arguments);
    Value LocusTag(const Member&, const List&) { return m_locus->LocusTag(); }
    Value PutLocusTag(const Member&, const List& arguments);
    Value IsCurrent(const Member&, const List&) { return m_locus->IsCurrent(); }
    Value PutIsCurrent(const Member&, const List& arguments);
    Value LocusID(const Member&, const List&) { return m_locus->LocusID(); }
    Value PutLocusID(const Member&, const List& arguments);
    Value LocusTagID(const Member&, const List&) { return m_locus->LocusTagID(); }
    Value PutLocusTagID(const Member&, const List& arguments);
    Value DateLastModified(const Member&, const List&);
    Value Alleles(const Member&, const List&);
    Value AddAllele(const Member&, const List& arguments);
    Value RemoveAllele(const Member&, const List& arguments);
    Value GenerateAlleles(const Member&, const List&);
    Value Clone(const Member&, const List&);

private:
    Value Do(std::size_t position, const List& arguments) override;

    std::shared_ptr<MemoryLocus> m_locus;
};

/// An allele as clients see it.
class AlleleObject final : public TableObject
{
public:
    explicit AlleleObject(std::shared_ptr<Allele> allele) : m_allele(std::move(allele)) {}

    const Class& ClassOf() const override;
    const std::shared_ptr<Allele>& Shared() const { return m_allele; }

    Value GetField(const Member& member, const List&);
    Value PutField(const Member& member, const List& arguments);

private:
    Value Do(std::size_t position, const List& arguments) override;

    std::shared_ptr<Allele> m_allele;
};

/// A field of an allele by its name.
struct AlleleField
{
    std::string_view Name;
    std::variant<std::string AlleleFields::*, std::int32_t AlleleFields::*, double AlleleFields::*>
        Member;
};

inline constexpr std::array AlleleFieldTable{
    AlleleField{"AlleleReal1", &AlleleFields::AlleleReal1},
    AlleleField{"AlleleReal2", &AlleleFields::AlleleReal2},
    AlleleField{"AlleleReal3", &AlleleFields::AlleleReal3},
    AlleleField{"AlleleReal4", &AlleleFields::AlleleReal4},
    AlleleField{"AlleleReal5", &AlleleFields::AlleleReal5},
    AlleleField{"AlleleText1", &AlleleFields::AlleleText1},
    AlleleField{"AlleleText2", &AlleleFields::AlleleText2},
    AlleleField{"AlleleText3", &AlleleFields::AlleleText3},
    AlleleField{"AlleleInt1", &AlleleFields::AlleleInt1},
    AlleleField{"AlleleInt2", &AlleleFields::AlleleInt2},
    AlleleField{"AlleleInt3", &AlleleFields::AlleleInt3},
};

/// A property for each field of a table: a row to read it, and one to set it.
template <class T, class Fields>
constexpr auto FieldRows(const Fields& fields)
{
    // In the order of the variants.
    constexpr std::array types{Type::Text, Type::Long, Type::Double, Type::Boolean};
    std::array<Row<T>, 2 * std::size(Fields{})> rows;
    std::size_t next = 0;
    for (const auto& field : fields)
    {
        const Type type = types[field.Member.index()];
        rows[next++] = {{field.Name, Access::Get, type, {}}, &T::GetField};
        rows[next++] = {{field.Name, Access::Put, Type::None, {{{"value", type}}}}, &T::PutField};
    }
    return rows;
}

inline constexpr std::array LocusOwnRows{
    Row<LocusObject>{{"LocusTag", Access::Get, Type::Text, {}}, &LocusObject::LocusTag},
    Row<LocusObject>{{"LocusTag", Access::Put, Type::None, {{{"value", Type::Text}}}},
                     &LocusObject::PutLocusTag},
    Row<LocusObject>{{"IsCurrent", Access::Get, Type::Boolean, {}}, &LocusObject::IsCurrent},
    Row<LocusObject>{{"IsCurrent", Access::Put, Type::None, {{{"value", Type::Boolean}}}},
                     &LocusObject::PutIsCurrent},
    Row<LocusObject>{{"LocusID", Access::Get, Type::Long, {}}, &LocusObject::LocusID},
    Row<LocusObject>{{"LocusID", Access::Put, Type::None, {{{"value", Type::Long}}}},
                     &LocusObject::PutLocusID},
    Row<LocusObject>{{"LocusTagID", Access::Get, Type::Long, {}}, &LocusObject::LocusTagID},
    Row<LocusObject>{{"LocusTagID", Access::Put, Type::None, {{{"value", Type::Long}}}},
                     &LocusObject::PutLocusTagID},
    Row<LocusObject>{{"DateLastModified", Access::Get, Type::Text, {}},
                     &LocusObject::DateLastModified},
    Row<LocusObject>{{"Alleles", Access::Get, Type::Values, {}}, &LocusObject::Alleles},
    Row<LocusObject>{{"AddAllele", Access::Method, Type::None, {{{"allele", Type::Object}}}},
                     &LocusObject::AddAllele},
    Row<LocusObject>{{"RemoveAllele", Access::Method, Type::None, {{{"number", Type::Long}}}},
                     &LocusObject::RemoveAllele},
    Row<LocusObject>{{"GenerateAlleles", Access::Method, Type::None, {}},
                     &LocusObject::GenerateAlleles},
    Row<LocusObject>{{"Clone", Access::Method, Type::Object, {}}, &LocusObject::Clone},
};
inline constexpr auto LocusFieldRows = FieldRows<LocusObject>(std::to_array(LocusFieldTable));
inline constexpr auto LocusMembers = MembersOf(LocusOwnRows, LocusFieldRows);
inline constexpr Class LocusClass{"Locus", "3C1B2D54-6D0F-4E0B-9E2B-5A6D6A3F1B01",
                                  "A locus and its alleles.", LocusMembers};

inline constexpr auto AlleleFieldRows = FieldRows<AlleleObject>(AlleleFieldTable);
inline constexpr auto AlleleMembers = MembersOf(AlleleFieldRows);
inline constexpr Class AlleleClass{"Allele", "8E5F0A7C-1D52-4C39-8B63-2F4E9D7C6A02",
                                   "An allele of a locus.", AlleleMembers};

} // namespace Tamrivo::Automation
