#include "platform/posix/PosixSystemInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <langinfo.h>
#include <sys/stat.h>

#include <chrono>
#include <clocale>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <map>
#include <optional>
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

// The state folder

TEST(StateFolder, IsTheProgramsOwnAmongTheStateOfPrograms) {
    const EnvironmentVariable state("XDG_STATE_HOME", "/home/u/My State/");
    EXPECT_EQ(Started().StateFolder(), R"(\home\u\My State\zysetup)");
}

TEST(StateFolder, IsInTheHomeFolderWhereTheEnvironmentNamesNone) {
    const EnvironmentVariable home("HOME", "/home/Gr\u00F6\u00DFe");
    const EnvironmentVariable state("XDG_STATE_HOME", std::nullopt);
    EXPECT_EQ(Started().StateFolder(), "\\home\\Gr\xF6\xDF\x65\\.local\\state\\zysetup");
}

TEST(StateFolder, IsNoneWhereTheCodePageLacksALetterOfIt) {
    for (const char* name : {"/home/\u03A9", "/home/\xFF", "/home/a\\b"}) {
        const EnvironmentVariable state("XDG_STATE_HOME", name);
        EXPECT_EQ(Started().StateFolder(), "") << name;
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

/// A category of a locale: the file in which the C library looks up how numbers, or times, are written.
struct LocaleCategory {
    int number;
    const char* name;
    nl_item end; ///< behind its last item
};

/// An installed locale of the test's own, of that category alone. The items that are not given are empty.
class OwnLocale {
  public:
    OwnLocale(const LocaleCategory& category, const std::map<nl_item, std::string>& items)
        : category_(category.name, "test_LOCALE") {
        folder_.AddFolder("test_LOCALE");
        folder_.Put(std::string("test_LOCALE/") + category.name, File(category, items));
    }

  private:
    /// A mark, the number of items, where each one starts, and then the items.
    static std::string File(const LocaleCategory& category, const std::map<nl_item, std::string>& items) {
        constexpr std::uint32_t kMark = 0x20031115;
        constexpr std::uint32_t kSlot = 16;
        const auto count = NumberOf(category.end);
        std::string slots(std::size_t{count} * kSlot, '\0');
        for (const auto& [item, text] : items) {
            slots.replace(std::size_t{NumberOf(item)} * kSlot, text.size(), text);
        }
        std::string file;
        AppendNumber(file, kMark ^ static_cast<std::uint32_t>(category.number));
        AppendNumber(file, count);
        const auto header = (2 + count) * static_cast<std::uint32_t>(sizeof(std::uint32_t));
        for (std::uint32_t item = 0; item < count; ++item) {
            AppendNumber(file, header + item * kSlot);
        }
        return file + slots;
    }

    /// The number of an item in its category.
    static std::uint32_t NumberOf(nl_item item) { return static_cast<std::uint32_t>(item) & 0xFFFFU; }

    TemporaryFolder folder_;
    EnvironmentVariable path_{"LOCPATH", folder_.Path().string()};
    EnvironmentVariable all_{"LC_ALL", std::nullopt};
    EnvironmentVariable category_;
};

class NumberLocale : public OwnLocale {
  public:
    explicit NumberLocale(const std::string& separator)
        : OwnLocale({LC_NUMERIC, "LC_NUMERIC", _NL_NUM_LC_NUMERIC}, {{RADIXCHAR, separator}}) {}
};

/// Where the user is.
class TimeZone {
  public:
    explicit TimeZone(const char* zone) : variable_(std::in_place, "TZ", zone) { ::tzset(); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() {
        variable_.reset();
        ::tzset();
    }

  private:
    std::optional<EnvironmentVariable> variable_;
};

/// Where the user is and how times are written there.
class TimeLocale : public OwnLocale {
  public:
    TimeLocale(const std::string& date, const std::string& clock)
        : OwnLocale({LC_TIME, "LC_TIME", _NL_NUM_LC_TIME}, {{D_FMT, date}, {T_FMT, clock}}) {}

  private:
    TimeZone zone_{"UTC-2"};
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
        const TimeZone user(zone);
        return std::chrono::sys_days(Started().Today());
    };
    const auto now = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    EXPECT_LE(std::chrono::abs(dateIn("UTC") - now), std::chrono::days(1))
        << "midnight may have come in between";
    EXPECT_GE(dateIn("UTC-26") - dateIn("UTC+24"), std::chrono::days(2)) << "fifty hours apart";
}

// Times

constexpr auto kTime = std::chrono::sys_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(12) +
                       std::chrono::minutes(7) + std::chrono::seconds(5);

TEST(TimeText, IsWrittenAsTheUsersLocaleWritesItWhereTheUserIs) {
    const TimeLocale locale("%d.%m.%Y", "%H:%M:%S");
    EXPECT_EQ(Started().TimeText(kTime), "22.11.2026 14:07:05");
}

TEST(TimeText, IsTakenThroughTheCodePage) {
    const TimeLocale locale("%d\u00BA%m", "%Hh");
    EXPECT_EQ(Started().TimeText(kTime), "22\xBA\x31\x31 14h");
}

TEST(TimeText, IsPlainWhereTheCodePageLacksWhatTheLocaleWrites) {
    for (const char* date : {"%Y\u5E74%m", "%Y\xFF"}) {
        const TimeLocale locale(date, "%H:%M:%S");
        EXPECT_EQ(Started().TimeText(kTime), "2026-11-22 14:07:05");
    }
}

TEST(TimeText, IsPlainWhereTheLocaleIsNotInstalled) {
    const TimeZone zone("UTC-2");
    const EnvironmentVariable all("LC_ALL", "xx_XX.UTF-8");
    EXPECT_EQ(Started().TimeText(kTime), "2026-11-22 14:07:05");
}

TEST(Now, IsWhatTheClockShows) {
    const auto clock = [] {
        return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    };
    const auto before = clock();
    const auto now = Started().Now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, clock());
}

} // namespace
} // namespace zy::test
