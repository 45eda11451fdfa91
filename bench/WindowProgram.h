#pragma once

#include <sys/types.h>
#include <time.h>

#include <string>
#include <vector>

#include "Screen.h"

namespace zy::bench {

/// Throws std::runtime_error where windows have animations or a blinking cursor, as the toolkit itself tells
/// a program that is started from here: they would be measured instead of the program.
void RequireCalmDesktop();

/// A program with a window, watched from outside. It is started by the constructor and ended by the
/// destructor.
class WindowProgram {
  public:
    /// A program that, its window painted, has slept for `quiet` has nothing left to do.
    WindowProgram(Screen& screen, const std::vector<std::string>& command,
                  std::chrono::milliseconds quiet = std::chrono::milliseconds(100));
    WindowProgram(const WindowProgram&) = delete;
    WindowProgram& operator=(const WindowProgram&) = delete;
    ~WindowProgram();

    /// Waits until the program, having painted its window, sleeps and goes on sleeping. Returns the seconds
    /// from its start to the moment when it fell asleep.
    double SecondsToIdle();
    /// Waits until the program sleeps and goes on sleeping. Returns when the screen was painted last.
    Clock::time_point LastPainted();

    /// The processor time that the program has used, all threads together.
    double ProcessorSeconds() const;
    /// The memory that it holds.
    double ResidentBytes() const;

    /// Asks the program to end, and waits for it.
    void End();

  private:
    bool IsAsleep() const;
    Clock::time_point WaitUntilIdle(int pixels);

    Screen& screen_;
    std::chrono::milliseconds quiet_;
    Clock::time_point start_;
    Clock::time_point lastPainted_;
    pid_t process_ = -1;
    clockid_t processorClock_{};
};

} // namespace zy::bench
