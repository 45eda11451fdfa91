#pragma once

#include <string>
#include <string_view>

namespace zy::dbase {

// What byte 29 of a table's header, the language byte, says when the characters are none of DOS.
inline constexpr unsigned kLanguageNotStated = 0x00;
inline constexpr unsigned kLanguageWindows1252 = 0x03;
inline constexpr unsigned kLanguageWindowsAnsi = 0x57;

/// A code page of DOS, as the language byte names it.
enum class OemPage { None, Page437, Page850 };

OemPage OemPageOf(unsigned char languageByte);
/// Whether a language byte is one of DOS or Windows that is read here as what it says.
bool IsKnownPage(unsigned char languageByte);

/// Makes ANSI characters of those of an OEM page, in their place. What the ANSI page lacks becomes the ASCII
/// character that is nearest: a Greek letter the Latin one of its sound, lines and corners "-", "=", "|" and
/// "+", blocks "#". Returns the number of those.
std::size_t OemToAnsi(OemPage page, char* begin, char* end);

/// Makes OEM characters of ANSI ones. False when the page lacks one of them; part of the text is then
/// converted.
bool AnsiToOem(OemPage page, std::string& text);

} // namespace zy::dbase
