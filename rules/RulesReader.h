#pragma once

#include <deque>

#include "platform/FileSystem.h"
#include "rules/RunRule.h"

namespace zy {

/// What reading a rules file came upon.
struct RulesReadReport {
    bool complete = true;         ///< every byte of the file was read
    std::size_t skippedLines = 0; ///< lines that are no part of a rule; blank lines do not count
};

/// Reads the rules of a rules file in its order, one for each "[RULE]" header.
///
/// A value is the text behind the first "=" without the one blank that follows it. Taken as well: headers and
/// keys in any case and indented by blanks or TABs, keys that are missing (the property stays empty) or
/// repeated (the last counts), LF alone at a line's end, a last line without an end, a UTF-8 byte-order mark
/// at the start. Skipped: keys before the first header or under another one, unknown keys, lines without "=",
/// comments among them. A CR or NUL inside a line is part of its value.
RulesReadReport ReadRules(FileHandle& file, std::deque<RunRule>& rules);

/// The description of a rule that was read: the three pieces joined by single blanks. Empty pieces leave
/// their blanks at the end: files that were saved before hold them, and a save that dropped them would change
/// every rule's line.
std::string JoinedDescription(const RunRule& rule);

} // namespace zy
