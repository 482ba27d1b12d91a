#pragma once

#include "contracts/allele.h"

#include <cstdint>

namespace Tamrivo
{

/// Calls `visit(name, value)` for each field of an allele, in one order always.
template <class Fields, class Visit>
void VisitAlleleFields(Fields& fields, Visit&& visit)
{
    visit("AlleleReal1", fields.AlleleReal1);
    visit("AlleleReal2", fields.AlleleReal2);
    visit("AlleleReal3", fields.AlleleReal3);
    visit("AlleleReal4", fields.AlleleReal4);
    visit("AlleleReal5", fields.AlleleReal5);
    visit("AlleleText1", fields.AlleleText1);
    visit("AlleleText2", fields.AlleleText2);
    visit("AlleleText3", fields.AlleleText3);
    visit("AlleleInt1", fields.AlleleInt1);
    visit("AlleleInt2", fields.AlleleInt2);
    visit("AlleleInt3", fields.AlleleInt3);
}

/// A row of the table Allele, as statements are bound to it.
struct AlleleRow
{
    std::int32_t LocusID = 0;
    std::int32_t Position = 0; ///< From 1 on.
    AlleleFields Fields;

    /// Calls `visit(name, value)` for each column, in one order always.
    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("LocusID", LocusID);
        visit("Position", Position);
        VisitAlleleFields(Fields, visit);
    }
};

} // namespace Tamrivo
