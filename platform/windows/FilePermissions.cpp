#include "platform/windows/FilePermissions.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <sddl.h>

#include <memory>
#include <optional>
#include <vector>

#include "platform/windows/ErrorCode.h"
#include "platform/windows/SystemHandle.h"

namespace zy {
namespace {

struct FreeLocal {
    void operator()(char* text) const { ::LocalFree(text); }
};

/// Bytes that the system fills, in a call that first says how many it needs.
template <typename Call>
std::vector<std::byte> Filled(Call call) {
    DWORD size = 0;
    call(nullptr, 0, &size);
    std::vector<std::byte> bytes(size);
    return size > 0 && call(bytes.data(), size, &size) != FALSE ? bytes : std::vector<std::byte>();
}

/// As text such as "S-1-5-21-...".
std::optional<std::string> SidText(PSID sid) {
    char* text = nullptr;
    if (::ConvertSidToStringSidA(sid, &text) == FALSE) {
        return std::nullopt;
    }
    return std::unique_ptr<char, FreeLocal>(text).get();
}

/// Who runs this process.
std::optional<std::string> UserOfThisProcess() {
    HANDLE opened = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened) == FALSE) {
        return std::nullopt;
    }
    const SystemHandle token(opened);
    auto user = Filled([&](void* bytes, DWORD size, DWORD* needed) {
        return ::GetTokenInformation(token.Get(), TokenUser, bytes, size, needed);
    });
    return user.empty() ? std::nullopt : SidText(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid);
}

SystemHandle OpenForRights(const std::string& path, DWORD rights, DWORD flags = 0) {
    return SystemHandle(::CreateFileA(path.c_str(), rights,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, flags, nullptr));
}

bool IsFolderItself(const SystemHandle& opened) {
    BY_HANDLE_FILE_INFORMATION status{};
    return ::GetFileInformationByHandle(opened.Get(), &status) != FALSE &&
           (status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
           (status.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

bool DiskKeepsPermissions(const SystemHandle& file) {
    DWORD flags = 0;
    const auto answered =
        ::GetVolumeInformationByHandleW(file.Get(), nullptr, 0, nullptr, nullptr, &flags, nullptr, 0);
    return answered == FALSE || (flags & FILE_PERSISTENT_ACLS) != 0;
}

/// The part of a file's security descriptor that is asked for; empty on failure.
std::vector<std::byte> Descriptor(const SystemHandle& file, SECURITY_INFORMATION part) {
    return Filled([&](void* bytes, DWORD size, DWORD* needed) {
        return ::GetKernelObjectSecurity(file.Get(), part, bytes, size, needed);
    });
}

bool BelongsToTheUser(const SystemHandle& file) {
    auto descriptor = Descriptor(file, OWNER_SECURITY_INFORMATION);
    PSID owner = nullptr;
    BOOL isDefault = FALSE;
    return !descriptor.empty() &&
           ::GetSecurityDescriptorOwner(descriptor.data(), &owner, &isDefault) != FALSE &&
           SidText(owner) == UserOfThisProcess();
}

/// Whether the access list stays as it is when that of the folder changes.
SECURITY_INFORMATION Inheritance(std::vector<std::byte>& descriptor) {
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    // Where it fails nothing is known to be protected, as in a list that was just made.
    static_cast<void>(::GetSecurityDescriptorControl(descriptor.data(), &control, &revision));
    return (control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION
                                              : UNPROTECTED_DACL_SECURITY_INFORMATION;
}

/// An ordinary user may not give files away; the access list counts all the same.
void CopyOwner(const SystemHandle& source, const std::string& to) {
    constexpr SECURITY_INFORMATION kOwner = OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION;
    auto owner = Descriptor(source, kOwner);
    if (const auto target = OpenForRights(to, WRITE_OWNER); target && !owner.empty()) {
        static_cast<void>(::SetKernelObjectSecurity(target.Get(), kOwner, owner.data()));
    }
}

FileError CopyAccessList(const SystemHandle& source, const SystemHandle& target) {
    auto list = Descriptor(source, DACL_SECURITY_INFORMATION);
    const bool set = !list.empty() &&
                     ::SetKernelObjectSecurity(target.Get(), DACL_SECURITY_INFORMATION | Inheritance(list),
                                               list.data()) != FALSE;
    return set ? FileError::None : ToFileError(::GetLastError());
}

} // namespace

PermissionsForTheUserAlone::PermissionsForTheUserAlone() {
    if (const auto user = UserOfThisProcess()) {
        // Owner; an access list that inherits nothing, with one entry: all rights to a file.
        const auto text = "O:" + *user + "D:P(A;;FA;;;" + *user + ")";
        ::ConvertStringSecurityDescriptorToSecurityDescriptorA(text.c_str(), SDDL_REVISION_1, &descriptor_,
                                                               nullptr);
    }
}

PermissionsForTheUserAlone::~PermissionsForTheUserAlone() {
    ::LocalFree(descriptor_);
}

FileError CopyWindowsPermissions(const std::string& from, const std::string& to) {
    const auto source = OpenForRights(from, READ_CONTROL);
    if (!source) {
        return ToFileError(::GetLastError(), from);
    }
    const auto target = OpenForRights(to, WRITE_DAC);
    if (!target) {
        return ToFileError(::GetLastError(), to);
    }
    if (!DiskKeepsPermissions(target)) {
        return FileError::None;
    }
    CopyOwner(source, to);
    return CopyAccessList(source, target);
}

FileError KeepFolderToTheUser(const std::string& path) {
    const auto folder = OpenForRights(path, READ_CONTROL | WRITE_DAC,
                                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT);
    if (!folder) {
        return ToFileError(::GetLastError());
    }
    if (!IsFolderItself(folder)) {
        return FileError::AccessDenied;
    }
    if (!DiskKeepsPermissions(folder)) {
        return FileError::None;
    }
    const PermissionsForTheUserAlone permissions;
    const bool isKept = BelongsToTheUser(folder) && permissions.Get() != nullptr &&
                        ::SetKernelObjectSecurity(
                            folder.Get(), DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                            permissions.Get()) != FALSE;
    return isKept ? FileError::None : FileError::AccessDenied;
}

bool IsWriteProtected(const std::string& path) {
    const auto attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace zy
