#include "platform/posix/UserFolders.h"

#include <linux/magic.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

#include "platform/posix/ErrorNumber.h"

namespace zy {
namespace {

bool IsAbsolute(const std::string& path) {
    return path.starts_with('/');
}

std::string HomeFromUserDatabase() {
    constexpr std::size_t kLongestEntry = 16384;
    std::array<char, kLongestEntry> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    const int error = ::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found);
    return error == 0 && found != nullptr ? found->pw_dir : "";
}

std::string HomeFolder() {
    auto home = Environment("HOME");
    return IsAbsolute(home) ? home : HomeFromUserDatabase();
}

/// The folder that a variable names, else the usual one in the home folder.
std::string UserFolder(const char* variable, const char* usual) {
    auto named = Environment(variable);
    if (IsAbsolute(named)) {
        return named;
    }
    const auto home = HomeFolder();
    return IsAbsolute(home) ? home + usual : "";
}

bool IsFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

FileError MakeFolder(const std::string& path) {
    constexpr mode_t kForTheUserAlone = 0700;
    const int error = ::mkdir(path.c_str(), kForTheUserAlone) == 0 ? 0 : errno;
    // Most are there already, which mkdir calls an error.
    return error == 0 || IsFolder(path) ? FileError::None : ToFileError(error);
}

bool IsForTheUserAlone(const std::string& folder) {
    constexpr mode_t kForOthers = S_IRWXG | S_IRWXO;
    struct stat status {};
    return ::stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & kForOthers) == 0;
}

bool LiesInMemory(const std::string& path) {
    struct statfs disk {};
    return ::statfs(path.c_str(), &disk) == 0 && (disk.f_type == TMPFS_MAGIC || disk.f_type == RAMFS_MAGIC);
}

} // namespace

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string UserDataFolder() {
    return UserFolder("XDG_DATA_HOME", "/.local/share");
}

std::string UserConfigFolder() {
    return UserFolder("XDG_CONFIG_HOME", "/.config");
}

std::string UserStateFolder() {
    return UserFolder("XDG_STATE_HOME", "/.local/state");
}

std::string OwnFolderIn(const std::string& folder) {
    return folder.empty() ? "" : folder + "/zysetup";
}

std::string UserRuntimeFolder() {
    auto named = Environment("XDG_RUNTIME_DIR");
    return IsAbsolute(named) && IsForTheUserAlone(named) && LiesInMemory(named) ? named : "";
}

FileError MakeFolders(const std::string& path) {
    for (auto end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
        if (const auto error = MakeFolder(path.substr(0, end)); error != FileError::None) {
            return error;
        }
    }
    return MakeFolder(path);
}

} // namespace zy
