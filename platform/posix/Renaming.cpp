#include "platform/posix/Renaming.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

namespace zy {
namespace {

int ErrorNumber(int result) {
    return result == 0 ? 0 : errno;
}

bool IsMissingFlag(int error) {
    return error == EINVAL || error == ENOSYS;
}

bool IsMissingLinks(int error) {
    return error == EPERM || error == EOPNOTSUPP || error == EMLINK || error == ENOSYS;
}

bool Never(int /*error*/) {
    return false;
}

} // namespace

int RenameWithoutReplacing(const std::string& from, const std::string& to) {
    constexpr std::array<RenamingWay, 3> kBestFirst{
        {{.rename = RenameByFlag, .isUnsupported = IsMissingFlag},
         {.rename = RenameByLink, .isUnsupported = IsMissingLinks},
         {.rename = RenameAfterCheck, .isUnsupported = Never}}};
    return RenameInFirstWay(kBestFirst, from, to);
}

int RenameInFirstWay(std::span<const RenamingWay> ways, const std::string& from, const std::string& to) {
    int error = ENOSYS;
    for (const auto& way : ways) {
        error = way.rename(from, to);
        if (!way.isUnsupported(error)) {
            break;
        }
    }
    return error;
}

int RenameByFlag(const std::string& from, const std::string& to) {
    return ErrorNumber(::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE));
}

int RenameByLink(const std::string& from, const std::string& to) {
    if (::link(from.c_str(), to.c_str()) != 0) {
        return errno;
    }
    const int removed = ErrorNumber(::unlink(from.c_str()));
    if (removed != 0) {
        static_cast<void>(::unlink(to.c_str())); // the first error is the one that is reported
    }
    return removed;
}

int RenameAfterCheck(const std::string& from, const std::string& to) {
    struct stat status {};
    if (::lstat(to.c_str(), &status) == 0) {
        return EEXIST;
    }
    return errno == ENOENT ? ErrorNumber(::rename(from.c_str(), to.c_str())) : errno;
}

} // namespace zy
