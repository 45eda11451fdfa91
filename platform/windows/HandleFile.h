#pragma once

#include <algorithm>
#include <limits>

#include "platform/FileSystem.h"
#include "platform/windows/ErrorCode.h"
#include "platform/windows/FilePermissions.h"
#include "platform/windows/SystemHandle.h"

namespace zy {

// For sources of this room alone: its other headers stay without the system's.

/// A file on an open handle of the system.
class HandleFile final : public FileHandle {
  public:
    explicit HandleFile(SystemHandle file) : file_(std::move(file)) {}

    std::uint64_t Size() const override {
        LARGE_INTEGER size{};
        return ::GetFileSizeEx(file_.Get(), &size) != FALSE ? static_cast<std::uint64_t>(size.QuadPart) : 0;
    }

    std::size_t Read(std::span<char> buffer) override {
        std::size_t total = 0;
        while (total < buffer.size()) {
            const auto rest = buffer.subspan(total);
            DWORD count = 0;
            const auto done = ::ReadFile(file_.Get(), rest.data(), PieceOf(rest.size()), &count, nullptr);
            if (done == FALSE || count == 0) {
                break;
            }
            total += count;
        }
        return total;
    }

    FileError Write(std::string_view text) override {
        if (!file_) {
            return ToFileError(ERROR_INVALID_HANDLE);
        }
        while (!text.empty()) {
            DWORD count = 0;
            if (::WriteFile(file_.Get(), text.data(), PieceOf(text.size()), &count, nullptr) == FALSE) {
                return ToFileError(::GetLastError());
            }
            text.remove_prefix(count);
        }
        return FileError::None;
    }

    FileError Flush() override {
        return ToFileError(::FlushFileBuffers(file_.Get()) != FALSE ? ERROR_SUCCESS : ::GetLastError());
    }

    FileError Close() override { return ToFileError(file_.Close()); }

    /// For calls of the system that only some files need.
    const SystemHandle& Handle() const { return file_; }

  private:
    /// One call reads or writes no more than a 32-bit number of bytes.
    static DWORD PieceOf(std::size_t size) {
        constexpr std::size_t kLargest = std::numeric_limits<DWORD>::max() / 2;
        return static_cast<DWORD>(std::min(size, kLargest));
    }

    SystemHandle file_;
};

/// What makes a new file or folder the user's alone.
class AttributesForTheUserAlone {
  public:
    AttributesForTheUserAlone() = default;
    AttributesForTheUserAlone(const AttributesForTheUserAlone&) = delete;
    AttributesForTheUserAlone& operator=(const AttributesForTheUserAlone&) = delete;

    /// Null when there are none to be had: rather no file then than one that everybody may read.
    SECURITY_ATTRIBUTES* Get() { return permissions_.Get() == nullptr ? nullptr : &attributes_; }

  private:
    PermissionsForTheUserAlone permissions_;
    SECURITY_ATTRIBUTES attributes_{.nLength = sizeof(SECURITY_ATTRIBUTES),
                                    .lpSecurityDescriptor = permissions_.Get(),
                                    .bInheritHandle = FALSE};
};

} // namespace zy
