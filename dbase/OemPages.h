#pragma once

#include <string>
#include <string_view>

namespace zy::dbase {

/// A code page of DOS, as the byte 29 of a table's header names it.
enum class OemPage { None, Page437, Page850 };

OemPage OemPageOf(unsigned char languageByte);

/// Makes ANSI characters of those of an OEM page, in their place. What the ANSI page lacks becomes the ASCII
/// character that is nearest: a Greek letter the Latin one of its sound, lines and corners "-", "=", "|" and
/// "+", blocks "#".
void OemToAnsi(OemPage page, char* begin, char* end);

/// Makes OEM characters of ANSI ones. False when the page lacks one of them; part of the text is then
/// converted.
bool AnsiToOem(OemPage page, std::string& text);

} // namespace zy::dbase
