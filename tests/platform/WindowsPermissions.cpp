#include "WindowsPermissions.h"

#include <windows.h>
// After windows.h, which they lean on.
#include <aclapi.h>
#include <sddl.h>

#include <array>

#include "support/WindowsHandles.h"

namespace zy::test {
namespace {

std::string TakenText(char* text) {
    std::string taken = text;
    ::LocalFree(text);
    return taken;
}

std::string SidText(PSID sid) {
    char* text = nullptr;
    return ::ConvertSidToStringSidA(sid, &text) != FALSE ? TakenText(text) : "";
}

unsigned Figure(ACCESS_MASK rights) {
    return ((rights & FILE_READ_DATA) != 0 ? 4U : 0U) | ((rights & FILE_WRITE_DATA) != 0 ? 2U : 0U);
}

/// The rights that the entries of a list allow somebody.
ACCESS_MASK Allowed(PACL list, const std::string& whom) {
    ACCESS_MASK rights = 0;
    for (WORD i = 0; list != nullptr && i < list->AceCount; ++i) {
        void* entry = nullptr;
        ::GetAce(list, i, &entry);
        auto* allowing = static_cast<ACCESS_ALLOWED_ACE*>(entry);
        if (allowing->Header.AceType == ACCESS_ALLOWED_ACE_TYPE && SidText(&allowing->SidStart) == whom) {
            rights |= allowing->Mask;
        }
    }
    return rights;
}

} // namespace

std::string UserOfTheTests() {
    HANDLE opened = nullptr;
    ::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened);
    const WindowsHandle token(opened);
    alignas(TOKEN_USER) std::array<char, 256> bytes{};
    DWORD size = 0;
    if (::GetTokenInformation(token.Get(), TokenUser, bytes.data(), bytes.size(), &size) == FALSE) {
        ThrowLastError("GetTokenInformation");
    }
    return SidText(reinterpret_cast<TOKEN_USER*>(bytes.data())->User.Sid);
}

bool SetAccess(const std::string& path, const std::string& userRights, const std::string& everybodysRights) {
    const auto everybody = everybodysRights.empty() ? "" : "(A;;" + everybodysRights + ";;;WD)";
    const auto text = "D:P(A;;RCWD" + userRights + ";;;" + UserOfTheTests() + ")" + everybody;
    void* descriptor = nullptr;
    const bool set = ::ConvertStringSecurityDescriptorToSecurityDescriptorA(text.c_str(), SDDL_REVISION_1,
                                                                            &descriptor, nullptr) != FALSE &&
                     ::SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, descriptor) != FALSE;
    ::LocalFree(descriptor);
    return set;
}

std::optional<unsigned> AccessFigures(const std::string& path) {
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (::GetNamedSecurityInfoA(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                &list, nullptr, &descriptor) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const auto figures = Figure(Allowed(list, UserOfTheTests())) * 0100U + Figure(Allowed(list, "S-1-1-0"));
    ::LocalFree(descriptor);
    return figures;
}

std::string DescriptorText(void* descriptor) {
    char* text = nullptr;
    constexpr SECURITY_INFORMATION kParts = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    const auto converted = ::ConvertSecurityDescriptorToStringSecurityDescriptorA(descriptor, SDDL_REVISION_1,
                                                                                  kParts, &text, nullptr);
    return converted != FALSE ? TakenText(text) : "no descriptor";
}

} // namespace zy::test
