#pragma once

#include <windows.h>
// The order matters: what follows needs what stands above.
#include <oleauto.h>
#include <psapi.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// What the tests of the registered module need of the platform.
namespace Client
{

struct Releaser
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Pointer = std::unique_ptr<Interface, Releaser>;

inline constexpr const wchar_t* ClassNames[] = {L"Tamrivo.Service", L"Tamrivo.LocusEditorPage",
                                                L"Tamrivo.STRLocusTagSelector",
                                                L"Tamrivo.SaveAsLocusPage"};

inline CLSID IdOf(const wchar_t* name)
{
    CLSID id{};
    CLSIDFromProgID(name, &id);
    return id;
}

/// A new object; null when it can't be created.
inline Pointer<IDispatch> Create(const wchar_t* name)
{
    void* object = nullptr;
    CoCreateInstance(IdOf(name), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object);
    return Pointer<IDispatch>(static_cast<IDispatch*>(object));
}

/// Variants that are cleared in the end, in the order that automation wants.
class Arguments
{
public:
    Arguments() = default;
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;
    ~Arguments()
    {
        for (VARIANT& variant : m_variants)
            VariantClear(&variant);
    }
    void Add(const VARIANT& variant) { m_variants.push_back(variant); }
    void AddText(const wchar_t* text)
    {
        VARIANT variant{};
        V_VT(&variant) = VT_BSTR;
        V_BSTR(&variant) = SysAllocString(text);
        m_variants.insert(m_variants.begin(), variant);
    }
    DISPPARAMS Parameters()
    {
        return {m_variants.data(), nullptr, static_cast<UINT>(m_variants.size()), 0};
    }

private:
    std::vector<VARIANT> m_variants;
};

inline DISPID NumberOf(IDispatch& object, const wchar_t* name)
{
    auto* member = const_cast<wchar_t*>(name);
    DISPID number = DISPID_UNKNOWN;
    object.GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &number);
    return number;
}

/// Memory that the process occupies, bytes.
inline std::size_t Memory()
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

} // namespace Client
