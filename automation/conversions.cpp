#include "automation/conversions.h"

#include "automation/locus_object.h"
#include "host/store/stored_allele.h"

#include <string>

namespace Tamrivo::Automation
{

namespace
{

void RequireObject(const ObjectPointer& object, const std::string& kind)
{
    if (!object)
        throw Failure(ErrorNumber::NoObject, "Automation",
                      "There is no object where " + kind + " is needed");
}

/// Copies the properties of an object into another one of the class `To`, whose names they bear.
/// The first of them must be there.
void CopyProperties(Object& from, TableObject& to, std::string_view first, const std::string& kind)
{
    for (const Member& member : to.ClassOf().Members)
    {
        if (member.How != Access::Put)
            continue;
        Value value;
        try
        {
            value = from.Get(member.Name);
        }
        catch (const Failure& failure)
        {
            if (failure.Record().Number != ClientError::NoSuchMember)
                throw;
            if (member.Name == first)
                throw Failure(ErrorNumber::NoObject, "Automation",
                              "The object is not " + kind + ": it has no " + std::string(first));
            continue;
        }
        to.Put(member.Name, value);
    }
}

} // namespace

ObjectPointer ToObject(const std::shared_ptr<BusinessObject>& object)
{
    if (const auto allele = std::dynamic_pointer_cast<Allele>(object))
        return std::make_shared<AlleleObject>(allele);
    return std::make_shared<LocusObject>(As<MemoryLocus>(object));
}

std::shared_ptr<MemoryLocus> ToLocus(const ObjectPointer& object)
{
    RequireObject(object, "a locus");
    if (const auto* own = dynamic_cast<LocusObject*>(object.get()))
        return own->Shared();
    auto locus = std::make_shared<MemoryLocus>();
    LocusObject copy(locus);
    CopyProperties(*object, copy, "LocusTag", "a locus");
    return locus;
}

std::shared_ptr<Allele> ToAllele(const ObjectPointer& object)
{
    RequireObject(object, "an allele");
    if (const auto* own = dynamic_cast<AlleleObject*>(object.get()))
        return own->Shared();
    auto allele = std::make_shared<StoredAllele>();
    AlleleObject copy(allele);
    CopyProperties(*object, copy, "AlleleReal1", "an allele");
    return allele;
}

} // namespace Tamrivo::Automation
