// A program that holds the library only by its name. It has a small host of its own and lets a
// made-up person edit a locus, store it under another tag, and choose the tags of a parameter.
//
//     tamrivo_embed register build/bin/Tamrivo.so
//     tamrivo_embed
//     tamrivo_embed unregister build/bin/Tamrivo.so

#include "controls/buttons.h"
#include "controls/text_field.h"
#include "examples/embed/memory_host.h"

#include <iostream>
#include <stdexcept>

namespace
{

using namespace Tamrivo;
using namespace Embed;

/// A property of a control, by name.
template <class T>
T Read(const UserControl& form, std::string_view controlName, std::string_view propertyName)
{
    for (const Control* control : form.Controls())
    {
        if (control->Name() != controlName)
            continue;
        for (const auto& [name, value] : control->Properties())
        {
            if (name == propertyName)
                return std::get<T>(value);
        }
    }
    throw std::runtime_error("No property " + std::string(controlName) + "." +
                             std::string(propertyName));
}

const char* Word(bool isValid)
{
    return isValid ? "valid" : "invalid";
}

bool EditLocus(OpenPage page)
{
    const auto validate = [&](const char* when) {
        page.Base.Validate(page.Base.IsValid);
        std::cout << when << ": " << Word(page.Base.IsValid) << '\n';
    };
    validate("as opened");

    page.User.Paste("txtLocusTag", "D3S1358");
    page.User.Paste("txtRepeat", "");
    page.User.Type("txtRepeat", "4x");
    std::cout << "\"4x\" typed leaves \"" << Read<std::string>(page.Form, "txtRepeat", "Text")
              << "\"\n";
    page.User.Paste("txtFragStart", "200");
    page.User.Paste("txtFragEnd", "100");
    validate("with an empty range");

    page.User.Paste("txtFragStart", "92");
    page.User.Leave("txtFragStart");
    page.User.Paste("txtFragEnd", "148");
    page.User.Leave("txtFragEnd");
    page.User.Click("cmdGenAlleleList");
    try
    {
        page.User.Click("cmdSaveAs");
    }
    catch (const User::Refusal& refusal)
    {
        std::cout << "refused: " << refusal.what() << '\n';
    }
    validate("in the end");
    return page.Base.IsValid;
}

bool EditUnderNewTag(OpenPage page)
{
    page.User.Click("cmdSaveAs");
    return false;
}

bool NameNewLocus(OpenPage page)
{
    page.User.Choose("lstLocusNameList", "D3S1358");
    std::cout << "a tag that exists: " << Word(page.Base.IsValid) << '\n';
    page.User.Paste("txtLocusName", "D3S1358-wide");
    std::cout << "a new tag: " << Word(page.Base.IsValid) << '\n';
    return page.Base.IsValid;
}

void RunEditor(MemoryHost& host, const std::shared_ptr<Locus>& locus)
{
    const auto parameters = std::make_shared<ParameterCollection>();
    parameters->Add(locus, ParameterKey::Locus);
    StartWizard(host.SharedLauncher(), LocusEditorWizard, parameters);
}

void ReportLoci(MemoryHost& host)
{
    const Created service = host.Classes.Create("Tamrivo.Service");
    const auto base = service.As<IServiceAccess>().Service();
    ReportContextTypes types;
    base->GetReportContextTypes(types);
    ReportContexts contexts;
    base->GetReportContexts(1010, contexts);
    for (const auto& [tag, locus] : contexts.Entries())
        std::cout << "locus " << tag << ": " << locus->FragStart << " to " << locus->FragEnd
                  << " nt, " << locus->Alleles().Count() << " alleles\n";
    try
    {
        base->GetReportContexts(1010, contexts);
    }
    catch (const Failure& failure)
    {
        std::cout << "failure: " << failure.Record().Description << '\n';
    }
}

void ChooseTags(MemoryHost& host)
{
    const auto parameter = std::make_shared<MemoryParameter>();
    const Created created = host.Classes.Create("Tamrivo.STRLocusTagSelector");
    auto& selector = created.As<ILocusTagSelector>();
    selector.Initialize(parameter);
    created.As<User::FormUser>().Click("cmdAddAll");
    for (const auto& locus : selector.SelectedLocusTags())
        std::cout << "selected " << locus->LocusTag() << '\n';
    selector.Save(*parameter);
    std::cout << "the parameter uses " << parameter->Entries().size() << " tags\n";
}

void Run()
{
    MemoryHost host;
    host.Person["LocusEditor"] = EditLocus;
    host.Person["SaveLocusTagAs"] = NameNewLocus;
    RunEditor(host, As<Locus>(host.Store.Create("Locus")));

    host.Person["LocusEditor"] = EditUnderNewTag;
    RunEditor(host, As<Locus>(CurrentLoci(host.Store, "Name")->Item(1)));

    ReportLoci(host);
    ChooseTags(host);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string action = argc == 3 ? argv[1] : "";
    try
    {
        if (action == "register")
            CallRegistration(argv[2], "DllRegisterServer");
        else if (action == "unregister")
            CallRegistration(argv[2], "DllUnregisterServer");
        else if (argc == 1)
            Run();
        else
            throw std::runtime_error("Use: tamrivo_embed [register MODULE | unregister MODULE]");
        return 0;
    }
    catch (const std::exception& failure)
    {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
