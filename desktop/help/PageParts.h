#pragma once

#include <set>
#include <vector>

#include "desktop/AccessiblePage.h"
#include "desktop/PageCells.h"

namespace zy {

/// A paragraph, a heading or a link of a page of the help.
struct PagePart {
    PageContent::Kind kind = PageContent::Kind::Paragraph;
    wxString text;
    PageRange cells;
    /// A link that is only some of a paragraph.
    bool isInside = false;
};

/// The texts of a page's headings, from its source, which alone tells them from other paragraphs.
std::set<wxString> HeadingsIn(const wxString& source);

/// The parts of a page in the order of reading. The first one is its title.
std::vector<PagePart> PartsOf(const wxHtmlCell& page, const std::set<wxString>& headings);

} // namespace zy
