#pragma once

#include "automation/memory_locus.h"
#include "automation/object.h"
#include "contracts/allele.h"

namespace Tamrivo::Automation
{

// Between the library's objects and those that clients see. What a client gives is either an object
// of the library, which stands for itself, or one of its own: its properties are then read by the
// names of the fields, those that it lacks keep their initial values, and the library goes on with
// what it has read.

ObjectPointer ToObject(const std::shared_ptr<BusinessObject>& object);

/// Raises `ErrorNumber::NoObject` for null and for an object without a LocusTag.
std::shared_ptr<MemoryLocus> ToLocus(const ObjectPointer& object);
/// Raises `ErrorNumber::NoObject` for null and for an object without an AlleleReal1.
std::shared_ptr<Allele> ToAllele(const ObjectPointer& object);

} // namespace Tamrivo::Automation
