#pragma once

#include "core/error.h"
#include "core/keyed.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace Tamrivo
{

/// What an `ObjectManager` creates, finds and stores. Objects are shared: whoever holds one sees
/// what another holder writes to it.
class BusinessObject
{
public:
    virtual ~BusinessObject() = default;

    /// The text by which the object is listed.
    virtual std::string Name() const = 0;
};

/// Business objects in an order, counted from 1. In a list of loci a member is also found by its
/// tag as it stands at the moment of the call, without minding case or trailing blanks on either
/// side; of several members with one tag the first is found.
class ObjectList : public Keyed
{
public:
    virtual std::int32_t Count() const = 0;

    /// The member at a 1-based index. Raises `ErrorNumber::InvalidArgument` when there is none.
    virtual std::shared_ptr<BusinessObject> Item(std::int32_t index) const = 0;
    /// The member with the key. Raises `ErrorNumber::InvalidArgument` when there is none.
    virtual std::shared_ptr<BusinessObject> Item(const std::string& key) const = 0;

    /// Appends an object.
    virtual void Add(std::shared_ptr<BusinessObject> object) = 0;
    /// Removes the member at a 1-based index. Raises `ErrorNumber::InvalidArgument` when there is
    /// none.
    virtual void Remove(std::int32_t index) = 0;

    /// The members in list order; valid until the list changes.
    virtual std::span<const std::shared_ptr<BusinessObject>> Members() const = 0;
};

/// The object as one of class `T`. Raises `ErrorNumber::NoObject` for no object or one of another
/// class.
template <class T>
std::shared_ptr<T> As(const std::shared_ptr<BusinessObject>& object)
{
    auto typed = std::dynamic_pointer_cast<T>(object);
    if (!typed)
        throw Failure(ErrorNumber::NoObject, "As",
                      object ? "\"" + object->Name() + "\" is an object of another class"
                             : "There is no object");
    return typed;
}

} // namespace Tamrivo
