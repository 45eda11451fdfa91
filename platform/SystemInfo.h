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
    /// The folder for what the program keeps between its runs and is no setting, without a closing "\"; empty
    /// when the system has none.
    virtual std::string StateFolder() = 0;
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
    /// The time, as everybody's clock.
    virtual std::chrono::sys_seconds Now() = 0;
    /// A time where the user is, to the second: date and time as the user's locale writes them, in the code
    /// page.
    virtual std::string TimeText(std::chrono::sys_seconds time) = 0;
};

} // namespace zy
