#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zy {

/// The single-byte ANSI code page that all text of the program is in: what each byte means and what its
/// capital is.
///
/// Inside, text stays in bytes. Unicode exists at the edge alone: the window toolkit, paths of the operating
/// system, the trace channel.
class CodePage {
  public:
    using ToUnicodeTable = std::array<char32_t, 256>;
    using UpperTable = std::array<unsigned char, 256>;

    CodePage(const ToUnicodeTable& toUnicode, const UpperTable& upper);

    /// The text in capitals, as this code page defines them; a letter whose capital the page lacks stays.
    std::string UCase(std::string_view text) const;
    /// The same for one character.
    char Upper(char character) const;

    /// The Unicode character of a byte; every byte has one.
    char32_t ToUnicode(char character) const;
    /// The byte of a Unicode character, or nothing when the code page lacks it.
    std::optional<char> FromUnicode(char32_t character) const;

    /// The text in UTF-8, NULs and control characters with it.
    std::string ToUtf8(std::string_view text) const;
    /// Nothing when the text is not UTF-8 or holds a character that the code page lacks.
    std::optional<std::string> FromUtf8(std::string_view utf8) const;

  private:
    ToUnicodeTable toUnicode_;
    UpperTable upper_;
    std::unordered_map<char32_t, char> fromUnicode_;
};

/// Appends one character in UTF-8.
void AppendUtf8(std::string& utf8, char32_t character);
/// Takes the next character off the front of a UTF-8 text; nothing, and the text unchanged, when it is
/// malformed.
std::optional<char32_t> TakeUtf8(std::string_view& utf8);

/// Windows-1252, the code page of every system but Windows. Its five unassigned bytes stand for the control
/// characters of the same number, as on Windows.
const CodePage& Windows1252();

} // namespace zy
