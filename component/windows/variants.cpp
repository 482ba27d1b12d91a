#include "component/windows/variants.h"

#include "component/windows/face.h"
#include "component/windows/remote_object.h"
#include "component/windows/text.h"

namespace Tamrivo
{

using namespace Automation;

namespace
{

[[noreturn]] void FailKind(VARTYPE kind)
{
    throw Failure(Tamrivo::ErrorNumber::NotANumber, "Automation",
                  "A value of the kind " + std::to_string(kind) + " can't be passed here");
}

Value ToNumber(const VARIANT& variant)
{
    Variant number;
    if (FAILED(VariantChangeType(number.Out(), const_cast<VARIANT*>(&variant), 0, VT_R8)))
        FailKind(V_VT(&variant));
    const double value = V_R8(number.Out());
    const auto whole =
        static_cast<std::int64_t>(value > -3e9 && value < 3e9 ? value : 0x7FFFFFFFFFLL);
    const bool isLong = V_VT(&variant) != VT_R8 && V_VT(&variant) != VT_R4 &&
                        static_cast<double>(whole) == value &&
                        whole == static_cast<std::int32_t>(whole);
    return isLong ? Value(static_cast<std::int32_t>(whole)) : Value(value);
}

Value ToList(SAFEARRAY* array)
{
    LONG first = 0;
    LONG last = -1;
    VARTYPE kind = VT_EMPTY;
    if (!array || SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetLBound(array, 1, &first)) ||
        FAILED(SafeArrayGetUBound(array, 1, &last)) || FAILED(SafeArrayGetVartype(array, &kind)))
        FailKind(VT_ARRAY);
    List list;
    for (LONG i = first; i <= last; ++i)
    {
        Variant element;
        V_VT(element.Out()) = kind == VT_VARIANT ? VARTYPE{VT_EMPTY} : kind;
        void* const place =
            kind == VT_VARIANT ? element.Out() : static_cast<void*>(&V_I8(element.Out()));
        if (FAILED(SafeArrayGetElement(array, &i, place)))
            FailKind(VT_ARRAY);
        list.push_back(ToValue(element));
    }
    return list;
}

Value ToObjectValue(IUnknown* unknown)
{
    IDispatch* dispatch = nullptr;
    if (!unknown)
        return ObjectPointer();
    if (FAILED(unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
        throw Failure(Tamrivo::ErrorNumber::NoObject, "Automation",
                      "The object can't be called by name");
    auto object = ObjectOf(dispatch);
    dispatch->Release();
    return object;
}

SAFEARRAY* NewArray(const List& list)
{
    SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(list.size()));
    if (!array)
        throw std::bad_alloc();
    for (LONG i = 0; const Value& value : list)
    {
        Variant element;
        *element.Out() = NewVariant(value);
        SafeArrayPutElement(array, &i, element.Out());
        ++i;
    }
    return array;
}

struct ToVariant
{
    VARIANT& Variant;

    void operator()(std::monostate) const {}
    void operator()(bool value) const
    {
        V_VT(&Variant) = VT_BOOL;
        V_BOOL(&Variant) = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int32_t value) const
    {
        V_VT(&Variant) = VT_I4;
        V_I4(&Variant) = value;
    }
    void operator()(double value) const
    {
        V_VT(&Variant) = VT_R8;
        V_R8(&Variant) = value;
    }
    void operator()(const std::string& value) const
    {
        V_BSTR(&Variant) = NewText(value);
        V_VT(&Variant) = VT_BSTR;
    }
    void operator()(const ObjectPointer& value) const
    {
        V_DISPATCH(&Variant) = NewFace(value);
        V_VT(&Variant) = VT_DISPATCH;
    }
    void operator()(const List& value) const
    {
        V_ARRAY(&Variant) = NewArray(value);
        V_VT(&Variant) = VT_ARRAY | VT_VARIANT;
    }
};

} // namespace

Value ToValue(const VARIANT& variant)
{
    const VARTYPE kind = V_VT(&variant);
    if (kind == (VT_BYREF | VT_VARIANT))
        return ToValue(*V_VARIANTREF(&variant));
    if (kind == (VT_BYREF | VT_ARRAY | VT_VARIANT))
        return ToList(*V_ARRAYREF(&variant));
    if (kind & VT_BYREF)
    {
        Variant direct;
        if (FAILED(VariantCopyInd(direct.Out(), const_cast<VARIANT*>(&variant))))
            FailKind(kind);
        return ToValue(direct);
    }
    if (kind & VT_ARRAY)
        return ToList(V_ARRAY(&variant));
    switch (kind)
    {
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR: return {};
    case VT_BOOL: return V_BOOL(&variant) != VARIANT_FALSE;
    case VT_BSTR: return Utf8(V_BSTR(&variant));
    case VT_DISPATCH: return ObjectOf(V_DISPATCH(&variant));
    case VT_UNKNOWN: return ToObjectValue(V_UNKNOWN(&variant));
    default: return ToNumber(variant);
    }
}

VARIANT NewVariant(const Value& value)
{
    VARIANT variant;
    VariantInit(&variant);
    std::visit(ToVariant{variant}, value);
    return variant;
}

IDispatch* NewFace(const ObjectPointer& object)
{
    if (!object)
        return nullptr;
    if (const auto* remote = dynamic_cast<RemoteObject*>(object.get()))
        return remote->NewReference();
    return Face::New(std::dynamic_pointer_cast<TableObject>(object));
}

ObjectPointer ObjectOf(IDispatch* client)
{
    if (!client)
        return nullptr;
    if (auto own = Face::ObjectBehind(*client))
        return own;
    return std::make_shared<RemoteObject>(client);
}

} // namespace Tamrivo
