#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>
#include <string>
#include <utility>

#include "support/ChildProcess.h"

namespace zy::test {

/// Another process, which does a part of the test and then lives on until it is killed.
class OtherProcess {
  public:
    /// Sends the test a line.
    using Tell = std::function<void(const std::string& line)>;

    /// The work has to keep what the test is about: it ends by StayAlive().
    explicit OtherProcess(const std::function<void(const Tell&)>& work) : OtherProcess(work, Pipe()) {}
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    ~OtherProcess() { Kill(); }

    [[noreturn]] static void StayAlive() {
        while (true) {
            ::pause();
        }
    }

    /// The next line that it told; waits for it. "none" when there is none.
    std::string Answer() { return answers_.Next().value_or("none"); }

    void Kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(std::exchange(process_, 0), nullptr, 0);
        }
    }

  private:
    struct Pipe {
        Pipe() {
            std::array<int, 2> ends{};
            EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
            reader = ends[0];
            writer = ends[1];
        }
        int reader = -1;
        int writer = -1;
    };

    OtherProcess(const std::function<void(const Tell&)>& work, Pipe pipe)
        : process_(Start(work, pipe.writer)), answers_(FileDescriptor(pipe.reader)) {
        ::close(pipe.writer);
    }

    static pid_t Start(const std::function<void(const Tell&)>& work, int answers) {
        const pid_t process = ::fork();
        if (process == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            work([answers](const std::string& line) {
                const auto ended = line + '\n';
                [[maybe_unused]] const auto written = ::write(answers, ended.data(), ended.size());
            });
            ::_exit(0);
        }
        return process;
    }

    pid_t process_;
    LineReader answers_;
};

} // namespace zy::test
