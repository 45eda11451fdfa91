#pragma once

#include <sys/types.h>

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/FileDescriptor.h"

namespace zy::test {

/// The longest that a test waits for another process.
constexpr std::chrono::seconds kPatience{20};

/// One line after another out of a pipe.
class LineReader {
  public:
    explicit LineReader(FileDescriptor pipe) : pipe_(std::move(pipe)) {}

    /// The next line without its line end; waits for it. Nothing when the pipe has ended, and when none came
    /// in time.
    std::optional<std::string> Next(std::chrono::milliseconds patience = kPatience);

  private:
    FileDescriptor pipe_;
    std::string pending_;
};

/// A program that runs beside the test, and is killed with it.
class ChildProcess {
  public:
    /// The first argument is the program, found along $PATH.
    explicit ChildProcess(const std::vector<std::string>& arguments);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    LineReader& Output() { return output_; }
    LineReader& Errors() { return errors_; }

    void Signal(int number) const;
    /// The program's exit status, as soon as it has ended; a negative signal number when a signal ended it.
    /// Nothing when it did not end in time.
    std::optional<int> Wait();

  private:
    struct Pipe {
        Pipe();
        explicit Pipe(std::array<int, 2> ends);
        FileDescriptor reader;
        FileDescriptor writer;
    };
    ChildProcess(const std::vector<std::string>& arguments, Pipe output, Pipe errors);

    pid_t process_;
    std::optional<int> status_;
    LineReader output_;
    LineReader errors_;
};

} // namespace zy::test
