#pragma once

#include <string>
#include <string_view>

namespace zy {

// Text is one byte a character, in the ANSI code page. "Blank" below means the space, character 32, alone: a
// TAB or a line end is never trimmed.

/// The text without its leading blanks.
std::string_view LTrim(std::string_view text);
/// The text without its trailing blanks.
std::string_view RTrim(std::string_view text);
/// The text without leading and trailing blanks.
std::string_view Trim(std::string_view text);

/// True when the text holds the character.
inline bool Contains(std::string_view text, char character) {
    return text.find(character) != std::string_view::npos;
}

} // namespace zy
