#include <cstdint>

#include "BigFile.h"

namespace zy::bench {
namespace {

constexpr std::int64_t kManySections = 32767;

/// The number of headers among the first lines.
std::int64_t HeadersAmong(int lines) {
    return (lines * kManySections + kManyIniLines - 1) / kManyIniLines;
}

} // namespace

std::string IniFileOf(int lines) {
    std::string text;
    for (int line = 0; line < lines; ++line) {
        const auto header = HeadersAmong(line + 1);
        const auto number = std::to_string(header);
        text += header != HeadersAmong(line)
                    ? "[Section " + number + "]\r\n"
                    : "Key" + std::to_string(line % 100) + "=value " + number + "\r\n";
    }
    return text;
}

} // namespace zy::bench
