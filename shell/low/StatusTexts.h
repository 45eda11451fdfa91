#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "controls/CellBlock.h"
#include "controls/StatusBar.h"
#include "platform/FileError.h"

namespace zy {

/// Shown when the user types or pastes a character that the settings files cannot hold, behind the name of
/// its field or cell and the character's number.
inline constexpr std::string_view kCharacterRefused = " was not taken: the settings files cannot hold it";

/// Shown when the user types or pastes more than a field or cell takes.
inline constexpr std::string_view kFieldFull = "Not taken: the field would get longer than it can be";

/// Shown when cells could be neither copied nor pasted because another program keeps the clipboard to itself.
inline constexpr std::string_view kClipboardInUse =
    "Not copied or pasted: another program is using the clipboard";

/// Shown when the user adds to a list that is as long as it can be.
inline constexpr std::string_view kListFull = "Not added: the list is as long as it can be";

/// Shown once a save of any of the lists has done all its steps.
inline constexpr std::string_view kListSaved = "Saved";

/// What went wrong, with the reason that the file system gave.
std::string Failure(std::string_view what, FileError error);

/// A time where the user is, without seconds: "14:07", or of another day "2026-05-03, 14:07".
std::string TimeText(std::chrono::local_seconds time, std::chrono::year_month_day today);

/// A number with what it counts: "1 rule", "2 rules".
std::string Counted(std::size_t count, std::string_view noun);

/// A text in double quotes, for a message. Of a long one the front alone.
std::string Quoted(std::string_view text);

/// Appends a part of a message, with what separates it from the parts before; nothing for an empty part.
void Join(std::string& text, std::string_view separator, std::string_view part);

/// What of a paste into the grid was not taken; empty when all was.
std::string DescribeLeftOut(const PasteReport& paste, const GridCells& grid);

/// Shows a hint behind what the status bar shows; nothing for an empty one.
void AddHint(StatusBar& bar, std::string_view hint);

} // namespace zy
