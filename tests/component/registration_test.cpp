#include "component/guid_text.h"
#include "component/registry_file.h"
#include "tests/component/module_under_test.h"

#include <gmock/gmock.h>

#include <sstream>

namespace Tamrivo
{

namespace
{

constexpr const char* ClassNames[] = {"Tamrivo.Service", "Tamrivo.LocusEditorPage",
                                      "Tamrivo.STRLocusTagSelector", "Tamrivo.SaveAsLocusPage"};

class Registration : public testing::Test
{
protected:
    static std::string FileContent()
    {
        std::stringstream content;
        content << std::ifstream(Registry::Path()).rdbuf();
        return content.str();
    }
    static std::string ModuleOf(const char* name)
    {
        const auto entry = Registry::Find(name);
        return entry ? entry->ModulePath.string() : "";
    }

    DataDirectory m_data;
    const std::string m_path = std::filesystem::canonical(TAMRIVO_MODULE);
};

TEST_F(Registration, LeadsFromANameToTheClass)
{
    const LoadedModule module;
    ASSERT_EQ(module.Call("DllRegisterServer"), S_OK);
    for (const char* name : ClassNames)
    {
        const auto entry = Registry::Find(name);
        ASSERT_TRUE(entry) << name;
        EXPECT_EQ(entry->ModulePath, m_path);
        const auto classId = GuidFromText(entry->ClassId);
        ASSERT_TRUE(classId) << entry->ClassId;
        Held<IClassFactory> factory;
        EXPECT_EQ(module.GetClassObject(*classId, IID_IClassFactory, factory.Out()), S_OK);
    }
    EXPECT_TRUE(Registry::Find("tamrivo.SERVICE"));
    EXPECT_FALSE(Registry::Find("Tamrivo.Else"));
    for (int times = 0; times < 2; ++times)
    {
        ASSERT_EQ(module.Call("DllUnregisterServer"), S_OK);
        EXPECT_FALSE(std::filesystem::exists(Registry::Path())) << "nothing is registered any more";
    }
}

TEST_F(Registration, KeepsWhatBelongsToOthers)
{
    const std::string others = "Other.Class\t{no identifier}\t/other.so\nno entry at all\n";
    std::filesystem::create_directories(Registry::Path().parent_path());
    std::ofstream(Registry::Path()) << others;
    const auto start = std::filesystem::current_path();
    std::filesystem::current_path(m_data.Path);
    std::filesystem::copy_file(m_path, u8"Kopie \u03bb.so");
    const LoadedModule module;
    const LoadedModule copied(u8"./Kopie \u03bb.so");
    std::filesystem::current_path(start);

    EXPECT_EQ(module.Call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(FileContent(), others);
    EXPECT_EQ(copied.Call("DllRegisterServer"), S_OK);
    EXPECT_TRUE(std::filesystem::equivalent(ModuleOf("Tamrivo.Service"),
                                            m_data.Path / u8"Kopie \u03bb.so"));
    EXPECT_EQ(module.Call("DllRegisterServer"), S_OK);
    EXPECT_EQ(module.Call("DllRegisterServer"), S_OK);
    EXPECT_EQ(std::ranges::count(FileContent(), '\n'), 6);
    EXPECT_EQ(copied.Call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(ModuleOf("Tamrivo.Service"), m_path) << "the entries aren't the copy's any more";
    EXPECT_EQ(module.Call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(FileContent(), others);
}

TEST_F(Registration, FailsWithACodeWhereNothingCanBeWritten)
{
    const LoadedModule module;
    std::ofstream(m_data.Path / "tamrivo") << "a file where the directory should be";
    testing::internal::CaptureStderr();
    EXPECT_EQ(module.Call("DllRegisterServer"), SELFREG_E_CLASS);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(OutputOf(std::string(TAMRIVO_EMBED) + " register " + m_path),
                testing::HasSubstr("DllRegisterServer failed: filesystem error"));
    setenv("XDG_DATA_HOME", "relative", 1);
    unsetenv("HOME");
    EXPECT_EQ(module.Call("DllRegisterServer"), SELFREG_E_CLASS);
}

TEST_F(Registration, TheExampleRunsByNameAlone)
{
    const std::string embed = TAMRIVO_EMBED;
    EXPECT_EQ(OutputOf(embed), "Tamrivo.LocusEditorPage isn't registered; run \"tamrivo_embed "
                               "register MODULE\" first\n");
    EXPECT_EQ(OutputOf(embed + " register " + m_path), "");
    const std::string output = OutputOf(embed);
    for (const char* line :
         {"as opened: invalid", "\"4x\" typed leaves \"4\"", "with an empty range: invalid",
          "refused: cmdSaveAs is hidden", "in the end: valid", "wizard SaveLocusTagAs finished",
          "locus D3S1358-wide: 92 to 148 nt, 15 alleles",
          "failure: The key \"D3S1358\" is already in the dictionary", "the parameter uses 2 tags"})
        EXPECT_NE(output.find(std::string(line) + "\n"), std::string::npos) << line;

    const auto moved = m_data.Path / "Moved.so";
    std::filesystem::copy_file(m_path, moved);
    EXPECT_EQ(OutputOf(embed + " register " + moved.string()), "");
    std::filesystem::remove(moved);
    EXPECT_THAT(OutputOf("(" + embed + "; echo status $?)"),
                testing::AllOf(testing::HasSubstr("Moved.so: cannot open"),
                               testing::EndsWith("status 1\n")));
    EXPECT_EQ(output.find("report "), output.find("report context type 1010 Locus\n")) << output;
}

} // namespace

} // namespace Tamrivo
