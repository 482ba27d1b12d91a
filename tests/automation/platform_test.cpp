#include "tests/automation/platform_client.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

// The registered module under the platform's own calls. TAMRIVO_CREATIONS and TAMRIVO_CALLS in the
// environment say how often something is created, and how many random calls are made.

namespace Client
{

namespace
{

int Times(const char* variable, int usual)
{
    const char* const text = std::getenv(variable);
    return text ? std::atoi(text) : usual;
}

class Platform : public testing::Test
{
protected:
    Platform() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Platform() override { CoUninitialize(); }
};

HRESULT Call(IDispatch& object, const wchar_t* name, Arguments& arguments, EXCEPINFO* info,
             VARIANT* result = nullptr)
{
    DISPPARAMS parameters = arguments.Parameters();
    return object.Invoke(NumberOf(object, name), IID_NULL, LOCALE_USER_DEFAULT,
                         DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, result, info,
                         nullptr);
}

/// Creates an object and makes its page, or what else stands behind it.
bool CreateAndUse(const wchar_t* name)
{
    const auto object = Create(name);
    if (!object)
        return false;
    const bool isService = std::wstring_view(name).ends_with(L"Service");
    Arguments none;
    VARIANT result{};
    const HRESULT answer =
        Call(*object, isService ? L"ContextTypes" : L"Controls", none, nullptr, &result);
    VariantClear(&result);
    return SUCCEEDED(answer);
}

TEST_F(Platform, CreatesAgainAndAgainWithoutALeak)
{
    const int times = Times("TAMRIVO_CREATIONS", 1000);
    const auto run = [&](int count) {
        for (int i = 0; i < count; ++i)
        {
            for (const wchar_t* name : ClassNames)
                ASSERT_TRUE(CreateAndUse(name));
        }
    };
    run(200);
    const std::size_t before = Memory();
    run(times);
    const std::size_t after = Memory();
    std::cout << times << " of each class: " << before / 1024 << " KiB before, " << after / 1024
              << " KiB after\n";
    EXPECT_LT(after, before + 1024 * 1024);
}

TEST_F(Platform, KeepsTheRulesOfClassObjects)
{
    void* place = nullptr;
    ASSERT_EQ(CoGetClassObject(IdOf(ClassNames[1]), CLSCTX_INPROC_SERVER, nullptr,
                               IID_IClassFactory, &place),
              S_OK);
    const Pointer<IClassFactory> factory(static_cast<IClassFactory*>(place));
    const auto outer = Create(ClassNames[0]);
    EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, &place), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStream, &place), E_NOINTERFACE);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, nullptr), E_POINTER);
}

TEST_F(Platform, CanBeUnloadedOnceNothingIsHeld)
{
    {
        const auto loads = Create(ClassNames[0]);
    }
    const auto canUnload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"Tamrivo.dll"), "DllCanUnloadNow")));
    ASSERT_TRUE(canUnload);
    EXPECT_EQ(canUnload(), S_OK);
    auto object = Create(ClassNames[1]);
    EXPECT_EQ(canUnload(), S_FALSE);
    object.reset();
    void* place = nullptr;
    CoGetClassObject(IdOf(ClassNames[0]), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, &place);
    Pointer<IClassFactory> factory(static_cast<IClassFactory*>(place));
    factory->LockServer(TRUE);
    auto* const kept = factory.get();
    EXPECT_EQ(canUnload(), S_FALSE);
    kept->LockServer(FALSE);
    factory.reset();
    EXPECT_EQ(canUnload(), S_OK);
}

TEST_F(Platform, TellsFailuresAsNumberSourceAndDescription)
{
    const auto page = Create(ClassNames[1]);
    EXCEPINFO info{};
    Arguments one;
    one.AddText(L"txtRepeat");
    EXPECT_EQ(Call(*page, L"Paste", one, &info), DISP_E_EXCEPTION);
    EXPECT_EQ(info.scode, static_cast<HRESULT>(0x800A01C2));
    EXPECT_STREQ(info.bstrSource, L"Page");
    EXPECT_STREQ(info.bstrDescription, L"Page.Paste takes 2 arguments, not 1");
    Arguments two;
    two.AddText(L"cmdSaveAs");
    EXPECT_EQ(Call(*page, L"Click", two, &info), DISP_E_EXCEPTION);
    EXPECT_EQ(info.scode, static_cast<HRESULT>(0x80040211));
    EXPECT_STREQ(info.bstrDescription, L"The page isn't open; call Open first");
    EXPECT_EQ(NumberOf(*page, L"Jump"), DISPID_UNKNOWN);
    Arguments none;
    EXPECT_EQ(page->Invoke(4711, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, &info, nullptr),
              E_INVALIDARG);
}

/// Calls through the tables of the dual interface, as the type library describes them.
TEST_F(Platform, AnswersThroughTheDualInterface)
{
    const auto page = Create(ClassNames[1]);
    ITypeInfo* type = nullptr;
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(page->GetTypeInfo(0, LOCALE_USER_DEFAULT, &type), S_OK);
    const Pointer<ITypeInfo> held(type);
    HREFTYPE dual = 0;
    ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
    const IID id = attributes->guid;
    type->ReleaseTypeAttr(attributes);
    ASSERT_EQ(type->GetRefTypeOfImplType(static_cast<UINT>(-1), &dual), S_OK);
    ITypeInfo* table = nullptr;
    ASSERT_EQ(type->GetRefTypeInfo(dual, &table), S_OK);
    const Pointer<ITypeInfo> functions(table);
    void* place = nullptr;
    ASSERT_EQ(page->QueryInterface(id, &place), S_OK);
    const Pointer<IUnknown> face(static_cast<IUnknown*>(place));

    const auto call = [&](const wchar_t* name, Arguments& arguments, VARIANT* result,
                          EXCEPINFO* info) {
        DISPPARAMS parameters = arguments.Parameters();
        return functions->Invoke(face.get(), NumberOf(*page, name),
                                 DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, result, info,
                                 nullptr);
    };
    Arguments read;
    read.AddText(L"txtRepeat");
    read.AddText(L"MaxLength");
    VARIANT result{};
    EXCEPINFO info{};
    EXPECT_EQ(call(L"Read", read, &result, &info), S_OK);
    EXPECT_EQ(V_VT(&result), VT_I4);
    Arguments none;
    VariantClear(&result);
    EXPECT_EQ(call(L"Validate", none, &result, &info), DISP_E_EXCEPTION);
    EXPECT_EQ(info.scode, static_cast<HRESULT>(0x80040211));
    EXPECT_STREQ(info.bstrDescription, L"The page isn't open; call Open first");
}

/// A host whose program has ended.
class GoneHost : public IDispatch
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        const bool isKnown = riid == IID_IUnknown || riid == IID_IDispatch;
        *object = isKnown ? this : nullptr;
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return RPC_E_DISCONNECTED; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override
    {
        return RPC_E_DISCONNECTED;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return RPC_E_DISCONNECTED;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override
    {
        return RPC_E_DISCONNECTED;
    }
};

TEST_F(Platform, SaysThatAHostIsGone)
{
    GoneHost host;
    const auto selector = Create(ClassNames[2]);
    VARIANT value{};
    V_VT(&value) = VT_DISPATCH;
    V_DISPATCH(&value) = &host;
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&value, &put, 1, 1};
    EXPECT_EQ(selector->Invoke(NumberOf(*selector, L"Host"), IID_NULL, LOCALE_USER_DEFAULT,
                               DISPATCH_PROPERTYPUTREF, &parameters, nullptr, nullptr, nullptr),
              S_OK);
    Arguments answer;
    answer.AddText(L"yes");
    EXCEPINFO info{};
    EXPECT_EQ(Call(*selector, L"Answer", answer, &info), DISP_E_EXCEPTION);
    EXPECT_STREQ(info.bstrDescription, L"The client's object is gone, and Answer can't be called: "
                                       L"its program has ended");
}

/// Values of every kind, good and bad.
class RandomValues
{
public:
    RandomValues(std::mt19937& random, std::vector<Pointer<IDispatch>>& objects)
        : m_random(random), m_objects(objects)
    {}

    /// A member that the object has, and as many arguments as it takes, mostly of its types.
    void Fit(IDispatch& object, DISPID& number, Arguments& arguments)
    {
        ITypeInfo* type = nullptr;
        if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, &type)))
            return;
        const Pointer<ITypeInfo> held(type);
        TYPEATTR* attributes = nullptr;
        FUNCDESC* function = nullptr;
        type->GetTypeAttr(&attributes);
        const auto position = static_cast<UINT>(m_random() % attributes->cFuncs);
        type->ReleaseTypeAttr(attributes);
        if (FAILED(type->GetFuncDesc(position, &function)))
            return;
        number = function->memid;
        for (SHORT i = function->cParams; i > 0; --i)
        {
            const VARTYPE kind = function->lprgelemdescParam[i - 1].tdesc.vt;
            VARIANT value = Next();
            for (int tries = 0; tries < 20 && V_VT(&value) != kind; ++tries)
            {
                VariantClear(&value);
                value = Next();
            }
            arguments.Add(value);
        }
        type->ReleaseFuncDesc(function);
    }

    VARIANT Next(int depth = 0)
    {
        static const wchar_t* const texts[] = {L"",
                                               L"txtRepeat",
                                               L"txtFragEnd",
                                               L"cmdGenAlleleList",
                                               L"Locus",
                                               L"Text",
                                               L"4",
                                               L"-1",
                                               L"1e300",
                                               L"gridAvailable",
                                               L"CurrentLoci",
                                               L"Parameters",
                                               L"Binning",
                                               L"AnalysisParameter",
                                               L"mnuAdd",
                                               L"\xD800",
                                               L"LocusTag",
                                               L"\u0416\U0001F600"};
        static const double numbers[] = {0, 1, -1, 2.5, 1e10, 1e300, 4711, 1e308 * 10};
        VARIANT value{};
        switch (m_random() % 10)
        {
        case 0: V_VT(&value) = static_cast<VARTYPE>(m_random() % 2); break;
        case 1:
            V_VT(&value) = VT_I4;
            V_I4(&value) = static_cast<LONG>(m_random() % 3 ? m_random() % 12 : m_random());
            break;
        case 2:
            V_VT(&value) = VT_R8;
            V_R8(&value) = numbers[m_random() % std::size(numbers)];
            break;
        case 3:
            V_VT(&value) = VT_BOOL;
            V_BOOL(&value) = static_cast<VARIANT_BOOL>(m_random() % 2 ? -1 : 0);
            break;
        case 4:
            V_VT(&value) = VT_ARRAY | VT_VARIANT;
            V_ARRAY(&value) = Array(depth);
            break;
        case 5:
        case 6:
            V_VT(&value) = VT_DISPATCH;
            V_DISPATCH(&value) = m_random() % 8 ? Object() : nullptr;
            break;
        case 7:
            V_VT(&value) = VT_ERROR;
            V_ERROR(&value) = DISP_E_PARAMNOTFOUND;
            break;
        default:
            V_VT(&value) = VT_BSTR;
            V_BSTR(&value) = SysAllocString(texts[m_random() % std::size(texts)]);
        }
        return value;
    }

private:
    IDispatch* Object()
    {
        IDispatch* const object = m_objects[m_random() % m_objects.size()].get();
        object->AddRef();
        return object;
    }

    SAFEARRAY* Array(int depth)
    {
        const ULONG size = depth < 2 ? m_random() % 3 : 0;
        SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, size);
        for (LONG i = 0; i < static_cast<LONG>(size); ++i)
        {
            VARIANT element = Next(depth + 1);
            SafeArrayPutElement(array, &i, &element);
            VariantClear(&element);
        }
        return array;
    }

    std::mt19937& m_random;
    std::vector<Pointer<IDispatch>>& m_objects;
};

TEST_F(Platform, SurvivesRandomCalls)
{
    std::mt19937 random(15);
    std::vector<Pointer<IDispatch>> objects;
    RandomValues values(random, objects);
    int failed = 0;
    const int times = Times("TAMRIVO_CALLS", 5000);
    for (int i = 0; i < times; ++i)
    {
        if (objects.size() < 4)
            objects.push_back(Create(ClassNames[random() % std::size(ClassNames)]));
        if (objects.size() > 40)
            objects.erase(objects.begin() + static_cast<std::ptrdiff_t>(random() % 40));
        IDispatch& object = *objects[random() % objects.size()];
        Arguments arguments;
        DISPID number = static_cast<DISPID>(random() % 40);
        const bool isFitting = random() % 3 != 0;
        if (isFitting)
            values.Fit(object, number, arguments);
        for (auto count = isFitting ? 0 : random() % 4; count > 0; --count)
            arguments.Add(values.Next());
        DISPPARAMS parameters = arguments.Parameters();
        DISPID named = DISPID_PROPERTYPUT;
        constexpr WORD uses[] = {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT,
                                 DISPATCH_METHOD | DISPATCH_PROPERTYGET};
        const WORD use = uses[random() % std::size(uses)];
        if (use == DISPATCH_PROPERTYPUT && parameters.cArgs > 0)
        {
            parameters.cNamedArgs = 1;
            parameters.rgdispidNamedArgs = &named;
        }
        VARIANT result{};
        EXCEPINFO info{};
        if (FAILED(object.Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, use, &parameters, &result,
                                 &info, nullptr)))
            ++failed;
        if (V_VT(&result) == VT_DISPATCH && V_DISPATCH(&result))
            objects.emplace_back(std::exchange(V_DISPATCH(&result), nullptr));
        VariantClear(&result);
        SysFreeString(info.bstrSource);
        SysFreeString(info.bstrDescription);
    }
    std::cout << times << " calls, " << times - failed << " succeeded\n";
    EXPECT_LT(failed, times);
}

} // namespace

} // namespace Client
