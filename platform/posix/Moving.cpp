#include "platform/posix/Moving.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/posix/ErrorNumber.h"
#include "platform/posix/Links.h"
#include "platform/posix/PosixFile.h"
#include "platform/posix/Renaming.h"

namespace zy {
namespace {

FileError Remove(const std::string& path) {
    return ToFileError(::unlink(path.c_str()) == 0 ? 0 : errno);
}

/// Makes a new name last. When that fails the file has its new name all the same, so nothing is reported.
void SyncFolderOf(const std::string& path) {
    const auto folder = FolderOfPath(path);
    const FileDescriptor entries(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Uninterrupted([&] { return ::fsync(entries.Number()); });
}

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

/// A copy of a file in the folder that it is to move into, under a name that it has to itself. It goes with
/// this unless it gets its name.
class CopyBeside {
  public:
    explicit CopyBeside(const std::string& to)
        : path_(FolderOfPath(to) + ".zysetup-XXXXXX"), file_(::mkostemp(path_.data(), O_CLOEXEC)),
          created_(ToFileError(file_.IsOpen() ? 0 : errno)) {}
    CopyBeside(const CopyBeside&) = delete;
    CopyBeside& operator=(const CopyBeside&) = delete;
    ~CopyBeside() {
        if (created_ == FileError::None) {
            Remove(path_);
        }
    }

    FileError Fill(const std::string& from) {
        const auto source = OpenPosixFileForReading(from);
        if (!source.handle || created_ != FileError::None) {
            return source.handle ? created_ : source.error;
        }
        PosixFile target(std::move(file_));
        const auto error = CopyBytes(*source.handle, target);
        return error == FileError::None ? CopyPosixPermissions(from, path_) : error;
    }

    FileError GiveName(const std::string& to) const { return ToFileError(RenameWithoutReplacing(path_, to)); }

  private:
    std::string path_;
    FileDescriptor file_;
    FileError created_;
};

/// Removes what has a copy now; takes the copy back when that fails.
FileError RemoveCopied(const std::string& from, const std::string& copy) {
    const auto error = Remove(from);
    if (error != FileError::None) {
        Remove(copy);
    }
    return error;
}

FileError MoveToOtherDisk(const std::string& from, const std::string& to) {
    CopyBeside copy(to);
    auto error = copy.Fill(from);
    if (error == FileError::None) {
        error = copy.GiveName(to);
    }
    if (error != FileError::None) {
        return error;
    }
    SyncFolderOf(to);
    return RemoveCopied(from, to);
}

} // namespace

FileError MoveWithoutReplacing(const std::string& from, const std::string& to) {
    return MoveBy(RenameWithoutReplacing, from, to);
}

FileError MoveBy(int (*rename)(const std::string& from, const std::string& to), const std::string& from,
                 const std::string& to) {
    const int error = rename(from, to);
    if (error == EXDEV) {
        return MoveToOtherDisk(from, to);
    }
    if (error == 0) {
        SyncFolderOf(to);
    }
    return ToFileError(error);
}

} // namespace zy
