#pragma once

#include "ini/FileText.h"
#include "ini/INIlines.h"
#include "platform/CodePage.h"

namespace zy {

/// Takes the text of a settings file apart, in its place, and adds the lines that INIfile::LoadFile takes.
/// They refer to the text. A line of more than 32,767 characters is run-time error 6; the lines before it are
/// then added.
void ParseLines(const FileText& text, const CodePage& codePage, INIlines& lines);

} // namespace zy
