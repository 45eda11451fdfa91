#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "platform/SystemInfo.h"
#include "platform/TimeDigits.h"

namespace zy {

/// Answers with what a test has set.
class MemorySystemInfo final : public SystemInfo {
  public:
    std::string SystemDirectory() override { return systemDirectory_; }
    std::string StateFolder() override { return stateFolder_; }
    std::string CommandLine() const override { return commandLine_; }
    std::string ExecutableName() const override { return executableName_; }
    std::string ExecutableFolder() const override { return executableFolder_; }
    char DecimalSeparator() const override { return decimalSeparator_; }
    std::chrono::year_month_day Today() const override { return today_; }
    std::chrono::sys_seconds Now() override { return now_; }
    /// As if the user were where the clocks show UTC, as in "2026-11-22 14:07:05".
    std::string TimeText(std::chrono::sys_seconds time) override {
        return PlainTime(std::chrono::local_seconds(time.time_since_epoch()));
    }

    void SetSystemDirectory(std::string_view path) { systemDirectory_ = path; }
    void SetStateFolder(std::string_view path) { stateFolder_ = path; }
    void SetCommandLine(std::string_view text) { commandLine_ = text; }
    void SetExecutableName(std::string_view name) { executableName_ = name; }
    void SetExecutableFolder(std::string_view path) { executableFolder_ = path; }
    void SetDecimalSeparator(char separator) { decimalSeparator_ = separator; }
    void SetToday(std::chrono::year_month_day today) { today_ = today; }
    void SetNow(std::chrono::sys_seconds now) { now_ = now; }

  private:
    std::string systemDirectory_ = R"(C:\SYS)";
    std::string stateFolder_ = R"(C:\State\zysetup)";
    std::string commandLine_;
    std::string executableName_ = "zyGlobal";
    std::string executableFolder_ = R"(C:\PRODUCT)";
    char decimalSeparator_ = '.';
    std::chrono::year_month_day today_{std::chrono::year(2026), std::chrono::month(11), std::chrono::day(20)};
    std::chrono::sys_seconds now_ = std::chrono::sys_days(today_) + std::chrono::hours(12);
};

} // namespace zy
