#include "platform/windows/CrashNotes.h"

#include <windows.h>

#include <array>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <string_view>

#include "platform/windows/StateFolder.h"

namespace zy {
namespace {

constexpr auto kNew = L"\\crash.txt";
constexpr auto kTaken = L"\\last-crash.txt";
constexpr DWORD kAborted = 0xC0000409; ///< what Windows calls a program that has ended itself so
constexpr DWORD kDeepest = 62;

const LastSteps kNoSteps;

/// What is called when the program breaks off can use this alone, for it may not ask for memory.
struct Prepared {
    std::wstring folder;
    std::wstring path;
    std::string heading;
    const LastSteps* steps = &kNoSteps;
    std::uintptr_t program = 0; ///< where it begins in memory
};

Prepared& Ready() {
    static Prepared prepared;
    return prepared;
}

void Put(HANDLE file, std::string_view text) {
    DWORD written = 0;
    ::WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

void PutNumber(HANDLE file, std::uintptr_t number) {
    constexpr int kHex = 16;
    std::array<char, kHex> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, kHex).ptr;
    Put(file, "0x");
    Put(file, {digits.data(), static_cast<std::size_t>(end - digits.data())});
    Put(file, "\r\n");
}

/// Counted from where the program begins, which is elsewhere each time.
void PutAddress(HANDLE file, const void* address) {
    PutNumber(file, reinterpret_cast<std::uintptr_t>(address) - Ready().program);
}

void PutStack(HANDLE file) {
    std::array<void*, kDeepest> addresses{};
    const auto count = ::CaptureStackBackTrace(0, kDeepest, addresses.data(), nullptr);
    for (std::size_t i = 0; i < count; ++i) {
        PutAddress(file, addresses[i]);
    }
}

void PutNote(DWORD exception, const void* address) {
    const auto& ready = Ready();
    ::CreateDirectoryW(ready.folder.c_str(), nullptr);
    HANDLE file = ::CreateFileW(ready.path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return;
    }
    Put(file, ready.heading);
    PutNumber(file, exception);
    Put(file, "Last steps:\r\n");
    for (std::size_t step = 0; step < ready.steps->Count(); ++step) {
        Put(file, (*ready.steps)[step]);
        Put(file, "\r\n");
    }
    Put(file, "Stack:\r\n");
    PutAddress(file, address);
    PutStack(file);
    ::CloseHandle(file);
}

LONG WINAPI NoteException(EXCEPTION_POINTERS* exception) {
    const auto& record = *exception->ExceptionRecord;
    PutNote(record.ExceptionCode, record.ExceptionAddress);
    return EXCEPTION_CONTINUE_SEARCH;
}

void NoteAbort(int /*signal*/) {
    PutNote(kAborted, nullptr);
}

} // namespace

void LeaveCrashNotes(const std::string& version, const LastSteps& steps) {
    auto& ready = Ready();
    ready.folder = OwnFolderIn(UsersLocalFolder());
    if (ready.folder.empty()) {
        return;
    }
    ready.path = ready.folder + kNew;
    ready.heading = "zyGlobal " + version + "\r\nException ";
    ready.steps = &steps;
    ready.program = reinterpret_cast<std::uintptr_t>(::GetModuleHandleW(nullptr));
    ::SetUnhandledExceptionFilter(NoteException);
    std::signal(SIGABRT, NoteAbort);
}

std::optional<std::string> TakeCrashNote(const CodePage& /*codePage*/) {
    const auto folder = OwnFolderIn(UsersLocalFolder());
    const auto isTaken = !folder.empty() && ::MoveFileExW((folder + kNew).c_str(), (folder + kTaken).c_str(),
                                                          MOVEFILE_REPLACE_EXISTING) != FALSE;
    return isTaken ? std::optional(InsideOwnFolderIn(UsersLocalFolder()) + "\\last-crash.txt") : std::nullopt;
}

} // namespace zy
