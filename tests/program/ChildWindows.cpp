#include "Child.h"
#include "support/WindowsHandles.h"

namespace zy::test {
namespace {

WindowsHandle OpenForOutput(const std::filesystem::path& path) {
    SECURITY_ATTRIBUTES inherited{
        .nLength = sizeof(SECURITY_ATTRIBUTES), .lpSecurityDescriptor = nullptr, .bInheritHandle = TRUE};
    WindowsHandle file(::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                     &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        ThrowLastError("CreateFile");
    }
    return file;
}

/// The program's path in quotes and, behind a blank each, the arguments as they stand.
std::string CommandLine(const std::vector<std::string>& command) {
    std::string line = '"' + command.front() + '"';
    for (std::size_t i = 1; i < command.size(); ++i) {
        line += ' ' + command[i];
    }
    return line;
}

} // namespace

struct Child::Handles {
    WindowsPipe input;
    WindowsHandle process;
};

Child::Child(const std::vector<std::string>& command, const Environment& /*environment*/,
             const std::filesystem::path& output)
    : output_(output), handles_(std::make_unique<Handles>()) {
    const auto file = OpenForOutput(output);
    KeepToOurselves(handles_->input.writer);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = handles_->input.reader.Get();
    start.hStdOutput = file.Get();
    start.hStdError = file.Get();
    PROCESS_INFORMATION started{};
    auto line = CommandLine(command);
    if (::CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                         &started) == FALSE) {
        ThrowLastError("CreateProcess");
    }
    ::CloseHandle(started.hThread);
    handles_->process = WindowsHandle(started.hProcess);
    handles_->input.reader.Close();
}

Child::~Child() {
    if (!Status()) {
        ::TerminateProcess(handles_->process.Get(), 1);
        ::WaitForSingleObject(handles_->process.Get(), INFINITE);
    }
}

std::optional<int> Child::Ended() {
    DWORD status = 0;
    const bool ended = ::WaitForSingleObject(handles_->process.Get(), 0) == WAIT_OBJECT_0 &&
                       ::GetExitCodeProcess(handles_->process.Get(), &status) != FALSE;
    return ended ? std::optional(static_cast<int>(status)) : std::nullopt;
}

/// The viewer ends when its input does.
void Child::AskToEnd() {
    handles_->input.writer.Close();
}

} // namespace zy::test
