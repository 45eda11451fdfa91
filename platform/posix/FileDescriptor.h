#pragma once

#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zy {

/// An open file of the operating system, closed when it goes out of scope. A negative number is no file.
class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor() { Close(); }

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    /// Returns 0 or the error number.
    int Close() {
        if (!IsOpen()) {
            return EBADF;
        }
        // After EINTR the descriptor is gone all the same: closing it again could hit a stranger's.
        const bool closed = ::close(std::exchange(number_, -1)) == 0 || errno == EINTR;
        return closed ? 0 : errno;
    }

  private:
    int number_;
};

/// Holds a file or folder for as long as it is open here, against whoever else opens it, in this process or
/// another. Returns 0 or the error number: EWOULDBLOCK while another one holds it.
inline int TryLock(const FileDescriptor& file) {
    return ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
}

/// Repeats a call of the operating system for as long as a signal interrupts it.
template <typename Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

} // namespace zy
