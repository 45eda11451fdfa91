#pragma once

#include <wx/string.h>

#include <functional>
#include <optional>
#include <vector>

class wxHtmlCell;

namespace zy {

// What stands where on a page of the help. A page is a tree of cells; those at its ends are words and
// pictures.

/// The cells from one to another, in the order of the text.
struct PageRange {
    const wxHtmlCell* first = nullptr;
    const wxHtmlCell* last = nullptr;

    bool operator==(const PageRange&) const = default;
};

/// Whether one cell comes before another in the text.
bool StandsBefore(const wxHtmlCell& one, const wxHtmlCell& other);

/// Calls `visit` for each word and picture, in the order of the text.
void VisitCells(const wxHtmlCell& page, const std::function<void(const wxHtmlCell&)>& visit);

/// The links of a page, from its top to its bottom.
std::vector<PageRange> LinksOn(const wxHtmlCell& page);

/// Words that the user looks for.
struct SoughtWords {
    wxString text;
    bool caseSensitive = false;
    bool wholeWords = false;
};

/// The first place of a page where the words stand. As in the search of all pages, a blank in them is any
/// number of blanks and line ends, and each change of the type counts as one.
std::optional<PageRange> FindOn(const wxHtmlCell& page, const SoughtWords& words);

} // namespace zy
