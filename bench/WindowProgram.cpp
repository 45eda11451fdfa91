#include "WindowProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <system_error>

#include "support/ChildProcess.h"

namespace zy::bench {
namespace {

/// A program that has slept for so long has nothing left to do. Its next timer, the blinking of a cursor,
/// comes later.
constexpr std::chrono::milliseconds kQuiet{100};
constexpr std::chrono::seconds kPatience{60};
/// Any window is larger; a tooltip or a cursor is not.
constexpr int kPixelsOfAWindow = 100000;

/// Starts a program, whose complaints about the toolkit nobody reads.
pid_t Start(const std::vector<std::string>& command) {
    std::vector<std::string> copies = command;
    std::vector<char*> arguments;
    for (auto& copy : copies) {
        arguments.push_back(copy.data());
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = -1;
    const int error = ::posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), command.front());
    }
    return process;
}

} // namespace

void RequireCalmDesktop() {
    test::ChildProcess motion({ZY_DESKTOP_MOTION});
    std::string moving;
    while (const auto line = motion.Output().Next()) {
        moving += (moving.empty() ? "" : " and ") + *line;
    }
    if (motion.Wait() != 0) {
        throw std::runtime_error("the toolkit does not tell what moves on this desktop");
    }
    if (!moving.empty()) {
        throw std::runtime_error("windows have " + moving +
                                 " on this desktop: start it by bench/calm-desktop");
    }
}

WindowProgram::WindowProgram(Screen& screen, const std::vector<std::string>& command,
                             std::chrono::milliseconds quiet)
    : screen_(screen), quiet_(quiet) {
    screen_.Forget();
    start_ = Clock::now();
    process_ = Start(command);
    ::clock_getcpuclockid(process_, &processorClock_);
}

WindowProgram::~WindowProgram() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
}

void WindowProgram::End() {
    ::kill(process_, SIGTERM);
    ::waitpid(process_, nullptr, 0);
    process_ = -1;
}

double WindowProgram::SecondsToIdle() {
    return std::chrono::duration<double>(WaitUntilIdle(kPixelsOfAWindow) - start_).count();
}

Clock::time_point WindowProgram::LastPainted() {
    WaitUntilIdle(1);
    return lastPainted_;
}

double WindowProgram::ProcessorSeconds() const {
    timespec time{};
    ::clock_gettime(processorClock_, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double WindowProgram::ResidentBytes() const {
    std::ifstream statm("/proc/" + std::to_string(process_) + "/statm");
    double totalPages = 0;
    double residentPages = 0;
    statm >> totalPages >> residentPages;
    return residentPages * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

bool WindowProgram::IsAsleep() const {
    std::ifstream stat("/proc/" + std::to_string(process_) + "/stat");
    char state = 0;
    stat.ignore(std::numeric_limits<std::streamsize>::max(), ')');
    stat >> state;
    if (!stat || state == 'Z') {
        throw std::runtime_error("the program has ended by itself");
    }
    return state == 'S';
}

/// Returns when the program fell asleep after an area of that many pixels was painted.
Clock::time_point WindowProgram::WaitUntilIdle(int pixels) {
    bool painted = false;
    double used = ProcessorSeconds();
    auto busy = Clock::now();
    const auto deadline = busy + kPatience;
    while (!painted || Clock::now() - busy < quiet_) {
        if (Clock::now() > deadline) {
            throw std::runtime_error("the program did not paint its window, or was never done");
        }
        if (const auto when = screen_.Painted(pixels)) {
            painted = true;
            lastPainted_ = *when;
        }
        const double usedNow = ProcessorSeconds();
        if (usedNow != used || !IsAsleep()) {
            used = usedNow;
            busy = Clock::now();
        }
    }
    return busy;
}

} // namespace zy::bench
