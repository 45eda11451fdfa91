#pragma once

#include <string>
#include <string_view>

#include "platform/SystemInfo.h"

namespace zy {

/// Says what it was told to say.
class MemorySystemInfo final : public SystemInfo {
  public:
    std::string SystemDirectory() override { return systemDirectory_; }
    std::string CommandLine() const override { return commandLine_; }
    std::string ExecutableName() const override { return executableName_; }
    char DecimalSeparator() const override { return decimalSeparator_; }

    void SetSystemDirectory(std::string_view path) { systemDirectory_ = path; }
    void SetCommandLine(std::string_view text) { commandLine_ = text; }
    void SetExecutableName(std::string_view name) { executableName_ = name; }
    void SetDecimalSeparator(char separator) { decimalSeparator_ = separator; }

  private:
    std::string systemDirectory_ = R"(C:\SYS)";
    std::string commandLine_;
    std::string executableName_ = "zyGlobal";
    char decimalSeparator_ = '.';
};

} // namespace zy
