#pragma once

#include "contracts/business_object.h"
#include "contracts/locus_fields.h"
#include "core/dates.h"
#include "core/event.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Tamrivo
{

/// One locus tag: the definition of an STR locus under a name of its own.
class Locus : public BusinessObject, public LocusFields
{
public:
    /// The tag; key of every list of loci. Blanks at its end stay but don't count in a lookup.
    virtual const std::string& LocusTag() const = 0;
    virtual void SetLocusTag(const std::string& tag) = 0;

    /// Whether the locus is among the current ones. A change raises `IsCurrentChanged`.
    virtual bool IsCurrent() const = 0;
    virtual void SetIsCurrent(bool isCurrent) = 0;
    Event<> IsCurrentChanged;

    /// Greater than 0 once the locus is stored.
    virtual std::int32_t LocusID() const = 0;
    /// Less than 1 until the tag is stored. Analysis parameters refer to the locus by it.
    virtual std::int32_t LocusTagID() const = 0;
    /// When the locus was stored last; none before.
    virtual Date DateLastModified() const = 0;

    /// The locus's own alleles, members of class `Allele`. May raise a failure of the store.
    virtual ObjectList& Alleles() = 0;

    /// A new, independent locus with alleles of its own.
    virtual std::shared_ptr<Locus> Clone() = 0;
    /// Rebuilds `Alleles` from the fields.
    virtual void GenerateAlleles() = 0;
    /// The alphabetic start text one step after, and one step before, the given one.
    virtual std::string NextStartAt(const std::string& text) const = 0;
    virtual std::string PreviousStartAt(const std::string& text) const = 0;
};

} // namespace Tamrivo
