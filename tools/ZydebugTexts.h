#pragma once

#include <string>
#include <string_view>

namespace zy {

// What the trace viewer prints beside the records, the same on every system.

inline constexpr std::string_view kZydebugUsage =
    "Usage: zydebug\n"
    "Shows the trace records that zyGlobal sends, one line each: executable, module, procedure and message,\n"
    "with a TAB between them. It has to run before zyGlobal starts. Ctrl+C ends it.\n";

inline constexpr std::string_view kZydebugGreeting = "zydebug: listening; Ctrl+C ends\n";

inline constexpr std::string_view kZydebugTaken = "another trace viewer is running";

/// The line that says why it ends.
inline std::string ZydebugError(std::string_view message) {
    return "zydebug: " + std::string(message) + '\n';
}

} // namespace zy
