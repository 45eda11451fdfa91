#include "platform/windows/WindowsShellLinks.h"

#include <windows.h>
// After windows.h, which it leans on.
#include <shellapi.h>

#include <cstdint>

namespace zy {

bool WindowsShellLinks::Open(const LinkRequest& request) {
    constexpr std::intptr_t kLargestError = 32;
    const HWND owner = request.owner == LinkOwner::DesktopWindow ? ::GetDesktopWindow() : nullptr;
    const auto result = ::ShellExecuteA(owner, request.verb.c_str(), request.target.c_str(), nullptr, "",
                                        request.showCommand);
    return reinterpret_cast<std::intptr_t>(result) > kLargestError;
}

} // namespace zy
