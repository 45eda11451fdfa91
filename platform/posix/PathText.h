#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace zy {

/// File names, between the system (bytes, meant as UTF-8) and the program (the code page).
///
/// Inside, each byte of a name that the code page cannot express, because it is not UTF-8, belongs to a
/// character that the page lacks, or is a "\", stands as the character 0x1A and two hexadecimal digits. So
/// every file can be named, and its name survives upper-casing and the way back.
class PathText {
  public:
    static constexpr char kEscape = '\x1A';

    explicit PathText(const CodePage& codePage) : codePage_(codePage) {}

    /// The name inside of a file of the system.
    std::string NameToInside(std::string_view name) const;
    /// The name in the system; nothing when it cannot be one: it holds a NUL or "/", or an escape that is
    /// none.
    std::optional<std::string> NameToOutside(std::string_view name) const;
    /// The path inside of an absolute path of the system, without a "\" at its end: "/home/u/" gives
    /// "\home\u", "/" the empty text.
    std::string PathToInside(std::string_view path) const;
    /// Any text of the system. What the code page cannot express becomes one 0x1A each and does not find its
    /// way back.
    std::string TextToInside(std::string_view text) const;

  private:
    const CodePage& codePage_;
};

} // namespace zy
