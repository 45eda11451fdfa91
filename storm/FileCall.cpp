#include "FileCall.h"

#include <sys/syscall.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zy::storm {
namespace {

constexpr int kNone = -1;
constexpr unsigned kByPath = kBadDisk | kRefused;
constexpr unsigned kByEntry = kByPath | kNoRoom; ///< makes an entry in a folder
constexpr unsigned kToDisk = kNoRoom | kBadDisk | kInterrupted;

constexpr FileCall Named(unsigned number, const char* name, int path, unsigned failures) {
    return {number, name, kNone, path, kNone, kNone, kNone, kNone, kNone, failures};
}
constexpr FileCall NamedIn(unsigned number, const char* name, unsigned failures) {
    return {number, name, 0, 1, kNone, kNone, kNone, kNone, kNone, failures};
}
constexpr FileCall Opened(unsigned number, const char* name, unsigned failures) {
    return {number, name, kNone, kNone, 0, kNone, kNone, kNone, kNone, failures};
}
constexpr FileCall Writing(unsigned number, const char* name, int length) {
    return {number, name, kNone, kNone, 0, kNone, kNone, length, kNone, kToDisk | kShort};
}
constexpr FileCall Opening(unsigned number, const char* name, int folder, int path, int flags) {
    return {number, name, folder, path, kNone, kNone, kNone, kNone, flags, kByEntry | kInterrupted};
}
constexpr FileCall Two(unsigned number, const char* name) {
    return {number, name, kNone, 0, kNone, kNone, 1, kNone, kNone, kByEntry};
}
constexpr FileCall TwoIn(unsigned number, const char* name) {
    return {number, name, 0, 1, kNone, 2, 3, kNone, kNone, kByEntry};
}

constexpr std::array kCalls{
    Opening(SYS_open, "open", kNone, 0, 1),
    Opening(SYS_openat, "openat", 0, 1, 2),
    Named(SYS_creat, "creat", 0, kByEntry | kInterrupted),
    Opened(SYS_read, "read", kBadDisk | kInterrupted),
    Opened(SYS_pread64, "pread", kBadDisk | kInterrupted),
    Writing(SYS_write, "write", 2),
    Writing(SYS_pwrite64, "pwrite", 2),
    Opened(SYS_writev, "writev", kToDisk),
    Opened(SYS_fsync, "fsync", kToDisk),
    Opened(SYS_fdatasync, "fdatasync", kToDisk),
    Opened(SYS_ftruncate, "ftruncate", kToDisk),
    Opened(SYS_fallocate, "fallocate", kToDisk),
    Opened(SYS_copy_file_range, "copy_file_range", kToDisk),
    Opened(SYS_close, "close", kToDisk),
    Opened(SYS_flock, "flock", kBadDisk | kInterrupted),
    Opened(SYS_getdents64, "getdents", kBadDisk),
    Opened(SYS_lseek, "lseek", kBadDisk),
    Opened(SYS_fstat, "fstat", kBadDisk),
    Opened(SYS_fstatfs, "fstatfs", kBadDisk),
    Opened(SYS_fchmod, "fchmod", kByPath),
    Opened(SYS_fchown, "fchown", kByPath),
    Named(SYS_stat, "stat", 0, kByPath),
    Named(SYS_lstat, "lstat", 0, kByPath),
    NamedIn(SYS_newfstatat, "fstatat", kByPath),
    NamedIn(SYS_statx, "statx", kByPath),
    Named(SYS_access, "access", 0, kByPath),
    NamedIn(SYS_faccessat, "faccessat", kByPath),
    NamedIn(SYS_faccessat2, "faccessat2", kByPath),
    Named(SYS_readlink, "readlink", 0, kByPath),
    NamedIn(SYS_readlinkat, "readlinkat", kByPath),
    Named(SYS_statfs, "statfs", 0, kByPath),
    Two(SYS_rename, "rename"),
    TwoIn(SYS_renameat, "renameat"),
    TwoIn(SYS_renameat2, "renameat2"),
    Two(SYS_link, "link"),
    TwoIn(SYS_linkat, "linkat"),
    Named(SYS_symlink, "symlink", 1, kByEntry),
    Named(SYS_unlink, "unlink", 0, kByPath),
    NamedIn(SYS_unlinkat, "unlinkat", kByPath),
    Named(SYS_mkdir, "mkdir", 0, kByEntry),
    NamedIn(SYS_mkdirat, "mkdirat", kByEntry),
    Named(SYS_rmdir, "rmdir", 0, kByPath),
    Named(SYS_chmod, "chmod", 0, kByPath),
    NamedIn(SYS_fchmodat, "fchmodat", kByPath),
    Named(SYS_chown, "chown", 0, kByPath),
    Named(SYS_lchown, "lchown", 0, kByPath),
    NamedIn(SYS_fchownat, "fchownat", kByPath),
    NamedIn(SYS_utimensat, "utimensat", kByPath),
};

struct NamedFailure {
    FailureKind kind;
    const char* name;
    int error;
};

constexpr std::array kFailures{NamedFailure{kNoRoom, "ENOSPC", ENOSPC}, NamedFailure{kBadDisk, "EIO", EIO},
                               NamedFailure{kRefused, "EACCES", EACCES},
                               NamedFailure{kInterrupted, "EINTR", EINTR}, NamedFailure{kShort, "short", 0}};

} // namespace

std::span<const FileCall> FileCalls() {
    return kCalls;
}

const FileCall* FindFileCall(unsigned number) {
    const auto* found =
        std::find_if(kCalls.begin(), kCalls.end(), [&](const auto& call) { return call.number == number; });
    return found == kCalls.end() ? nullptr : found;
}

FailureKind FailureNamed(const std::string& name) {
    const auto* found = std::find_if(kFailures.begin(), kFailures.end(),
                                     [&](const auto& failure) { return failure.name == name; });
    return found == kFailures.end() ? FailureKind{} : found->kind;
}

std::string NamesOf(unsigned failures) {
    std::string names;
    for (const auto& failure : kFailures) {
        if ((failures & failure.kind) != 0) {
            names += (names.empty() ? "" : ",") + std::string(failure.name);
        }
    }
    return names;
}

int ErrorOf(FailureKind failure) {
    const auto* found = std::find_if(kFailures.begin(), kFailures.end(),
                                     [&](const auto& each) { return each.kind == failure; });
    return found == kFailures.end() ? 0 : found->error;
}

} // namespace zy::storm
