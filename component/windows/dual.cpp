#include "component/windows/dual.h"

#include "component/windows/failures.h"
#include "component/windows/text.h"
#include "component/windows/variants.h"

#include <utility>

namespace Tamrivo
{

using namespace Automation;

namespace
{

/// How a type passes through a function of a dual interface.
template <Type type>
struct Native
{
    using In = VARIANT;
    static Value From(const VARIANT& value) { return ToValue(value); }
    static VARIANT To(VARIANT& value) { return std::exchange(value, VARIANT{}); }
};
template <>
struct Native<Type::Boolean>
{
    using In = VARIANT_BOOL;
    static Value From(In value) { return value != VARIANT_FALSE; }
    static In To(const VARIANT& value) { return V_BOOL(&value); }
};
template <>
struct Native<Type::Long>
{
    using In = LONG;
    static Value From(In value) { return static_cast<std::int32_t>(value); }
    static In To(const VARIANT& value) { return V_I4(&value); }
};
template <>
struct Native<Type::Double>
{
    using In = double;
    static Value From(In value) { return value; }
    static In To(const VARIANT& value) { return V_R8(&value); }
};
template <>
struct Native<Type::Text>
{
    using In = BSTR;
    static Value From(In value) { return Utf8(value); }
    static In To(VARIANT& value)
    {
        V_VT(&value) = VT_EMPTY;
        return V_BSTR(&value);
    }
};
template <>
struct Native<Type::Object>
{
    using In = IDispatch*;
    static Value From(In value) { return ObjectOf(value); }
    static In To(VARIANT& value)
    {
        V_VT(&value) = VT_EMPTY;
        return V_DISPATCH(&value);
    }
};

/// Calls a member and lets no exception out.
template <class Call, class Take>
HRESULT Answer(Face& self, Call call, Take take)
{
    Face::AddRef(&self);
    HRESULT result = S_OK;
    try
    {
        SetErrorInfo(0, nullptr);
        Variant answer;
        *answer.Out() = NewVariant(call());
        take(*answer.Out());
    }
    catch (...)
    {
        result = Raise(RecordOfCurrent());
    }
    Face::Release(&self);
    return result;
}

template <const Class& type, std::size_t position, std::size_t parameter>
using Parameter = Native<type.Members[position].Parameters[parameter].Of>;

/// The function of a member.
template <const Class& type, std::size_t position, class Parameters>
struct Function;

template <const Class& type, std::size_t position, std::size_t... parameters>
struct Function<type, position, std::index_sequence<parameters...>>
{
    static constexpr Type Result = type.Members[position].Result;
    using Out = typename Native<Result>::In;

    static HRESULT STDMETHODCALLTYPE
    Do(Face* self, typename Parameter<type, position, parameters>::In... arguments)
    {
        return Answer(
            *self,
            [&] {
                return self->Object().CallAt(
                    position, {Parameter<type, position, parameters>::From(arguments)...});
            },
            [](VARIANT&) {});
    }

    static HRESULT STDMETHODCALLTYPE
    Give(Face* self, typename Parameter<type, position, parameters>::In... arguments, Out* out)
    {
        if (!out)
            return E_POINTER;
        *out = Out{};
        return Answer(
            *self,
            [&] {
                return ConvertTo(
                    Result,
                    self->Object().CallAt(
                        position, {Parameter<type, position, parameters>::From(arguments)...}),
                    "The result");
            },
            [&](VARIANT& answer) { *out = Native<Result>::To(answer); });
    }

    static Slot Entry()
    {
        if constexpr (Result == Type::None)
            return reinterpret_cast<Slot>(&Do);
        else
            return reinterpret_cast<Slot>(&Give);
    }
};

template <const Class& type, std::size_t position>
Slot EntryOf()
{
    constexpr std::size_t count = type.Members[position].Count();
    return Function<type, position, std::make_index_sequence<count>>::Entry();
}

template <const Class& type, std::size_t... positions>
const Slot* TableOf(std::index_sequence<positions...>)
{
    static const Slot table[] = {reinterpret_cast<Slot>(&Face::QueryInterface),
                                 reinterpret_cast<Slot>(&Face::AddRef),
                                 reinterpret_cast<Slot>(&Face::Release),
                                 reinterpret_cast<Slot>(&Face::GetTypeInfoCount),
                                 reinterpret_cast<Slot>(&Face::GetTypeInfo),
                                 reinterpret_cast<Slot>(&Face::GetIDsOfNames),
                                 reinterpret_cast<Slot>(&Face::Invoke),
                                 EntryOf<type, positions>()...};
    return table;
}

template <std::size_t... classes>
const Slot* FindTable(const Class& type, std::index_sequence<classes...>)
{
    const Slot* found = nullptr;
    ((AllClasses[classes] == &type
          ? void(found = TableOf<*AllClasses[classes]>(
                     std::make_index_sequence<AllClasses[classes]->Members.size()>()))
          : void()),
     ...);
    return found;
}

} // namespace

const Slot* DualTable(const Class& type)
{
    return FindTable(type, std::make_index_sequence<AllClasses.size()>());
}

} // namespace Tamrivo
