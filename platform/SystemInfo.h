#pragma once

#include <chrono>
#include <string>

namespace zy {

/// What the program asks about the system it runs on and about how it was started.
class SystemInfo {
  public:
    virtual ~SystemInfo() = default;

    /// The folder that holds the settings files, as the system's own call gives it: without a closing "\",
    /// and possibly with a NUL and leftovers behind it. Empty when the system has none to give.
    virtual std::string SystemDirectory() = 0;
    /// The arguments as one text, without the program's own name.
    virtual std::string CommandLine() const = 0;
    /// The program's name without folder and extension.
    virtual std::string ExecutableName() const = 0;
    /// The folder of the running program, without a closing "\".
    virtual std::string ExecutableFolder() const = 0;
    /// The character between whole and fraction in the user's locale.
    virtual char DecimalSeparator() const = 0;
    /// The date where the user is.
    virtual std::chrono::year_month_day Today() const = 0;
};

} // namespace zy
