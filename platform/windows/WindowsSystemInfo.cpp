#include "platform/windows/WindowsSystemInfo.h"

#include <windows.h>

#include <array>
#include <utility>

#include "platform/windows/ProgramArguments.h"

namespace zy {
namespace {

std::wstring ExecutablePath() {
    constexpr DWORD kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    return path;
}

} // namespace

WindowsSystemInfo::WindowsSystemInfo() : WindowsSystemInfo(::GetCommandLineA()) {}

WindowsSystemInfo::WindowsSystemInfo(std::string commandLine) : commandLine_(std::move(commandLine)) {}

std::string WindowsSystemInfo::SystemDirectory() {
    std::array<char, MAX_PATH> path{};
    const auto length = ::GetSystemDirectoryA(path.data(), static_cast<UINT>(path.size()));
    return length < path.size() ? std::string(path.data(), length) : "";
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

} // namespace zy
