#include "support/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <system_error>
#include <thread>

namespace zy::test {
namespace {

using Clock = std::chrono::steady_clock;

std::array<int, 2> MakePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    return ends;
}

/// What the child does: becomes the program, and dies with the test.
[[noreturn]] void Become(char* const* arguments, int output, int errors) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(errors, STDERR_FILENO);
    ::execvp(arguments[0], arguments);
    constexpr int kNoSuchProgram = 127;
    ::_exit(kNoSuchProgram);
}

pid_t Start(const std::vector<std::string>& arguments, int output, int errors) {
    auto copies = arguments;
    std::vector<char*> pointers(copies.size() + 1, nullptr);
    std::transform(copies.begin(), copies.end(), pointers.begin(),
                   [](std::string& copy) { return copy.data(); });
    const pid_t process = ::fork();
    if (process < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    if (process == 0) {
        Become(pointers.data(), output, errors);
    }
    return process;
}

bool WaitForInput(int pipe, Clock::time_point deadline) {
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    pollfd wanted{.fd = pipe, .events = POLLIN, .revents = 0};
    return rest.count() > 0 && ::poll(&wanted, 1, static_cast<int>(rest.count())) > 0;
}

int ExitStatus(int status) {
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

std::optional<std::string> LineReader::Next(std::chrono::milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    auto end = pending_.find('\n');
    while (end == std::string::npos) {
        std::array<char, 4096> buffer{};
        const auto count =
            WaitForInput(pipe_.Number(), deadline) ? ::read(pipe_.Number(), buffer.data(), buffer.size()) : 0;
        if (count <= 0) {
            return std::nullopt;
        }
        pending_.append(buffer.data(), static_cast<std::size_t>(count));
        end = pending_.find('\n');
    }
    auto line = pending_.substr(0, end);
    pending_.erase(0, end + 1);
    return line;
}

ChildProcess::Pipe::Pipe() : Pipe(MakePipe()) {}

ChildProcess::Pipe::Pipe(std::array<int, 2> ends) : reader(ends[0]), writer(ends[1]) {}

ChildProcess::ChildProcess(const std::vector<std::string>& arguments)
    : ChildProcess(arguments, Pipe(), Pipe()) {}

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, Pipe output, Pipe errors)
    : process_(Start(arguments, output.writer.Number(), errors.writer.Number())),
      output_(std::move(output.reader)), errors_(std::move(errors.reader)) {}

ChildProcess::~ChildProcess() {
    if (!status_) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
}

void ChildProcess::Signal(int number) const {
    if (!status_) {
        ::kill(process_, number);
    }
}

std::optional<int> ChildProcess::Wait() {
    constexpr std::chrono::milliseconds kPause{5};
    const auto deadline = Clock::now() + kPatience;
    while (!status_ && Clock::now() < deadline) {
        int status = 0;
        if (::waitpid(process_, &status, WNOHANG) == process_) {
            status_ = ExitStatus(status);
        } else {
            std::this_thread::sleep_for(kPause);
        }
    }
    return status_;
}

} // namespace zy::test
