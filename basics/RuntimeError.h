#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace zy {

/// The numbers of run-time errors that any room raises; the table engine has more of its own.
enum RuntimeErrorNumber {
    kInvalidArgument = 5,
    kOverflow = 6,
    kOutOfMemory = 7,
    kSubscriptOutOfRange = 9,
    kTypeMismatch = 13,
    kDeviceFailed = 57,
    kPathRefused = 75,
};

/// A run-time error: a number and a description.
///
/// Nothing catches it unless the behaviour at that place says so. At the edge of the event loop it is shown
/// and ends the program with a non-zero exit status.
class RuntimeError : public std::exception {
  public:
    RuntimeError(int number, std::string description);

    int Number() const { return number_; }
    const std::string& Description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

    /// The text of the box that reports the error: "Run-time error 'N':", an empty line, the description.
    std::string BoxText() const;

  private:
    int number_;
    std::string description_;
};

/// Error 5: an argument that a call does not take.
[[noreturn]] void RaiseInvalidArgument();
/// Error 6: a value does not fit its 16-bit variable.
[[noreturn]] void RaiseOverflow();
/// Error 7: there is no more room.
[[noreturn]] void RaiseOutOfMemory();
/// Error 9: an index outside the bounds of its array.
[[noreturn]] void RaiseSubscriptOutOfRange();
/// Error 13: a text that should be a number is none.
[[noreturn]] void RaiseTypeMismatch();
/// Error 57: a file could not be read or written to its end. `what` names the file.
[[noreturn]] void RaiseDeviceFailed(std::string_view what);
/// Error 75: a file could not be used at all. `what` names the file and the reason.
[[noreturn]] void RaisePathRefused(std::string_view what);

} // namespace zy
