#include "platform/windows/WindowsSystemInfo.h"

#include <windows.h>

#include <array>
#include <utility>

#include "platform/TimeDigits.h"
#include "platform/windows/LocalTime.h"
#include "platform/windows/ProgramArguments.h"
#include "platform/windows/StateFolder.h"

namespace zy {
namespace {

std::wstring ExecutablePath() {
    constexpr DWORD kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    return path;
}

FILETIME ToFileTime(std::chrono::sys_seconds time) {
    constexpr std::uint64_t kTicksOfASecond = 10'000'000;
    constexpr std::chrono::sys_days kFirst{std::chrono::year(1601) / std::chrono::January / 1};
    const auto ticks = static_cast<std::uint64_t>((time - kFirst).count()) * kTicksOfASecond;
    return {.dwLowDateTime = static_cast<DWORD>(ticks), .dwHighDateTime = static_cast<DWORD>(ticks >> 32U)};
}

/// Date and time as the user's locale writes them; empty where the system does not say.
std::wstring InUsersLocale(const SYSTEMTIME& local) {
    constexpr int kLongest = 256;
    std::array<wchar_t, kLongest> date{};
    std::array<wchar_t, kLongest> clock{};
    const bool isKnown =
        ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date.data(), kLongest) != 0 &&
        ::GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &local, nullptr, clock.data(), kLongest) != 0;
    return isKnown ? std::wstring(date.data()) + L' ' + clock.data() : L"";
}

} // namespace

WindowsSystemInfo::WindowsSystemInfo() : WindowsSystemInfo(::GetCommandLineA()) {}

WindowsSystemInfo::WindowsSystemInfo(std::string commandLine) : commandLine_(std::move(commandLine)) {}

std::string WindowsSystemInfo::SystemDirectory() {
    std::array<char, MAX_PATH> path{};
    const auto length = ::GetSystemDirectoryA(path.data(), static_cast<UINT>(path.size()));
    return length < path.size() ? std::string(path.data(), length) : "";
}

std::string WindowsSystemInfo::StateFolder() {
    return InsideOwnFolderIn(UsersLocalFolder());
}

std::string WindowsSystemInfo::CommandLine() const {
    return std::string(ProgramArguments(commandLine_));
}

std::string WindowsSystemInfo::ExecutableName() const {
    const auto path = ExecutablePath();
    const auto name = path.substr(path.rfind(L'\\') + 1);
    return InsidePath(name.substr(0, name.rfind(L'.')));
}

std::string WindowsSystemInfo::ExecutableFolder() const {
    return InsidePath(Folder().path);
}

ProgramFolder WindowsSystemInfo::Folder() const {
    const auto path = ExecutablePath();
    return {path.substr(0, path.rfind(L'\\'))};
}

char WindowsSystemInfo::DecimalSeparator() const {
    constexpr int kOneAndItsNul = 2;
    std::array<char, 8> separator{};
    const int length = ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator.data(),
                                        static_cast<int>(separator.size()));
    return length == kOneAndItsNul ? separator.front() : '.';
}

std::chrono::year_month_day WindowsSystemInfo::Today() const {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {std::chrono::year(now.wYear), std::chrono::month(now.wMonth), std::chrono::day(now.wDay)};
}

std::chrono::sys_seconds WindowsSystemInfo::Now() {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

std::string WindowsSystemInfo::TimeText(std::chrono::sys_seconds time) {
    const auto local = LocalTime(ToFileTime(time));
    const auto text = InUsersLocale(local);
    return text.empty() || !IsInCodePage(text) ? PlainTime(ToSeconds(local)) : InsidePath(text);
}

} // namespace zy
