#pragma once

#include <string>
#include <vector>

#include "platform/SystemInfo.h"
#include "platform/posix/PathResolver.h"

namespace zy {

/// What the environment, the user's locale and the program's arguments say of the system.
class PosixSystemInfo final : public SystemInfo {
  public:
    /// Takes a copy of the arguments of main().
    PosixSystemInfo(int argumentCount, const char* const* arguments, const CodePage& codePage);

    /// $ZYSETUP_SYSTEM_DIR, taken as it stands, when it is not empty; else "zysetup/system" in the folder for
    /// the user's data, which is made when it is missing. For the root folder, which would end in "\", the
    /// empty text.
    std::string SystemDirectory() override;
    /// "zysetup" in the user's folder for the state of programs; empty also where its path holds letters that
    /// the code page lacks.
    std::string StateFolder() override;
    /// The arguments, joined by one blank. A character that the code page lacks becomes 0x1A.
    std::string CommandLine() const override;
    /// That of the file that ran at the start, even when it has been replaced or removed meanwhile.
    std::string ExecutableName() const override { return executableName_; }
    /// The one of that file.
    std::string ExecutableFolder() const override;
    /// "." when the locale is not installed or its separator is no character of the code page.
    char DecimalSeparator() const override;
    std::chrono::year_month_day Today() const override;
    std::chrono::sys_seconds Now() override;
    /// As in "2026-11-22 14:07:05" where the locale is not installed or writes what the code page lacks.
    std::string TimeText(std::chrono::sys_seconds time) override;

    /// The folders that SystemDirectory, StateFolder and ExecutableFolder name, without making any.
    std::vector<KnownFolder> KnownFolders() const;

  private:
    const CodePage& codePage_;
    PathText text_;
    std::vector<std::string> arguments_;
    std::string executableName_;
    std::string executableFolder_;
};

} // namespace zy
