#include "platform/windows/WindowsFolderLock.h"

#include <chrono>
#include <optional>
#include <thread>

#include "platform/windows/SystemHandle.h"

namespace zy {
namespace {

class WindowsFolderLock final : public FolderLock {
  public:
    explicit WindowsFolderLock(SystemHandle file) : file_(std::move(file)) {}

  private:
    SystemHandle file_;
};

/// One try, and its error code when it did not succeed.
struct Try {
    SystemHandle file;
    DWORD error;
};

Try Open(const std::string& path) {
    constexpr DWORD kSharedWithNobody = 0;
    SystemHandle file(::CreateFileA(path.c_str(), GENERIC_WRITE, kSharedWithNobody, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    const DWORD error = file ? ERROR_SUCCESS : ::GetLastError();
    return {.file = std::move(file), .error = error};
}

bool IsHeld(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_DELETE_PENDING;
}

/// The last try, after waiting for another holder for as long as a save may take.
Try OpenInTime(const std::string& path) {
    constexpr std::chrono::seconds kPatience{2};
    constexpr std::chrono::milliseconds kPause{10};
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    std::optional<Try> last(Open(path));
    while (IsHeld(last->error) && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(kPause);
        last.emplace(Open(path));
    }
    return std::move(*last);
}

} // namespace

LockedFolder LockWindowsFolder(const std::string& folder) {
    auto [file, error] = OpenInTime(folder + kFolderLockName);
    if (IsHeld(error)) {
        return {.lock = nullptr, .error = FileError::InUse};
    }
    if (!file) {
        return {};
    }
    return {.lock = std::make_unique<WindowsFolderLock>(std::move(file)), .error = FileError::None};
}

} // namespace zy
