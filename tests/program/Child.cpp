#include "Child.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zy::test {
namespace {

/// Becomes the command. Returns only when that fails.
void Become(const std::vector<std::string>& command, const Environment& environment) {
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

bool WaitUntil(const std::function<bool()>& holds, std::chrono::seconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

Child::Child(const std::vector<std::string>& command, const Environment& environment,
             const std::filesystem::path& output)
    : output_(output) {
    const int file = open(output.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0) {
        throw std::runtime_error("cannot write " + output.string());
    }
    pid_ = fork();
    if (pid_ == 0) {
        dup2(file, STDOUT_FILENO);
        dup2(file, STDERR_FILENO);
        Become(command, environment);
        constexpr int kCannotStart = 127;
        _exit(kCannotStart);
    }
    close(file);
    if (pid_ < 0) {
        throw std::runtime_error("cannot fork");
    }
}

Child::~Child() {
    if (!Status()) {
        Signal(SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
}

std::string Child::Output() const {
    std::ifstream file(output_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::optional<int> Child::Status() {
    int status = 0;
    if (!status_ && waitpid(pid_, &status, WNOHANG) == pid_) {
        status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    return status_;
}

std::optional<int> Child::WaitForEnd() {
    WaitUntil([this] { return Status().has_value(); });
    return status_;
}

void Child::Signal(int signal) const {
    kill(pid_, signal);
}

std::string Printed(const std::string& shellCommand) {
    FILE* pipe = popen(shellCommand.c_str(), "r");
    if (pipe == nullptr) {
        throw std::runtime_error("cannot run " + shellCommand);
    }
    std::string output;
    for (int character = fgetc(pipe); character != EOF; character = fgetc(pipe)) {
        output += static_cast<char>(character);
    }
    pclose(pipe);
    return output;
}

} // namespace zy::test
