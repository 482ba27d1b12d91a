#pragma once

#include "contracts/business_object.h"

#include <memory>
#include <string_view>

namespace Tamrivo
{

/// Creates, finds and stores business objects. Every call may raise a failure of the store.
class ObjectManager
{
public:
    virtual ~ObjectManager() = default;

    /// A new, unsaved object: "Locus", "Allele" or "Grid".
    virtual std::shared_ptr<BusinessObject> Create(std::string_view key) = 0;

    /// The objects that a query finds, ordered by a property name or, with an empty ordering, as
    /// the store gives them. The result is a snapshot: a later `Save` doesn't change it, and its
    /// members are objects of its own. The arguments without a name never vary: two empty texts, 0
    /// and true. Queries: "CurrentLoci" (class `Locus`) and "Projects" (class `Project`).
    virtual std::shared_ptr<ObjectList> Query(std::string_view name, std::string_view,
                                              std::string_view, std::string_view ordering,
                                              std::int32_t, bool) = 0;

    /// Stores the object, a locus with its alleles. The argument without a name is always true.
    virtual void Save(BusinessObject& object, bool) = 0;
};

/// The host's one shared `ObjectManager`, created on first use.
class ObjectManagerGlobal
{
public:
    virtual ~ObjectManagerGlobal() = default;
    virtual ObjectManager& Manager() = 0;
};

/// A new object of class `T`, which the manager creates under `key`.
template <class T>
std::shared_ptr<T> CreateObject(ObjectManager& manager, std::string_view key)
{
    return As<T>(manager.Create(key));
}

/// All loci that are current, as a snapshot; `ordering` is "Name" or empty.
inline std::shared_ptr<ObjectList> CurrentLoci(ObjectManager& manager, std::string_view ordering)
{
    return manager.Query("CurrentLoci", "", "", ordering, 0, true);
}

/// All projects, as the store gives them.
inline std::shared_ptr<ObjectList> Projects(ObjectManager& manager)
{
    return manager.Query("Projects", "", "", "", 0, true);
}

} // namespace Tamrivo
