#include "platform/windows/MemoryDumps.h"

#include <windows.h>

namespace zy {
namespace {

/// Ends the process before whoever takes dumps of it is called.
LONG WINAPI EndAtOnce(EXCEPTION_POINTERS* /*exception*/) {
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

void ForbidMemoryDumps() {
    ::SetUnhandledExceptionFilter(EndAtOnce);
    ::SetErrorMode(::GetErrorMode() | SEM_NOGPFAULTERRORBOX);
}

} // namespace zy
