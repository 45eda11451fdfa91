#include "platform/posix/PosixSystemInfo.h"

#include <langinfo.h>

#include <clocale>
#include <ctime>
#include <filesystem>
#include <memory>
#include <type_traits>

#include "basics/Text.h"
#include "platform/TimeDigits.h"
#include "platform/posix/LocalTime.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

struct FreeLocale {
    void operator()(locale_t locale) const { ::freelocale(locale); }
};
using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

std::string AbsolutePath(const std::string& path) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.string();
}

/// The path of the running program.
std::filesystem::path ExecutablePath(const std::vector<std::string>& arguments) {
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path asStarted = arguments.empty() ? "" : arguments.front();
    return error ? asStarted : path;
}

bool IsSystemFolderNamed() {
    return !Environment("ZYSETUP_SYSTEM_DIR").empty();
}

/// Empty when the environment names none and the user has no place for data.
std::string SystemFolder() {
    if (IsSystemFolderNamed()) {
        return AbsolutePath(Environment("ZYSETUP_SYSTEM_DIR"));
    }
    const auto data = UserDataFolder();
    return data.empty() ? "" : data + "/zysetup/system";
}

/// Date and time as the user's locale writes them; empty where that is not installed.
std::string InUsersLocale(const std::tm& local) {
    constexpr std::size_t kLongest = 256;
    const Locale locale(::newlocale(LC_TIME_MASK, "", nullptr));
    std::string text(kLongest, '\0');
    text.resize(locale ? ::strftime_l(text.data(), text.size(), "%x %X", &local, locale.get()) : 0);
    return text;
}

} // namespace

PosixSystemInfo::PosixSystemInfo(int argumentCount, const char* const* arguments, const CodePage& codePage)
    : codePage_(codePage), text_(codePage), arguments_(arguments, arguments + argumentCount),
      executableName_(text_.TextToInside(ExecutablePath(arguments_).stem().string())),
      executableFolder_(ExecutablePath(arguments_).parent_path().string()) {}

std::string PosixSystemInfo::SystemDirectory() {
    const auto folder = SystemFolder();
    if (!IsSystemFolderNamed() && !folder.empty()) {
        MakeFolders(folder);
    }
    return text_.PathToInside(folder);
}

std::string PosixSystemInfo::StateFolder() {
    auto folder = text_.PathToInside(OwnFolderIn(UserStateFolder()));
    return Contains(folder, PathText::kEscape) ? "" : folder;
}

std::string PosixSystemInfo::ExecutableFolder() const {
    return text_.PathToInside(executableFolder_);
}

std::vector<KnownFolder> PosixSystemInfo::KnownFolders() const {
    std::vector<KnownFolder> folders;
    for (const auto& folder : {SystemFolder(), OwnFolderIn(UserStateFolder()), executableFolder_}) {
        if (folder.starts_with('/')) {
            folders.push_back({.inside = text_.PathToInside(folder), .outside = folder});
        }
    }
    return folders;
}

std::string PosixSystemInfo::CommandLine() const {
    std::string line;
    for (std::size_t i = 1; i < arguments_.size(); ++i) {
        line += (i == 1 ? "" : " ") + text_.TextToInside(arguments_[i]);
    }
    return line;
}

char PosixSystemInfo::DecimalSeparator() const {
    const Locale locale(::newlocale(LC_NUMERIC_MASK, "", nullptr));
    const auto separator =
        locale ? codePage_.FromUtf8(::nl_langinfo_l(RADIXCHAR, locale.get())) : std::nullopt;
    return separator && separator->size() == 1 ? separator->front() : '.';
}

std::chrono::year_month_day PosixSystemInfo::Today() const {
    const auto local = LocalTime(std::time(nullptr));
    constexpr int kFirstYear = 1900;
    return {std::chrono::year(local.tm_year + kFirstYear),
            std::chrono::month(static_cast<unsigned>(local.tm_mon) + 1),
            std::chrono::day(static_cast<unsigned>(local.tm_mday))};
}

std::chrono::sys_seconds PosixSystemInfo::Now() {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

std::string PosixSystemInfo::TimeText(std::chrono::sys_seconds time) {
    const auto local = LocalTime(std::chrono::system_clock::to_time_t(time));
    const auto text = codePage_.FromUtf8(InUsersLocale(local));
    return text && !text->empty() ? *text : PlainTime(ToSeconds(local));
}

} // namespace zy
