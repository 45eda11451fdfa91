#include "platform/windows/WindowsSystemInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <chrono>
#include <ctime>
#include <string>

#include "platform/windows/WindowsFileSystem.h"

namespace zy::test {
namespace {

/// The user's decimal separator, for as long as this lives.
class UsersDecimalSeparator {
  public:
    explicit UsersDecimalSeparator(const char* separator) {
        ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before_.data(),
                         static_cast<int>(before_.size()));
        ::SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator);
    }
    UsersDecimalSeparator(const UsersDecimalSeparator&) = delete;
    UsersDecimalSeparator& operator=(const UsersDecimalSeparator&) = delete;
    ~UsersDecimalSeparator() { ::SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before_.data()); }

  private:
    std::array<char, 8> before_{};
};

TEST(WindowsSystemInfoTest, NamesTheRunningProgramWhateverItsCommandLineSays) {
    for (const auto& system : {WindowsSystemInfo(), WindowsSystemInfo("else.exe @RULES")}) {
        EXPECT_EQ(system.ExecutableName(), "windows_tests");
        EXPECT_TRUE(WindowsFileSystem().Exists(system.ExecutableFolder() + R"(\windows_tests.exe)"));
    }
}

TEST(WindowsSystemInfoTest, KnowsHowThisProcessWasStarted) {
    const std::string whole = ::GetCommandLineA();
    EXPECT_TRUE(whole.ends_with(WindowsSystemInfo().CommandLine()));
    EXPECT_EQ(WindowsSystemInfo().CommandLine().find("windows_tests.exe"), std::string::npos);
}

TEST(WindowsSystemInfoTest, GivesTheSystemDirectoryOfWindows) {
    const auto directory = WindowsSystemInfo().SystemDirectory();
    EXPECT_TRUE(WindowsFileSystem().Exists(directory + R"(\kernel32.dll)")) << directory;
}

TEST(WindowsSystemInfoTest, GivesTheDecimalSeparatorThatTheUserHasSet) {
    for (const char* separator : {",", ".", "'"}) {
        const UsersDecimalSeparator set(separator);
        EXPECT_EQ(WindowsSystemInfo().DecimalSeparator(), *separator);
    }
}

TEST(WindowsSystemInfoTest, GivesAPointWhereTheDecimalSeparatorIsMoreThanOneCharacter) {
    const UsersDecimalSeparator set("..");
    EXPECT_EQ(WindowsSystemInfo().DecimalSeparator(), '.');
}

TEST(WindowsSystemInfoTest, GivesTheDateWhereTheUserIs) {
    const auto today = [] {
        const std::time_t now = std::time(nullptr);
        const std::tm local = *std::localtime(&now);
        return std::chrono::year_month_day{std::chrono::year(local.tm_year + 1900),
                                           std::chrono::month(static_cast<unsigned>(local.tm_mon) + 1),
                                           std::chrono::day(static_cast<unsigned>(local.tm_mday))};
    };
    const auto before = today();
    const auto given = WindowsSystemInfo().Today();
    EXPECT_TRUE(given == before || given == today()) << "midnight may have come in between";
}

} // namespace
} // namespace zy::test
