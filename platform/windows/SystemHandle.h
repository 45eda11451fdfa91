#pragma once

#include <windows.h>

#include <utility>

namespace zy {

/// A handle of the operating system, closed when it goes out of scope. For sources of this room alone: its
/// other headers stay without the system's.
class SystemHandle {
  public:
    /// Null and INVALID_HANDLE_VALUE are no handle: the system's calls return the one or the other.
    explicit SystemHandle(HANDLE handle) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    SystemHandle(SystemHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    SystemHandle& operator=(SystemHandle&&) = delete;
    ~SystemHandle() { Close(); }

    HANDLE Get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

    /// Returns 0 or the error code.
    DWORD Close() {
        if (handle_ == nullptr) {
            return ERROR_INVALID_HANDLE;
        }
        return ::CloseHandle(std::exchange(handle_, nullptr)) != FALSE ? ERROR_SUCCESS : ::GetLastError();
    }

  private:
    HANDLE handle_;
};

} // namespace zy
