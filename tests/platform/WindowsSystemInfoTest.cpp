#include "platform/windows/WindowsSystemInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <chrono>
#include <ctime>
#include <string>

#include "platform/windows/StateFolder.h"
#include "platform/windows/WindowsFileSystem.h"

namespace zy::test {
namespace {

/// A setting of the user's locale, for as long as this lives.
class UsersSetting {
  public:
    UsersSetting(LCTYPE setting, const wchar_t* value) : setting_(setting) {
        ::GetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, before_.data(), static_cast<int>(before_.size()));
        ::SetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, value);
    }
    UsersSetting(const UsersSetting&) = delete;
    UsersSetting& operator=(const UsersSetting&) = delete;
    ~UsersSetting() { ::SetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, before_.data()); }

  private:
    LCTYPE setting_;
    std::array<wchar_t, 80> before_{};
};

constexpr auto kTime = std::chrono::sys_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(12) +
                       std::chrono::minutes(7) + std::chrono::seconds(5);

/// That time where the user is.
std::string LocalText(const char* form) {
    const std::time_t time = std::chrono::system_clock::to_time_t(kTime);
    std::array<char, 80> text{};
    std::strftime(text.data(), text.size(), form, std::localtime(&time));
    return text.data();
}

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
    for (const wchar_t* separator : {L",", L".", L"'"}) {
        const UsersSetting set(LOCALE_SDECIMAL, separator);
        EXPECT_EQ(WindowsSystemInfo().DecimalSeparator(), static_cast<char>(*separator));
    }
}

TEST(WindowsSystemInfoTest, GivesAPointWhereTheDecimalSeparatorIsMoreThanOneCharacter) {
    const UsersSetting set(LOCALE_SDECIMAL, L"..");
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

TEST(WindowsSystemInfoTest, GivesAStateFolderThatStaysOnThisComputer) {
    EXPECT_EQ(WindowsSystemInfo().StateFolder(), InsideOwnFolderIn(UsersLocalFolder()));
}

TEST(WindowsSystemInfoTest, WritesTimesAsTheUserHasSet) {
    const UsersSetting date(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
    const UsersSetting clock(LOCALE_STIMEFORMAT, L"HH:mm:ss");
    EXPECT_EQ(WindowsSystemInfo().TimeText(kTime), LocalText("%d.%m.%Y %H:%M:%S"));
}

TEST(WindowsSystemInfoTest, WritesTimesPlainlyWhereTheCodePageLacksWhatTheUserHasSet) {
    const UsersSetting date(LOCALE_SSHORTDATE, L"yyyy'\u0416'MM");
    EXPECT_EQ(WindowsSystemInfo().TimeText(kTime), LocalText("%Y-%m-%d %H:%M:%S"));
}

} // namespace
} // namespace zy::test
