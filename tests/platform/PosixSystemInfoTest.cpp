#include "platform/posix/PosixSystemInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <clocale>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/posix/PosixFileSystem.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;

PosixSystemInfo StartedWith(const std::vector<const char*>& arguments) {
    return {static_cast<int>(arguments.size()), arguments.data(), Windows1252()};
}

PosixSystemInfo Started() {
    return StartedWith({"zyGlobal"});
}

TEST(ExecutableFolder, IsTheOneOfTheRunningProgram) {
    const auto program = fs::read_symlink("/proc/self/exe");
    EXPECT_TRUE(PosixFileSystem(Windows1252())
                    .Exists(Started().ExecutableFolder() + "\\" + program.filename().string()));
}

// The system directory

TEST(SystemDirectory, IsTheFolderThatTheEnvironmentNames) {
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", "/home/u/Größe");
    EXPECT_EQ(Started().SystemDirectory(), "\\home\\u\\Gr\xF6\xDF\x65");
}

TEST(SystemDirectory, LosesClosingSlashes) {
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", "/home/u//");
    EXPECT_EQ(Started().SystemDirectory(), R"(\home\u)");
}

TEST(SystemDirectory, IsEmptyForTheRootFolder) {
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", "/");
    EXPECT_EQ(Started().SystemDirectory(), "");
}

TEST(SystemDirectory, IsMadeAbsolute) {
    const TemporaryFolder folder;
    const auto before = fs::current_path();
    fs::current_path(folder.Path());
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", "settings");
    EXPECT_EQ(Started().SystemDirectory(), folder.InsidePath("settings"));
    fs::current_path(before);
}

TEST(SystemDirectory, IsNotMadeWhereTheEnvironmentNamesOneThatIsMissing) {
    const TemporaryFolder folder;
    const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", folder.Path("missing"));
    EXPECT_EQ(Started().SystemDirectory(), folder.InsidePath("missing"));
    EXPECT_FALSE(fs::exists(folder.Path("missing")));
}

TEST(SystemDirectory, IsMadeAmongTheUsersDataWhenTheEnvironmentNamesNone) {
    const TemporaryFolder folder;
    const EnvironmentVariable data("XDG_DATA_HOME", folder.Path("share"));
    for (const auto& value : {std::optional<std::string>(), std::optional<std::string>("")}) {
        const EnvironmentVariable named("ZYSETUP_SYSTEM_DIR", value);
        EXPECT_EQ(Started().SystemDirectory(), folder.InsidePath(R"(share\zysetup\system)"));
        EXPECT_TRUE(fs::is_directory(folder.Path("share/zysetup/system")));
        EXPECT_EQ(fs::status(folder.Path("share")).permissions(), fs::perms{0700});
    }
}

// The command line

TEST(CommandLine, IsEmptyWithoutArguments) {
    EXPECT_EQ(StartedWith({"zyGlobal"}).CommandLine(), "");
    EXPECT_EQ(StartedWith({}).CommandLine(), "");
}

TEST(CommandLine, IsTheArgumentAsItStands) {
    EXPECT_EQ(StartedWith({"zyGlobal", "@rules "}).CommandLine(), "@rules ");
}

TEST(CommandLine, HasOneBlankBetweenArguments) {
    EXPECT_EQ(StartedWith({"zyGlobal", "@RULES", "", "x"}).CommandLine(), "@RULES  x");
}

TEST(CommandLine, IsInTheCodePage) {
    EXPECT_EQ(StartedWith({"zyGlobal", "é€"}).CommandLine(), "\xE9\x80");
}

TEST(CommandLine, MatchesNothingWithACharacterThatTheCodePageLacks) {
    EXPECT_EQ(StartedWith({"zyGlobal", "@RULESΩ"}).CommandLine(), "@RULES\x1A");
    EXPECT_EQ(StartedWith({"zyGlobal", "@RULES\xFF"}).CommandLine(), "@RULES\x1A");
}

// The program's name

TEST(ExecutableName, IsThatOfTheRunningProgram) {
    EXPECT_EQ(StartedWith({"/somewhere/else.exe"}).ExecutableName(), "posix_tests");
    EXPECT_EQ(StartedWith({}).ExecutableName(), "posix_tests");
}

// The decimal separator

void AppendNumber(std::string& bytes, std::uint32_t number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// An installed locale of the test's own: the file in which the C library looks up how numbers are written.
class NumberLocale {
  public:
    explicit NumberLocale(const std::string& separator) {
        folder_.AddFolder("test_LOCALE");
        folder_.Put("test_LOCALE/LC_NUMERIC", File(separator));
    }

  private:
    /// A mark, the number of entries, where each one starts, and then the entries: decimal separator,
    /// thousands separator, grouping, both separators as wide characters, and the character set.
    static std::string File(const std::string& separator) {
        constexpr std::uint32_t kMark = 0x20031114;
        constexpr std::uint32_t kEntries = 6;
        constexpr std::uint32_t kHeader = (2 + kEntries) * sizeof(std::uint32_t);
        constexpr std::uint32_t kSlot = 8;
        std::string entries;
        const auto add = [&entries](const std::string& entry) {
            entries += entry + std::string(kSlot - entry.size(), '\0');
        };
        add(separator);
        add("");
        add("\x7F");
        add("");
        add("");
        add("UTF-8");
        std::string file;
        AppendNumber(file, kMark);
        AppendNumber(file, kEntries);
        for (std::uint32_t entry = 0; entry < kEntries; ++entry) {
            AppendNumber(file, kHeader + entry * kSlot);
        }
        return file + entries;
    }

    TemporaryFolder folder_;
    EnvironmentVariable path_{"LOCPATH", folder_.Path().string()};
    EnvironmentVariable all_{"LC_ALL", std::nullopt};
    EnvironmentVariable numeric_{"LC_NUMERIC", "test_LOCALE"};
};

TEST(DecimalSeparator, IsThatOfTheUsersLocale) {
    const NumberLocale locale(",");
    EXPECT_EQ(Started().DecimalSeparator(), ',');
}

TEST(DecimalSeparator, IsTakenThroughTheCodePage) {
    const NumberLocale locale("·");
    EXPECT_EQ(Started().DecimalSeparator(), '\xB7');
}

TEST(DecimalSeparator, IsAPointWhereTheCodePageLacksTheLocales) {
    const NumberLocale locale("٫");
    EXPECT_EQ(Started().DecimalSeparator(), '.');
}

TEST(DecimalSeparator, IsAPointWhereTheLocaleIsNotInstalled) {
    const EnvironmentVariable all("LC_ALL", "xx_XX.UTF-8");
    EXPECT_EQ(Started().DecimalSeparator(), '.');
}

TEST(DecimalSeparator, LeavesTheLocaleOfTheProgramAlone) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const NumberLocale locale(",");
    EXPECT_EQ(Started().DecimalSeparator(), ',');
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

TEST(Today, IsTheDateWhereTheUserIs) {
    const auto dateIn = [](const char* zone) {
        const EnvironmentVariable variable("TZ", zone);
        ::tzset();
        return std::chrono::sys_days(Started().Today());
    };
    const auto now = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    EXPECT_LE(std::chrono::abs(dateIn("UTC") - now), std::chrono::days(1))
        << "midnight may have come in between";
    EXPECT_GE(dateIn("UTC-26") - dateIn("UTC+24"), std::chrono::days(2)) << "fifty hours apart";
}

} // namespace
} // namespace zy::test
