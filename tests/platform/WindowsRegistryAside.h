#pragma once

#include <windows.h>

namespace zy::test {

/// While this lives, HKEY_LOCAL_MACHINE is, for this process, an empty key of the user's: the machine's own
/// is left alone.
class WindowsRegistryAside {
  public:
    WindowsRegistryAside() {
        ::RegDeleteTreeA(HKEY_CURRENT_USER, kPlace);
        ::RegCreateKeyExA(HKEY_CURRENT_USER, kPlace, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                          nullptr, &root_, nullptr);
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, root_);
    }
    WindowsRegistryAside(const WindowsRegistryAside&) = delete;
    WindowsRegistryAside& operator=(const WindowsRegistryAside&) = delete;
    ~WindowsRegistryAside() {
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        ::RegCloseKey(root_);
        ::RegDeleteTreeA(HKEY_CURRENT_USER, kPlace);
    }

  private:
    static constexpr const char* kPlace = R"(Software\zyGlobal tests)";

    HKEY root_ = nullptr;
};

} // namespace zy::test
