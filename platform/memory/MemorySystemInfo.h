#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "platform/SystemInfo.h"

namespace zy {

/// Answers with what a test has set.
class MemorySystemInfo final : public SystemInfo {
  public:
    std::string SystemDirectory() override { return systemDirectory_; }
    std::string CommandLine() const override { return commandLine_; }
    std::string ExecutableName() const override { return executableName_; }
    std::string ExecutableFolder() const override { return executableFolder_; }
    char DecimalSeparator() const override { return decimalSeparator_; }
    std::chrono::year_month_day Today() const override { return today_; }

    void SetSystemDirectory(std::string_view path) { systemDirectory_ = path; }
    void SetCommandLine(std::string_view text) { commandLine_ = text; }
    void SetExecutableName(std::string_view name) { executableName_ = name; }
    void SetExecutableFolder(std::string_view path) { executableFolder_ = path; }
    void SetDecimalSeparator(char separator) { decimalSeparator_ = separator; }
    void SetToday(std::chrono::year_month_day today) { today_ = today; }

  private:
    std::string systemDirectory_ = R"(C:\SYS)";
    std::string commandLine_;
    std::string executableName_ = "zyGlobal";
    std::string executableFolder_ = R"(C:\PRODUCT)";
    char decimalSeparator_ = '.';
    std::chrono::year_month_day today_{std::chrono::year(2026), std::chrono::month(11), std::chrono::day(20)};
};

} // namespace zy
