#include "automation/classes.h"
#include "core/text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

// The two descriptions of the classes that stand beside the code: the source of the type library,
// and the page for those who write clients. Where one doesn't agree with the code, the test leaves
// what it should be in the folder of the tests.

namespace Tamrivo::Automation
{

namespace
{

constexpr std::array<const char*, 8> idlTypes{"void", "VARIANT_BOOL", "long",    "double",
                                              "BSTR", "IDispatch*",   "VARIANT", "VARIANT"};
constexpr std::array<const char*, 8> words{"",       "Boolean", "Long",  "Double",
                                           "String", "Object",  "array", "Variant"};

std::string IdlType(Type type)
{
    return idlTypes.at(static_cast<std::size_t>(type));
}

/// An object is set by reference; some languages tell that apart.
std::string Attribute(const Member& member)
{
    if (member.How == Access::Put)
        return member.Parameters[0].Of == Type::Object ? ", propputref" : ", propput";
    return member.How == Access::Get ? ", propget" : "";
}

void WriteMember(std::ostream& out, const Class& type, const Member& member)
{
    out << "        [id(" << type.NumberOf(member.Name) << ")" << Attribute(member) << "] HRESULT "
        << member.Name << "(";
    const char* separator = "";
    for (std::size_t i = 0; i < member.Count(); ++i)
    {
        const ParameterType& parameter = member.Parameters.at(i);
        out << separator << "[in] " << IdlType(parameter.Of) << " " << parameter.Name;
        separator = ", ";
    }
    if (member.Result != Type::None)
        out << separator << "[out, retval] " << IdlType(member.Result) << "* result";
    out << ");\n";
}

std::string Idl(const std::string& classIds)
{
    std::ostringstream out;
    out << "// The type library. The tests hold it to the tables of automation/.\n"
        << "import \"oaidl.idl\";\n\n"
        << "[uuid(" << LibraryId << "), version(1.0), helpstring(\"Tamrivo\")]\n"
        << "library Tamrivo\n{\n    importlib(\"stdole2.tlb\");\n";
    for (const Class* type : AllClasses)
    {
        out << "\n    [object, dual, oleautomation, uuid(" << type->InterfaceId
            << "),\n     helpstring(\"" << type->About << "\")]\n"
            << "    interface I" << type->Name << " : IDispatch\n    {\n";
        for (const Member& member : type->Members)
            WriteMember(out, *type, member);
        out << "    }\n";
    }
    return out.str() + classIds + "}\n";
}

std::string Signature(const Member& member)
{
    std::string text(member.Name);
    const char* separator = "(";
    for (std::size_t i = 0; i < member.Count(); ++i)
    {
        const ParameterType& parameter = member.Parameters.at(i);
        text += separator + std::string(parameter.Name) + " " +
                words.at(static_cast<std::size_t>(parameter.Of));
        separator = ", ";
    }
    return text + (member.Count() > 0 ? ")" : "");
}

/// The members of the classes as rows of tables.
std::string Page()
{
    std::ostringstream out;
    for (const Class* type : AllClasses)
    {
        out << "\n### " << type->Name << "\n\n"
            << type->About << "\n\n| member | gives | |\n|---|---|---|\n";
        for (const Member& member : type->Members)
        {
            if (member.How == Access::Put)
                continue;
            const bool isSet = type->Find(member.Name, Access::Put) >= 0;
            out << "| `" << Signature(member) << "` | "
                << words.at(static_cast<std::size_t>(member.Result)) << " | "
                << (member.How == Access::Method ? "method"
                    : isSet                      ? "property, can be set"
                                                 : "property")
                << " |\n";
        }
    }
    return out.str();
}

std::string Content(const std::string& path)
{
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// What the tables ask for goes into a file, from which the one that disagrees is mended.
void ExpectAgreement(bool agrees, const std::string& name, const std::string& asked)
{
    if (agrees)
        return;
    const std::string path = testing::TempDir() + name;
    std::ofstream(path) << asked;
    ADD_FAILURE() << "the tables ask for what stands in " << path;
}

TEST(Description, OfTheTypeLibraryAgrees)
{
    const std::string written = Content(IDL);
    const std::size_t classes = written.find("\n    [uuid(");
    const std::string tail =
        classes == std::string::npos ? "" : written.substr(classes, written.rfind('}') - classes);
    const std::string expected = Idl(tail);
    EXPECT_FALSE(tail.empty()) << "the classes that can be created are missing";
    ExpectAgreement(written == expected, "tamrivo.idl", expected);
}

TEST(Description, ForClientsAgrees)
{
    ExpectAgreement(Content(PAGE).find(Page()) != std::string::npos, "automation.md", Page());
}

TEST(Description, NamesAMemberOnceAndGivesItOneNumber)
{
    std::set<std::string_view> interfaces;
    for (const Class* type : AllClasses)
    {
        EXPECT_TRUE(interfaces.insert(type->InterfaceId).second) << type->Name;
        std::set<std::pair<std::string, Access>> members;
        for (const Member& member : type->Members)
            EXPECT_TRUE(members.emplace(FoldCase(member.Name), member.How).second) << member.Name;
    }
}

} // namespace

} // namespace Tamrivo::Automation
