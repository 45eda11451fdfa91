#pragma once

#include <windows.h>

#include <string>
#include <system_error>
#include <utility>

namespace zy::test {

/// A handle of the operating system, closed when it goes out of scope.
class WindowsHandle {
  public:
    explicit WindowsHandle(HANDLE handle = nullptr)
        : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    WindowsHandle(WindowsHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    WindowsHandle& operator=(WindowsHandle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~WindowsHandle() { Close(); }

    HANDLE Get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    void Close() {
        if (handle_ != nullptr) {
            ::CloseHandle(std::exchange(handle_, nullptr));
        }
    }

  private:
    HANDLE handle_;
};

/// Throws the last error of the system, for a call that has failed.
[[noreturn]] inline void ThrowLastError(const char* call) {
    throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), call);
}

/// Starts a program with these streams, which it inherits.
inline WindowsHandle StartProgram(std::string commandLine, HANDLE input, HANDLE output, HANDLE errors) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input;
    start.hStdOutput = output;
    start.hStdError = errors;
    PROCESS_INFORMATION started{};
    if (::CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                         &started) == FALSE) {
        ThrowLastError("CreateProcess");
    }
    ::CloseHandle(started.hThread);
    return WindowsHandle(started.hProcess);
}

/// A pipe whose both ends can be handed to a child, with room for what a child writes before anybody reads.
struct WindowsPipe {
    WindowsPipe() {
        constexpr DWORD kRoom = 1 << 20;
        SECURITY_ATTRIBUTES inherited{
            .nLength = sizeof(SECURITY_ATTRIBUTES), .lpSecurityDescriptor = nullptr, .bInheritHandle = TRUE};
        HANDLE from = nullptr;
        HANDLE to = nullptr;
        if (::CreatePipe(&from, &to, &inherited, kRoom) == FALSE) {
            ThrowLastError("CreatePipe");
        }
        reader = WindowsHandle(from);
        writer = WindowsHandle(to);
    }

    WindowsHandle reader;
    WindowsHandle writer;
};

/// Keeps an end of a pipe from the children of this process.
inline void KeepToOurselves(const WindowsHandle& handle) {
    ::SetHandleInformation(handle.Get(), HANDLE_FLAG_INHERIT, 0);
}

} // namespace zy::test
