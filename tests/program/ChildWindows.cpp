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
    handles_->process =
        StartProgram(CommandLine(command), handles_->input.reader.Get(), file.Get(), file.Get());
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
