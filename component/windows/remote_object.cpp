#include "component/windows/remote_object.h"

#include "component/windows/failures.h"
#include "component/windows/text.h"
#include "component/windows/variants.h"

#include <dispex.h>

#include <memory>

namespace Tamrivo
{

using namespace Automation;

namespace
{

// The import libraries lack it.
constexpr IID IID_Extended{
    0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

/// Arguments as automation wants them: the last one first.
class Arguments
{
public:
    explicit Arguments(const List& values) : m_variants(values.size())
    {
        auto place = m_variants.rbegin();
        for (const Value& value : values)
            *place++ = NewVariant(value);
    }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;
    ~Arguments()
    {
        for (VARIANT& variant : m_variants)
            VariantClear(&variant);
    }

    VARIANT* First() { return m_variants.data(); }

private:
    std::vector<VARIANT> m_variants;
};

WORD FlagsOf(Access how, const List& arguments)
{
    if (how == Access::Get)
        return DISPATCH_PROPERTYGET;
    if (how == Access::Method)
        return DISPATCH_METHOD;
    const bool isObject =
        !arguments.empty() && std::holds_alternative<ObjectPointer>(arguments.back());
    return isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
}

} // namespace

DISPID RemoteObject::NumberOf(std::string_view name) const
{
    std::wstring wide = Wide(name);
    DISPID number = DISPID_UNKNOWN;
    HRESULT result = DISP_E_UNKNOWNNAME;
    IDispatchEx* extended = nullptr;
    if (SUCCEEDED(m_client->QueryInterface(IID_Extended, reinterpret_cast<void**>(&extended))))
    {
        const BSTR text = SysAllocString(wide.c_str());
        result = extended->GetDispID(text, fdexNameCaseInsensitive, &number);
        SysFreeString(text);
        extended->Release();
    }
    LPOLESTR names = wide.data();
    if (FAILED(result))
        result = m_client->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &number);
    // The last is the answer of those that know `IDispatchEx` alone.
    if (result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND || result == E_NOTIMPL)
        throw Failure(ClientError::NoSuchMember, "Host",
                      "The client's object has no member \"" + std::string(name) + "\"");
    if (FAILED(result))
    {
        EXCEPINFO none{};
        throw Failure(RecordOf(result, none, name));
    }
    return number;
}

Value RemoteObject::Call(std::string_view name, Access how, const List& arguments)
{
    // The call may give up the last reference to this object.
    const auto alive = shared_from_this();
    const DISPID number = NumberOf(name);
    Arguments variants(arguments);
    DISPID named = DISPID_PROPERTYPUT;
    const bool isPut = how == Access::Put;
    DISPPARAMS parameters{variants.First(), isPut ? &named : nullptr,
                          static_cast<UINT>(arguments.size()), isPut ? 1U : 0U};
    Variant result;
    EXCEPINFO info{};
    UINT wrong = 0;
    const HRESULT answer =
        m_client->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, FlagsOf(how, arguments),
                         &parameters, isPut ? nullptr : result.Out(), &info, &wrong);
    if (answer == DISP_E_MEMBERNOTFOUND)
        throw Failure(ClientError::NoSuchMember, "Host",
                      "The client's object has no member \"" + std::string(name) +
                          "\" for this use");
    if (FAILED(answer))
        throw Failure(RecordOf(answer, info, name));
    return ToValue(result);
}

} // namespace Tamrivo
