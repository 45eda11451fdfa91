#include "support/WindowsTraceViewer.h"

#include <array>
#include <stdexcept>
#include <thread>

#include "platform/windows/WindowsSystemInfo.h"

namespace zy::test {
namespace {

constexpr std::chrono::milliseconds kPatience{20000};
constexpr std::chrono::milliseconds kPause{5};

/// What stands in a pipe, without waiting; nothing when its other end has gone.
std::optional<std::string> ReadAvailable(HANDLE pipe) {
    DWORD available = 0;
    if (::PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) == FALSE) {
        return std::nullopt;
    }
    std::string bytes(available, '\0');
    DWORD count = 0;
    if (available > 0 && ::ReadFile(pipe, bytes.data(), available, &count, nullptr) == FALSE) {
        return std::nullopt;
    }
    bytes.resize(count);
    return bytes;
}

} // namespace

WindowsTraceViewer::WindowsTraceViewer() {
    KeepToOurselves(input_.writer);
    KeepToOurselves(output_.reader);
    const auto program = WindowsSystemInfo().ExecutableFolder() + "\\" ZY_TRACE_VIEWER;
    process_ =
        StartProgram('"' + program + '"', input_.reader.Get(), output_.writer.Get(), output_.writer.Get());
    input_.reader.Close();
    output_.writer.Close();
    const auto greeting = NextLine();
    if (!greeting || greeting->find("listening") == std::string::npos) {
        throw std::runtime_error("the trace viewer did not start: " + greeting.value_or("it said nothing"));
    }
}

WindowsTraceViewer::~WindowsTraceViewer() {
    if (!Stop()) {
        ::TerminateProcess(process_.Get(), 1);
    }
}

std::optional<std::string> WindowsTraceViewer::NextLine() {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    auto end = pending_.find('\n');
    while (end == std::string::npos && std::chrono::steady_clock::now() < deadline) {
        const auto more = ReadAvailable(output_.reader.Get());
        if (!more) {
            return std::nullopt;
        }
        if (more->empty()) {
            std::this_thread::sleep_for(kPause);
        }
        pending_ += *more;
        end = pending_.find('\n');
    }
    if (end == std::string::npos) {
        return std::nullopt;
    }
    auto line = pending_.substr(0, end);
    pending_.erase(0, end + 1);
    return line;
}

std::optional<unsigned long> WindowsTraceViewer::Stop() {
    input_.writer.Close();
    DWORD status = 0;
    const bool ended =
        ::WaitForSingleObject(process_.Get(), static_cast<DWORD>(kPatience.count())) == WAIT_OBJECT_0 &&
        ::GetExitCodeProcess(process_.Get(), &status) != FALSE;
    return ended ? std::optional<unsigned long>(status) : std::nullopt;
}

} // namespace zy::test
