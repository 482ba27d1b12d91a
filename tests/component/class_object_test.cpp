#include "tests/component/component_test.h"
#include "tests/fakes/locales.h"

namespace Tamrivo
{

namespace
{

using ClassObjects = ComponentTest;

TEST_F(ClassObjects, TheModuleExportsItsEntryPointsAlone)
{
    const std::string names =
        OutputOf("nm -D --defined-only --format=just-symbols " TAMRIVO_MODULE " | sort");
    EXPECT_EQ(names,
              "DllCanUnloadNow\nDllGetClassObject\nDllRegisterServer\nDllUnregisterServer\n");
}

TEST_F(ClassObjects, AnswerWithThePublishedCodes)
{
    int place = 0;
    void* object = &place;
    EXPECT_EQ(Module.GetClassObject(GUID{}, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    const GUID service = *GuidFromText(Registry::Find("Tamrivo.Service")->ClassId);
    object = &place;
    EXPECT_EQ(Module.GetClassObject(service, service, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(Module.GetClassObject(service, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(Module.Call("DllCanUnloadNow"), S_OK);

    Held<IClassFactory> factory;
    GetFactory("Tamrivo.Service", IID_IClassFactory, factory.Out());
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, &object), E_NoHost);
    Held<IHostSite> site;
    factory->QueryInterface(IHostSite::Id, site.Out());
    ErrorRecord failure;
    EXPECT_EQ(site->GetLastFailure(&failure), S_FALSE);
    site->SetHost(&Host);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    object = &place;
    EXPECT_EQ(factory->CreateInstance(site.Pointer, IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IObjectAccess<IPageAccess>::Id, &object),
              E_NOINTERFACE);

    Host.Objects.Before = [](const std::string&) { throw Failure(7, "store", "gone"); };
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, &object), E_FAIL);
    EXPECT_EQ(Host.Utility.Reports, (std::vector<Fakes::Report>{{"Class_Initialize", false}}));
    EXPECT_EQ(site->GetLastFailure(&failure), S_OK);
    EXPECT_EQ(failure, (ErrorRecord{7, "store", "gone", "", 0}));
    EXPECT_EQ(site->GetLastFailure(nullptr), E_POINTER);

    struct Cancelled
    {};
    Host.Objects.Before = [](const std::string&) { throw Cancelled(); };
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, &object), E_ABORT);
    EXPECT_EQ(Host.Utility.Reports.size(), 1U) << "to cancel is no failure";
}

TEST_F(ClassObjects, WhatTheReportRaisesIsAResultCode)
{
    const ErrorRecord full{8, "log", "full", "", 0};
    Host.Objects.Before = [](const std::string&) { throw Failure(7, "store", "gone"); };
    Host.Base = nullptr;
    const std::pair<std::function<void()>, HRESULT> cases[] = {
        {[&] { throw Failure(full); }, E_FAIL},
        {[] { throw std::bad_alloc(); }, E_OUTOFMEMORY},
        {[] { throw 8; }, E_ABORT},
    };
    Held<IHostSite> site;
    GetFactory("Tamrivo.Service", IHostSite::Id, site.Out());
    for (const char* name :
         {"Tamrivo.Service", "Tamrivo.LocusEditorPage", "Tamrivo.SaveAsLocusPage"})
    {
        for (const auto& [raise, result] : cases)
        {
            Host.Utility.OnReport = raise;
            Held<IUnknown> object;
            EXPECT_EQ(CreateFor(Host, name, IID_IUnknown, object.Out()), result) << name;
            EXPECT_EQ(object.Pointer, nullptr);
        }
    }
    ErrorRecord failure;
    EXPECT_EQ(site->GetLastFailure(&failure), S_OK);
    EXPECT_EQ(failure, full);
}

TEST_F(ClassObjects, StayLoadedWhileAnythingLives)
{
    Held<IClassFactory> factory;
    GetFactory("Tamrivo.SaveAsLocusPage", IID_IClassFactory, factory.Out());
    EXPECT_EQ(Module.Call("DllCanUnloadNow"), S_FALSE);
    factory->LockServer(1);
    factory.Drop();
    EXPECT_EQ(Module.Call("DllCanUnloadNow"), S_FALSE);
    GetFactory("Tamrivo.SaveAsLocusPage", IID_IClassFactory, factory.Out());
    factory->LockServer(0);
    factory.Drop();
    EXPECT_EQ(Module.Call("DllCanUnloadNow"), S_OK);

    Held<IUnknown> page;
    Create("Tamrivo.SaveAsLocusPage", IID_IUnknown, page.Out());
    EXPECT_EQ(Module.Call("DllCanUnloadNow"), S_FALSE);
    EXPECT_EQ(page->AddRef(), 2U);
    EXPECT_EQ(page->Release(), 1U);
}

TEST_F(ClassObjects, ObjectsAnswerWhatTheirClassOffers)
{
    const IID all[] = {IObjectAccess<IServiceAccess>::Id, IObjectAccess<IPageAccess>::Id,
                       IObjectAccess<ILocusTagSelector>::Id, IObjectAccess<UserControl>::Id,
                       IObjectAccess<User::FormUser>::Id};
    const std::pair<const char*, std::string> cases[] = {{"Tamrivo.Service", "10000"},
                                                         {"Tamrivo.LocusEditorPage", "01011"},
                                                         {"Tamrivo.SaveAsLocusPage", "01011"},
                                                         {"Tamrivo.STRLocusTagSelector", "00111"}};
    for (const auto& [name, offered] : cases)
    {
        Held<IUnknown> identity;
        Create(name, IID_IUnknown, identity.Out());
        std::string answered;
        for (const IID& iid : all)
        {
            Held<IUnknown> access;
            Held<IUnknown> sameIdentity;
            answered += identity->QueryInterface(iid, access.Out()) == S_OK ? '1' : '0';
            if (!access.Pointer)
                continue;
            EXPECT_EQ(access->QueryInterface(IID_IUnknown, sameIdentity.Out()), S_OK);
            EXPECT_EQ(sameIdentity.Pointer, identity.Pointer);
        }
        EXPECT_EQ(answered, offered) << name;
        EXPECT_EQ(identity->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    }
}

TEST_F(ClassObjects, FailuresAndTypesCrossTheBorder)
{
    Held<IObjectAccess<IPageAccess>> access;
    Create("Tamrivo.LocusEditorPage", IObjectAccess<IPageAccess>::Id, access.Out());
    IPageAccess* page = nullptr;
    EXPECT_EQ(access->Get(nullptr), E_POINTER);
    ASSERT_EQ(access->Get(&page), S_OK);
    EXPECT_EQ(page->Page(), Host.Base);

    // The page casts what it finds, the host catches what it raises.
    const ErrorRecord record{7, "store", "gone", "help", 3};
    Host.Base->Collection->Add(std::shared_ptr<Locus>(std::make_shared<Fakes::FakeLocus>()),
                               ParameterKey::Locus);
    Host.Objects.AddProject("Default", 1);
    Host.Objects.Before = [&](const std::string& request) {
        if (request == "Query Projects ")
            throw Failure(record);
    };
    try
    {
        Host.Base->Initialize(nullptr);
        ADD_FAILURE() << "nothing was raised";
    }
    catch (const Failure& failure)
    {
        EXPECT_EQ(failure.Record(), record);
    }

    Held<IObjectAccess<User::FormUser>> userAccess;
    User::FormUser* user = nullptr;
    access->QueryInterface(IObjectAccess<User::FormUser>::Id, userAccess.Out());
    userAccess->Get(&user);
    EXPECT_THROW(user->Click("cmdNothing"), User::Refusal);
    EXPECT_THROW(user->Click("txtRepeat"), User::Refusal);
}

TEST_F(ClassObjects, NumbersFollowTheLocaleOfTheHost)
{
    Held<IHostSite> site;
    GetFactory("Tamrivo.Service", IHostSite::Id, site.Out());
    site->SetTextLocale(std::locale(std::locale::classic(), new Fakes::Notation(L',', L'.')));
    Held<IObjectAccess<User::FormUser>> access;
    Create("Tamrivo.LocusEditorPage", IObjectAccess<User::FormUser>::Id, access.Out());
    User::FormUser* user = nullptr;
    access->Get(&user);
    for (const char* field : {"txtFragStart", "txtFragEnd", "txtShortestAlleleSize"})
        user->Paste(field, "70,4");
    user->Leave("txtFragStart");
    EXPECT_TRUE(Host.Utility.Reports.empty()) << Host.Utility.Reports.front();
    site->SetTextLocale(std::locale::classic());
    user->Leave("txtFragStart");
    EXPECT_FALSE(Host.Utility.Reports.empty());
}

} // namespace

} // namespace Tamrivo
