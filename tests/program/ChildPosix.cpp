#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Child.h"

namespace zy::test {
namespace {

/// Becomes the command. Returns only when that fails.
void Become(const std::vector<std::string>& command, const Environment& environment) {
    signal(SIGHUP, SIG_DFL); // which somebody may want the tests to outlive
    for (const auto& name : environment.unset) {
        unsetenv(name.c_str());
    }
    for (const auto& [name, value] : environment.set) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> arguments;
    for (const auto& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
}

} // namespace

struct Child::Handles {
    pid_t pid = -1;
};

Child::Child(const std::vector<std::string>& command, const Environment& environment,
             const std::filesystem::path& output)
    : output_(output), handles_(std::make_unique<Handles>()) {
    const int file = open(output.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0) {
        throw std::runtime_error("cannot write " + output.string());
    }
    handles_->pid = fork();
    if (handles_->pid == 0) {
        dup2(file, STDOUT_FILENO);
        dup2(file, STDERR_FILENO);
        Become(command, environment);
        constexpr int kCannotStart = 127;
        _exit(kCannotStart);
    }
    close(file);
    if (handles_->pid < 0) {
        throw std::runtime_error("cannot fork");
    }
}

Child::~Child() {
    if (!Status()) {
        kill(handles_->pid, SIGKILL);
        waitpid(handles_->pid, nullptr, 0);
    }
}

std::optional<int> Child::Ended() {
    int status = 0;
    if (waitpid(handles_->pid, &status, WNOHANG) != handles_->pid) {
        return std::nullopt;
    }
    constexpr int kSignalled = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalled + WTERMSIG(status);
}

void Child::AskToEnd() {
    Signal(SIGINT);
}

void Child::Signal(int signal) {
    kill(handles_->pid, signal);
}

} // namespace zy::test
