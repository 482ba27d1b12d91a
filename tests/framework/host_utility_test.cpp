#include "controls/text_field.h"
#include "controls/user_control.h"
#include "core/collection.h"
#include "host/framework/host_utility.h"
#include "tests/fakes/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace Tamrivo
{

namespace
{

class MockFrontEnd : public FrontEnd
{
public:
    MOCK_METHOD(void, RunWizard, (WizardSession&), (override));
    MOCK_METHOD(void, ShowMenu, (UserControl&, Menu&), (override));
    MOCK_METHOD(MessageAnswer, ShowMessage, (const std::string&, std::int32_t, const std::string&),
                (override));
    MOCK_METHOD(void, ShowReport, (const FailureReport&), (override));
    MOCK_METHOD(void, ShowFailure, (const ErrorRecord&), (override));
};

class HostUtilityTest : public testing::Test
{
protected:
    testing::StrictMock<MockFrontEnd> m_frontEnd;
    FailureLog m_log;
    HostUtility m_utility{m_log, m_frontEnd};
};

TEST_F(HostUtilityTest, IsIntegerInRange)
{
    struct Case
    {
        std::string Text;
        bool Expected;
    };
    const Case cases[] = {
        {"1", true},     {"10000", true},   {"0", false},     {"10001", false}, {"", false},
        {" ", false},    {"7 ", true},      {" 7", true},     {"7.5", false},   {"7.0", true},
        {"1e3", true},   {"1E3", true},     {"-1", false},    {"seven", false}, {"7x", false},
        {"9e99", false}, {"0.9999", false}, {"1e999", false},
    };
    UserControl form("Form", 0, 0);
    TextField field({"txtField", form}, {});
    for (const Case& each : cases)
    {
        field.SetText(each.Text);
        EXPECT_EQ(m_utility.IsIntegerInRange(field, 1, 10000), each.Expected) << each.Text;
    }
}

TEST_F(HostUtilityTest, KeyExistsMindsNeitherCaseNorTrailingBlanks)
{
    Collection<int> collection;
    collection.Add(1, "Locus");
    collection.Add(2, "With blank ");
    for (const char* key : {"Locus", "LOCUS", "locus  ", "With blank "})
        EXPECT_TRUE(m_utility.KeyExists(collection, key)) << key;
    for (const char* key : {" Locus", "Loc", ""})
        EXPECT_FALSE(m_utility.KeyExists(collection, key)) << key;
}

TEST_F(HostUtilityTest, StopsForNobodyUnlessADebuggerIsMeantAndThere)
{
    for (const char* meant : {"", "0", "1"})
    {
        setenv("TAMRIVO_DEBUG", meant, 1);
        EXPECT_EQ(m_utility.DebugMode(), meant == std::string("1"));
        EXPECT_FALSE(m_utility.DebugBreak(0)) << "no debugger is there";
    }
    unsetenv("TAMRIVO_DEBUG");
}

TEST_F(HostUtilityTest, ReportsAreShownAndLogged)
{
    const Fakes::TemporaryDirectory directory;
    setenv("XDG_STATE_HOME", directory.Path().c_str(), 1);

    FailureReport shown;
    EXPECT_CALL(m_frontEnd, ShowReport).WillOnce(testing::SaveArg<0>(&shown));
    m_utility.ReportError("Tamrivo", "Page", "Load", {13, "there", "no number {}", "", 0}, "",
                          true);
    EXPECT_EQ(shown.ClassName + "." + shown.ProcedureName, "Page.Load");
    EXPECT_TRUE(shown.Final);

    std::ifstream log(directory / "tamrivo/tamrivo.log");
    const std::string text{std::istreambuf_iterator<char>(log), {}};
    EXPECT_THAT(text, testing::HasSubstr("Page.Load: no number {} [there, 13]"));
    unsetenv("XDG_STATE_HOME");
}

TEST_F(HostUtilityTest, WithoutADebuggerNothingStops)
{
    if (m_utility.DebugMode())
        GTEST_SKIP() << "a debugger is attached";
    EXPECT_FALSE(m_utility.DebugBreak(1));
}

} // namespace

} // namespace Tamrivo
