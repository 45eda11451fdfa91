#include "platform/posix/PosixFolderLock.h"

#include <fcntl.h>

#include <chrono>
#include <thread>

#include "platform/posix/FileDescriptor.h"

namespace zy {
namespace {

class PosixFolderLock final : public FolderLock {
  public:
    explicit PosixFolderLock(FileDescriptor folder) : folder_(std::move(folder)) {}

  private:
    FileDescriptor folder_;
};

/// Returns 0 or the error number, after waiting for the other one for as long as a save may take.
int LockInTime(const FileDescriptor& folder) {
    constexpr std::chrono::seconds kPatience{2};
    constexpr std::chrono::milliseconds kPause{10};
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    int error = TryLock(folder);
    while (error == EWOULDBLOCK && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(kPause);
        error = TryLock(folder);
    }
    return error;
}

} // namespace

LockedFolder LockPosixFolder(const std::string& folder) {
    FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const int error = opened.IsOpen() ? LockInTime(opened) : ENOLCK;
    if (error == EWOULDBLOCK) {
        return {.lock = nullptr, .error = FileError::InUse};
    }
    if (error != 0) {
        return {};
    }
    return {.lock = std::make_unique<PosixFolderLock>(std::move(opened)), .error = FileError::None};
}

} // namespace zy
