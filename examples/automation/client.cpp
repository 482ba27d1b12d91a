// A client in C++ that knows the platform's headers alone. It creates the selector by name, lists
// its members from the type library, and lets a made-up person choose locus tags.
//
//     tamrivo_client

#include <windows.h>
// The order matters: what follows needs what stands above.
#include <oleauto.h>

#include <initializer_list>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

void Require(HRESULT result, const char* what)
{
    if (FAILED(result))
        throw std::runtime_error(std::string(what) + " failed with the result code " +
                                 std::to_string(result));
}

/// A `VARIANT` of the client's own.
class Value
{
public:
    Value() { VariantInit(&m_variant); }
    Value(const wchar_t* text) : Value()
    {
        V_VT(&m_variant) = VT_BSTR;
        V_BSTR(&m_variant) = SysAllocString(text);
    }
    Value(LONG number) : Value()
    {
        V_VT(&m_variant) = VT_I4;
        V_I4(&m_variant) = number;
    }
    Value(const Value& other) : Value() { VariantCopy(&m_variant, other.Read()); }
    Value& operator=(const Value& other)
    {
        VariantCopy(&m_variant, other.Read());
        return *this;
    }
    ~Value() { VariantClear(&m_variant); }

    VARIANT* Write() { return &m_variant; }
    VARIANT* Read() const { return const_cast<VARIANT*>(&m_variant); }

private:
    VARIANT m_variant;
};

/// A reference to an object, called by name.
class Object
{
public:
    explicit Object(IDispatch* object) : m_object(object) {}
    explicit Object(const Value& value) : m_object(V_DISPATCH(value.Read())) { m_object->AddRef(); }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    ~Object() { m_object->Release(); }

    IDispatch* operator->() const { return m_object; }

    Value Call(const wchar_t* name, std::initializer_list<Value> arguments = {},
               WORD use = DISPATCH_METHOD | DISPATCH_PROPERTYGET) const
    {
        auto* member = const_cast<wchar_t*>(name);
        DISPID number = 0;
        Require(m_object->GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &number),
                "a name");
        // The last argument comes first.
        std::vector<VARIANT> variants;
        for (auto each = arguments.end(); each != arguments.begin();)
            variants.push_back(*(--each)->Read());
        DISPID named = DISPID_PROPERTYPUT;
        const bool isPut = use == DISPATCH_PROPERTYPUT;
        DISPPARAMS parameters{variants.data(), isPut ? &named : nullptr,
                              static_cast<UINT>(variants.size()), isPut ? 1U : 0U};
        Value result;
        EXCEPINFO failure{};
        const HRESULT answer = m_object->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, use,
                                                &parameters, result.Write(), &failure, nullptr);
        if (answer == DISP_E_EXCEPTION)
            Fail(failure);
        Require(answer, "a call");
        return result;
    }

    void Put(const wchar_t* name, const Value& value) const
    {
        Call(name, {value}, DISPATCH_PROPERTYPUT);
    }

private:
    [[noreturn]] static void Fail(EXCEPINFO& failure)
    {
        const std::wstring text = failure.bstrDescription ? failure.bstrDescription : L"";
        SysFreeString(failure.bstrSource);
        SysFreeString(failure.bstrDescription);
        throw std::runtime_error(std::string(text.begin(), text.end()));
    }

    IDispatch* m_object;
};

Object Create(const wchar_t* name)
{
    CLSID id{};
    void* object = nullptr;
    Require(CLSIDFromProgID(name, &id), "finding the class");
    Require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object),
            "creating an object");
    return Object(static_cast<IDispatch*>(object));
}

/// The number of members that the type library tells of.
int MembersOf(const Object& object)
{
    ITypeInfo* type = nullptr;
    TYPEATTR* attributes = nullptr;
    Require(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type), "reading the type library");
    Require(type->GetTypeAttr(&attributes), "reading the type");
    const int count = attributes->cFuncs;
    type->ReleaseTypeAttr(attributes);
    type->Release();
    return count;
}

void StoreLocus(const Object& host, const wchar_t* tag)
{
    const Value created = host.Call(L"Create", {L"Locus"});
    const Object locus(created);
    locus.Put(L"LocusTag", tag);
    host.Call(L"Save", {created});
}

void Run()
{
    const Object selector = Create(L"Tamrivo.STRLocusTagSelector");
    std::cout << "the selector has " << MembersOf(selector) << " members\n";
    const Object host(selector.Call(L"Host"));
    StoreLocus(host, L"TH01");
    StoreLocus(host, L"FGA");

    const Value parameter = host.Call(L"Create", {L"AnalysisParameter"});
    selector.Call(L"Initialize", {parameter});
    selector.Call(L"CellRight", {L"gridAvailable", 1L, 1L});
    selector.Call(L"Pick", {L"mnuAdd"});
    try
    {
        selector.Call(L"CellClick", {L"gridSelected", 2L, 1L});
    }
    catch (const std::runtime_error& refusal)
    {
        std::cout << "refused: " << refusal.what() << '\n';
    }
    selector.Call(L"Save");
    const Value count = selector.Call(L"NumberOfSelectedLocusTags");
    std::cout << "selected: " << V_I4(count.Read()) << '\n';
}

} // namespace

int main()
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try
    {
        Run();
    }
    catch (const std::exception& failure)
    {
        std::cerr << failure.what() << '\n';
        status = 1;
    }
    CoUninitialize();
    return status;
}
