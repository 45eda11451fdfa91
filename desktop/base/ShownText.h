#pragma once

#include <wx/string.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace zy {

// Text between the program, where it is in the code page, and the toolkit, where it is in Unicode. Both count
// the same number of characters.

/// The text as the toolkit shows it. A NUL, which would end the text there, is shown as its symbol, U+2400.
wxString ToShown(const CodePage& codePage, std::string_view text);

/// The most characters that a line of text takes: the toolkit's holds 65,534 bytes of UTF-8, of which a
/// character takes up to three. What a longer text of a file has beyond is kept, out of reach.
inline constexpr std::size_t kMostShown = 65534 / 3;

/// A text after the user's change.
struct EditedText {
    std::string text;
    /// Where the changed part ends.
    std::size_t changeEnd = 0;
};

/// What the user made of `before`, as the toolkit shows it now. In the part that is new, a line end or a TAB
/// becomes a blank, since a text box has one line. Nothing when the new part holds a character that the code
/// page lacks, and when the whole is longer than kMostShown.
std::optional<EditedText> TakeEdit(const CodePage& codePage, std::string_view before, const wxString& shown);

/// The first character that the code page lacks.
std::optional<wxUniChar> FindLacking(const CodePage& codePage, const wxString& shown);

/// The user's new text with a blank for each line end and TAB.
wxString OnOneLine(wxString text);

/// A caption with "&" before its access key, as the toolkit wants it; every "&" of the caption itself is
/// shown.
wxString WithMnemonic(const CodePage& codePage, std::string_view caption, char accessKey);

} // namespace zy
