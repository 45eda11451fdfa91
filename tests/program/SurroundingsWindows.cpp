#include <windows.h>
// After windows.h, which it leans on.
#include <shlobj.h>
#include <shlwapi.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <set>

#include "Surroundings.h"
#include "platform/windows/WindowsSystemInfo.h"

namespace zy::test {

namespace fs = std::filesystem;

namespace {

constexpr auto kMaker = R"(software\norvale)";
constexpr auto kWindow = R"(software\norvale\products\ZYSetup\Window)";
constexpr auto kAside = R"(Software\zyGlobal tests\norvale)";

/// The names that the program writes under.
constexpr std::array<const char*, 7> kFiles{"ZYRules.sys",  "Rules.tmp",    "ZYUNITS.SYS", "ZYSECURE.DBF",
                                            "ZYSECURE.NDX", "ZYSECURE.TMP", "ZYSECURE.ZYX"};

std::set<std::string> NamesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

void Move(const fs::path& from, const fs::path& to) {
    if (fs::exists(from)) {
        fs::copy_file(from, to, fs::copy_options::overwrite_existing);
        fs::remove(from);
    }
}

/// Replaces a key and all below it; a key that is not there makes none of the other.
void MoveKey(HKEY fromRoot, const char* from, HKEY toRoot, const char* to) {
    ::SHDeleteKeyA(toRoot, to);
    HKEY copy = nullptr;
    HKEY original = nullptr;
    if (::RegOpenKeyExA(fromRoot, from, 0, KEY_READ, &original) != ERROR_SUCCESS) {
        return;
    }
    ::RegCreateKeyExA(toRoot, to, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &copy,
                      nullptr);
    ::SHCopyKeyA(original, nullptr, copy, 0);
    ::RegCloseKey(copy);
    ::RegCloseKey(original);
    ::SHDeleteKeyA(fromRoot, from);
}

/// Where the program keeps what it notes for its next session.
fs::path Journals() {
    std::array<char, MAX_PATH> folder{};
    ::SHGetFolderPathA(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder.data());
    return fs::path(folder.data()) / "zysetup";
}

fs::path JournalsAside() {
    return Journals().replace_extension(".aside");
}

/// Replaces a folder; one that is not there makes none of the other.
void MoveFolder(const fs::path& from, const fs::path& to) {
    if (fs::exists(from)) {
        fs::remove_all(to);
        fs::rename(from, to);
    }
}

/// A key's value of that number, as "name=value"; nothing when there are not so many.
std::optional<std::string> ValueOf(HKEY key, DWORD number) {
    std::array<char, 64> name{};
    std::array<char, 256> text{};
    auto nameLength = static_cast<DWORD>(name.size());
    auto textLength = static_cast<DWORD>(text.size());
    DWORD type = REG_NONE;
    if (::RegEnumValueA(key, number, name.data(), &nameLength, nullptr, &type,
                        reinterpret_cast<BYTE*>(text.data()), &textLength) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const std::string value(text.data(), textLength);
    return std::string(name.data()) + (type == REG_SZ ? "=" : " is no text: ") + value;
}

} // namespace

struct Surroundings::Native {
    fs::path system = WindowsSystemInfo("").SystemDirectory();
    /// The files that are the system's own.
    std::set<std::string> before;
};

Surroundings::Surroundings() : native_(std::make_unique<Native>()) {
    folder_.AddFolder("aside");
    for (const auto* name : kFiles) {
        Move(native_->system / name, folder_.Path() / "aside" / name);
    }
    native_->before = NamesIn(native_->system);
    MoveKey(HKEY_LOCAL_MACHINE, kMaker, HKEY_CURRENT_USER, kAside);
    MoveFolder(Journals(), JournalsAside());
}

Surroundings::~Surroundings() {
    for (const auto* name : kFiles) {
        fs::remove(native_->system / name);
        Move(folder_.Path() / "aside" / name, native_->system / name);
    }
    ::SHDeleteKeyA(HKEY_LOCAL_MACHINE, kMaker);
    MoveKey(HKEY_CURRENT_USER, kAside, HKEY_LOCAL_MACHINE, kMaker);
    fs::remove_all(Journals());
    MoveFolder(JournalsAside(), Journals());
}

fs::path Surroundings::Settings() const {
    return native_->system;
}

std::vector<std::string> Surroundings::FileNames() const {
    std::vector<std::string> names;
    std::ranges::set_difference(NamesIn(native_->system), native_->before, std::back_inserter(names));
    return names;
}

std::string Surroundings::Registry() const {
    HKEY key = nullptr;
    if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, kWindow, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) {
        return "";
    }
    auto text = '[' + std::string(kWindow) + "]\n";
    for (DWORD number = 0; const auto value = ValueOf(key, number); ++number) {
        text += *value + '\n';
    }
    ::RegCloseKey(key);
    return text;
}

/// They always are.
void Surroundings::AdmitViewers() {}

std::string ProgramPath() {
    return WindowsSystemInfo("").ExecutableFolder() + "\\" ZY_PROGRAM;
}

std::string ViewerPath() {
    return WindowsSystemInfo("").ExecutableFolder() + "\\" ZY_VIEWER;
}

} // namespace zy::test
