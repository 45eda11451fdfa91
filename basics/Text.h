#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace zy {

// Text is one byte a character, in the ANSI code page. "Blank" below means the space, character 32, alone: a
// TAB or a line end is never trimmed.

/// What ends a line of a file, and of a text of several lines.
inline constexpr std::string_view kLineEnd = "\r\n";

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

/// Copies a text to a place that has room for it and returns where it ends there. A text whose size the
/// compiler knows takes a few instructions.
template <typename Text>
char* Put(const Text& text, char* at) {
    return std::char_traits<char>::copy(at, std::data(text), std::size(text)) + std::size(text);
}

// Names of fields, keywords and keys of files are ASCII, whatever the code page.

/// The capital of a letter "a" to "z"; any other character as it is.
inline char AsciiCapital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// True for two names that differ in nothing but the case of such letters.
inline bool IsSameName(std::string_view left, std::string_view right) {
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [](char l, char r) { return AsciiCapital(l) == AsciiCapital(r); });
}

} // namespace zy
