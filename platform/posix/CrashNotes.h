#pragma once

#include <optional>
#include <string>

#include "platform/CodePage.h"
#include "platform/LastSteps.h"

namespace zy {

/// From here on, when a mistake of the program's ends it, a note of that stays in the user's folder for the
/// state of programs: the version, the signal, the last steps and where in the program it was, by addresses.
/// Of what the program held there is nothing in it. The steps must outlive the program.
void LeaveCrashNotes(const std::string& version, const LastSteps& steps);

/// The place of the note that an earlier run has left, where people and the next run do not take it for a
/// new one. Nothing where there is none.
std::optional<std::string> TakeCrashNote(const CodePage& codePage);

} // namespace zy
