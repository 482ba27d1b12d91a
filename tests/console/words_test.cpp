#include "console/shell/words.h"
#include "controls/user.h"

#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

TEST(Words, AreSplitAtBlanksOutsideOfQuotes)
{
    struct Case
    {
        std::string Line;
        Words Expected;
    };
    const Case cases[] = {
        {"", {}},
        {"  \t ", {}},
        {"# type x", {}},
        {"  # type x", {}},
        {"type  txtRepeat\t9 ", {"type", "txtRepeat", "9"}},
        {R"(type x "")", {"type", "x", ""}},
        {R"(type x "a \"b\" \\ \t\r\n")", {"type", "x", "a \"b\" \\ \t\r\n"}},
        {R"(type x a"b\c)", {"type", "x", R"(a"b\c)"}},
        {"type x #1", {"type", "x", "#1"}},
        {"type x \xC3\xA4\xC2\xA0z", {"type", "x", "\xC3\xA4\xC2\xA0z"}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(SplitWords(each.Line), each.Expected) << each.Line;
}

TEST(Words, ThatDontGoTogetherAreRefused)
{
    for (const char* line : {"type x \"a", "type x \"a\\\"", "type x \"a\"b", R"(type x "\a")",
                             "type x \"a\\", "type x \xFF", "\xC3"})
        EXPECT_THROW(SplitWords(line), User::Refusal) << line;
}

TEST(Words, AreReadAsTheyWereQuoted)
{
    for (const std::string text : {"", " ", "a b", "\"\\\t\r\n", "\\n", "#", "\xC3\xA4"})
        EXPECT_EQ(SplitWords("x " + Quoted(text)), (Words{"x", text})) << text;
}

} // namespace

} // namespace Tamrivo
