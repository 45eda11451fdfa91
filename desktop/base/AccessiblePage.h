#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <memory>

class wxWindow;

namespace zy {

/// What assistive technology reads of a page of text that the toolkit paints, in the order of reading. A link
/// comes behind the paragraph that it stands in.
class PageContent {
  public:
    enum class Kind : char { Paragraph, Title, Heading, Link };

    virtual ~PageContent() = default;

    /// What the page is called.
    virtual wxString Name() const = 0;
    /// How it is read.
    virtual wxString Description() const = 0;
    /// How many parts it has; they count from 0 on.
    virtual int Count() const = 0;
    virtual Kind KindOf(int part) const = 0;
    virtual wxString Text(int part) const = 0;
    /// Where a part is on the screen, be it scrolled out of sight.
    virtual wxRect PlaceOf(int part) const = 0;
    /// The part that the user has come to; -1 on an empty page.
    virtual int Current() const = 0;
    /// Follows a link; nothing for other parts.
    virtual void Follow(int part) = 0;
};

/// Such a page as assistive technology meets it. Whoever shows it tells of changes, behind them. That the
/// keyboard comes to the page it notices itself.
class AccessiblePage {
  public:
    virtual ~AccessiblePage() = default;

    /// The user has come to another part.
    virtual void TellCurrent() = 0;
    /// Another page has been opened.
    virtual void TellPage() = 0;
};

/// Nobody else may name the page's window. The content must outlive what is returned; the window may go
/// before it.
std::unique_ptr<AccessiblePage> MakeAccessiblePage(wxWindow& page, PageContent& content);

} // namespace zy
