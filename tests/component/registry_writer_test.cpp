#include "component/windows/registry_writer.h"

#include <gtest/gtest.h>

#include <system_error>

namespace Tamrivo::Registry
{

namespace
{

const std::wstring place = L"Software\\Tamrivo test";

TEST(RegistryWriter, UndoesWhatItWroteWhenAValueIsRefused)
{
    Write(HKEY_CURRENT_USER, {{place, L"", L"before"}});
    const std::wstring tooLong = place + L"\\" + std::wstring(300, L'x');
    try
    {
        Write(HKEY_CURRENT_USER, {{place, L"", L"after"},
                                  {place + L"\\New\\Deep", L"Name", L"text"},
                                  {tooLong, L"", L"text"}});
        ADD_FAILURE() << "a name of 300 characters was taken";
    }
    catch (const std::system_error& refused)
    {
        EXPECT_NE(refused.code().value(), ERROR_SUCCESS);
    }
    EXPECT_EQ(Read(HKEY_CURRENT_USER, place, L""), L"before");
    EXPECT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, (place + L"\\New").c_str()), ERROR_FILE_NOT_FOUND);
    Remove(HKEY_CURRENT_USER, {{place, L"", L""}});
}

TEST(RegistryWriter, TakesAwayWhatItWroteAndLeavesTheRest)
{
    const std::vector<Value> values{{place, L"", L"a"}, {place + L"\\Inner", L"Name", L"b"}};
    Write(HKEY_CURRENT_USER, values);
    Write(HKEY_CURRENT_USER, {{place + L"\\Inner", L"Another's", L"c"}});
    Remove(HKEY_CURRENT_USER, values);
    EXPECT_EQ(Read(HKEY_CURRENT_USER, place, L""), std::nullopt);
    EXPECT_EQ(Read(HKEY_CURRENT_USER, place + L"\\Inner", L"Another's"), L"c");
    Remove(HKEY_CURRENT_USER, {{place, L"", L""}, {place + L"\\Inner", L"Another's", L""}});
    EXPECT_EQ(RegDeleteKeyW(HKEY_CURRENT_USER, place.c_str()), ERROR_FILE_NOT_FOUND);
}

} // namespace

} // namespace Tamrivo::Registry
