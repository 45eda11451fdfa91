#include "platform/windows/ProgramArguments.h"

#include <algorithm>

namespace zy {
namespace {

constexpr std::string_view kBlanks = " \t";

/// Cuts a text behind its first `length` characters, or leaves nothing of it.
std::string_view Behind(std::string_view text, std::size_t length) {
    return text.substr(std::min(length, text.size()));
}

} // namespace

std::string_view ProgramArguments(std::string_view commandLine) {
    const bool quoted = commandLine.starts_with('"');
    const auto end = quoted ? commandLine.find('"', 1) : commandLine.find_first_of(kBlanks);
    if (end == std::string_view::npos) {
        return {};
    }
    const auto rest = Behind(commandLine, quoted ? end + 1 : end);
    return Behind(rest, rest.find_first_not_of(kBlanks));
}

} // namespace zy
