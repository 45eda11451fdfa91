#include "platform/windows/MemoryDumps.h"

#include <windows.h>

namespace zy {
namespace {

LPTOP_LEVEL_EXCEPTION_FILTER& Before() {
    static LPTOP_LEVEL_EXCEPTION_FILTER before = nullptr;
    return before;
}

/// Ends the process before whoever takes dumps of it is called.
LONG WINAPI EndAtOnce(EXCEPTION_POINTERS* exception) {
    if (Before() != nullptr) {
        Before()(exception);
    }
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

void ForbidMemoryDumps() {
    Before() = ::SetUnhandledExceptionFilter(EndAtOnce);
    ::SetErrorMode(::GetErrorMode() | SEM_NOGPFAULTERRORBOX);
}

} // namespace zy
