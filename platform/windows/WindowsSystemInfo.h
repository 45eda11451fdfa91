#pragma once

#include <string>

#include "platform/SystemInfo.h"
#include "platform/windows/ProgramFolder.h"

namespace zy {

/// What Windows says of itself and of this process.
class WindowsSystemInfo final : public SystemInfo {
  public:
    /// How this process was started.
    WindowsSystemInfo();
    /// The same for a whole command line, which starts with the program's name.
    explicit WindowsSystemInfo(std::string commandLine);

    /// The system directory of Windows.
    std::string SystemDirectory() override;
    /// "zysetup" in the user's folder for data that stays on this computer.
    std::string StateFolder() override;
    std::string CommandLine() const override;
    std::string ExecutableName() const override;
    /// With "?" for each letter that the code page lacks.
    std::string ExecutableFolder() const override;
    /// "." when the locale's is more than one character.
    char DecimalSeparator() const override;
    std::chrono::year_month_day Today() const override;
    std::chrono::sys_seconds Now() override;
    /// As in "2026-11-22 14:07:05" where the locale writes what the code page lacks.
    std::string TimeText(std::chrono::sys_seconds time) override;

    /// The folder of the running program as the system names it.
    ProgramFolder Folder() const;

  private:
    std::string commandLine_;
};

} // namespace zy
