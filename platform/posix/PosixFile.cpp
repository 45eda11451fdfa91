#include "platform/posix/PosixFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/posix/ErrorNumber.h"

namespace zy {
namespace {

constexpr mode_t kReadWriteForAll = 0666;
constexpr mode_t kReadWriteForOwner = 0600;
constexpr mode_t kPermissionBits = 0777;

/// Why a file of this type is not worked with; None for a regular one.
FileError TypeError(mode_t mode) {
    if (S_ISREG(mode)) {
        return FileError::None;
    }
    return S_ISDIR(mode) ? FileError::IsFolder : FileError::Other;
}

OpenedFile Open(const std::string& path, int flags, mode_t permissions) {
    // Without O_NONBLOCK the call itself would wait for the other end of a pipe.
    const int always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    FileDescriptor file(Uninterrupted([&] { return ::open(path.c_str(), flags | always, permissions); }));
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0) {
        return {.handle = nullptr, .error = ToFileError(errno)};
    }
    if (const auto error = TypeError(status.st_mode); error != FileError::None) {
        return {.handle = nullptr, .error = error};
    }
    static_cast<void>(::posix_fadvise(file.Number(), 0, 0, POSIX_FADV_SEQUENTIAL)); // only a hint
    const auto size = static_cast<std::uint64_t>(status.st_size);
    return {.handle = std::make_unique<PosixFile>(std::move(file), size), .error = FileError::None};
}

FileError Status(const std::string& path, struct stat& status) {
    return ::stat(path.c_str(), &status) == 0 ? TypeError(status.st_mode) : ToFileError(errno);
}

} // namespace

std::uint64_t PosixFile::Size() const {
    struct stat status {};
    return ::fstat(file_.Number(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : size_;
}

std::size_t PosixFile::Read(std::span<char> buffer) {
    std::size_t total = 0;
    while (total < buffer.size()) {
        const auto rest = buffer.subspan(total);
        const auto count = Uninterrupted([&] { return ::read(file_.Number(), rest.data(), rest.size()); });
        if (count <= 0) {
            break;
        }
        total += static_cast<std::size_t>(count);
    }
    return total;
}

FileError PosixFile::Write(std::string_view text) {
    while (!text.empty()) {
        const auto count = Uninterrupted([&] { return ::write(file_.Number(), text.data(), text.size()); });
        if (count < 0) {
            return ToFileError(errno);
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return FileError::None;
}

FileError PosixFile::Flush() {
    return ToFileError(Uninterrupted([&] { return ::fdatasync(file_.Number()); }) == 0 ? 0 : errno);
}

FileError PosixFile::Close() {
    return ToFileError(file_.Close());
}

OpenedFile OpenPosixFileForReading(const std::string& path) {
    return Open(path, O_RDONLY, 0);
}

OpenedFile OpenOrCreatePosixFileForReading(const std::string& path) {
    // Asked to create what is there, the system could refuse another user's file in a folder for everybody.
    auto opened = OpenPosixFileForReading(path);
    return opened.error == FileError::NotFound ? Open(path, O_RDONLY | O_CREAT, kReadWriteForAll)
                                               : std::move(opened);
}

OpenedFile CreatePosixFile(const std::string& path, IfExists ifExists, NewFileAccess access) {
    return Open(path, O_WRONLY | O_CREAT | (ifExists == IfExists::Fails ? O_EXCL : O_TRUNC),
                access == NewFileAccess::OwnerAlone ? kReadWriteForOwner : kReadWriteForAll);
}

FileError CopyPosixPermissions(const std::string& from, const std::string& to) {
    struct stat source {};
    struct stat target {};
    for (const auto error : {Status(from, source), Status(to, target)}) {
        if (error != FileError::None) {
            return error;
        }
    }
    // An ordinary user may not give files away; the permission bits count all the same.
    [[maybe_unused]] const int given = ::chown(to.c_str(), source.st_uid, source.st_gid);
    return ToFileError(::chmod(to.c_str(), source.st_mode & kPermissionBits) == 0 ? 0 : errno);
}

} // namespace zy
