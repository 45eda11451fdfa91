#include "platform/posix/TrashFolder.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "platform/posix/ErrorNumber.h"
#include "platform/posix/PosixFile.h"
#include "platform/posix/Renaming.h"
#include "platform/posix/UserFolders.h"

namespace zy {
namespace {

FileError CopyBytes(FileHandle& from, FileHandle& to) {
    constexpr std::size_t kPiece = 65536;
    std::vector<char> buffer(kPiece);
    auto rest = from.Size();
    while (rest > 0) {
        const auto count = from.Read(buffer);
        if (count == 0) {
            return FileError::Other;
        }
        if (const auto error = to.Write({buffer.data(), count}); error != FileError::None) {
            return error;
        }
        rest -= std::min<std::uint64_t>(rest, count);
    }
    const auto flushed = to.Flush();
    return flushed == FileError::None ? to.Close() : flushed;
}

/// Fills the file just created at `to` and removes the one at `from`.
FileError FillAndRemove(const std::string& from, const std::string& to, FileHandle& target) {
    const auto source = OpenPosixFileForReading(from);
    auto error = source.handle ? CopyBytes(*source.handle, target) : source.error;
    if (error == FileError::None) {
        error = CopyPosixPermissions(from, to);
    }
    if (error == FileError::None) {
        error = ToFileError(::unlink(from.c_str()) == 0 ? 0 : errno);
    }
    return error;
}

FileError MoveToOtherDisk(const std::string& from, const std::string& to) {
    const auto target = CreatePosixFile(to, IfExists::Fails);
    if (!target.handle) {
        return target.error;
    }
    const auto error = FillAndRemove(from, to, *target.handle);
    if (error != FileError::None) {
        ::unlink(to.c_str());
    }
    return error;
}

FileError Move(const std::string& from, const std::string& to) {
    const int error = RenameWithoutReplacing(from, to);
    return error == EXDEV ? MoveToOtherDisk(from, to) : ToFileError(error);
}

std::string Numbered(const std::filesystem::path& name, int number) {
    return name.stem().string() + '.' + std::to_string(number) + name.extension().string();
}

} // namespace

FileError TrashFolder::Add(const std::string& path) const {
    if (!MakeFolders(folder_)) {
        return FileError::NotFound;
    }
    const auto name = std::filesystem::path(path).filename();
    auto error = Move(path, folder_ + '/' + name.string());
    for (int number = 2; error == FileError::Exists; ++number) {
        error = Move(path, folder_ + '/' + Numbered(name, number));
    }
    return error;
}

} // namespace zy
