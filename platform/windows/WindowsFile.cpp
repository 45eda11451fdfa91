#include "platform/windows/WindowsFile.h"

#include <algorithm>
#include <limits>

#include "platform/windows/ErrorCode.h"
#include "platform/windows/FilePermissions.h"
#include "platform/windows/SystemHandle.h"

namespace zy {
namespace {

/// One call reads or writes no more than a 32-bit number of bytes.
DWORD PieceOf(std::size_t size) {
    constexpr std::size_t kLargest = std::numeric_limits<DWORD>::max() / 2;
    return static_cast<DWORD>(std::min(size, kLargest));
}

class WindowsFile final : public FileHandle {
  public:
    explicit WindowsFile(SystemHandle file) : file_(std::move(file)) {}

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

  private:
    SystemHandle file_;
};

/// What differs between the ways to open a file.
struct Opening {
    DWORD access;
    DWORD disposition;
    SECURITY_ATTRIBUTES* permissions = nullptr;
};

OpenedFile OnDisk(SystemHandle file) {
    if (::GetFileType(file.Get()) != FILE_TYPE_DISK) {
        return {.handle = nullptr, .error = FileError::Other};
    }
    return {.handle = std::make_unique<WindowsFile>(std::move(file)), .error = FileError::None};
}

OpenedFile Open(const std::string& path, const Opening& opening) {
    SystemHandle file(::CreateFileA(path.c_str(), opening.access, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    opening.permissions, opening.disposition, FILE_FLAG_SEQUENTIAL_SCAN,
                                    nullptr));
    return file ? OnDisk(std::move(file))
                : OpenedFile{.handle = nullptr, .error = ToFileError(::GetLastError(), path)};
}

} // namespace

OpenedFile OpenWindowsFile(const std::string& path) {
    return Open(path, {.access = GENERIC_READ, .disposition = OPEN_EXISTING});
}

OpenedFile OpenWindowsFile(const std::wstring& path) {
    SystemHandle file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    return file ? OnDisk(std::move(file))
                : OpenedFile{.handle = nullptr, .error = ToFileError(::GetLastError())};
}

OpenedFile OpenOrCreateWindowsFile(const std::string& path) {
    return Open(path, {.access = GENERIC_READ, .disposition = OPEN_ALWAYS});
}

OpenedFile CreateWindowsFile(const std::string& path) {
    auto created = Open(path, {.access = GENERIC_WRITE, .disposition = CREATE_ALWAYS});
    if (created.error == FileError::AccessDenied && IsWriteProtected(path)) {
        created.error = FileError::ReadOnly;
    }
    return created;
}

OpenedFile CreatePrivateWindowsFile(const std::string& path) {
    const PermissionsForTheUserAlone permissions;
    if (permissions.Get() == nullptr) {
        // Rather no file than one that everybody may read.
        return {.handle = nullptr, .error = FileError::Other};
    }
    SECURITY_ATTRIBUTES attributes{.nLength = sizeof(SECURITY_ATTRIBUTES),
                                   .lpSecurityDescriptor = permissions.Get(),
                                   .bInheritHandle = FALSE};
    return Open(path, {.access = GENERIC_WRITE, .disposition = CREATE_NEW, .permissions = &attributes});
}

} // namespace zy
