#include "platform/windows/WindowsFile.h"

#include "platform/windows/ErrorCode.h"
#include "platform/windows/FilePermissions.h"
#include "platform/windows/HandleFile.h"

namespace zy {
namespace {

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
    return {.handle = std::make_unique<HandleFile>(std::move(file)), .error = FileError::None};
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
    AttributesForTheUserAlone attributes;
    if (attributes.Get() == nullptr) {
        return {.handle = nullptr, .error = FileError::Other};
    }
    return Open(path, {.access = GENERIC_WRITE, .disposition = CREATE_NEW, .permissions = attributes.Get()});
}

} // namespace zy
