#pragma once

#include <wx/html/htmlwin.h>

#include <functional>
#include <set>

#include "desktop/PageCells.h"
#include "desktop/PageReading.h"

namespace zy {

/// A page of the help, in the colours of the user's desktop. Tab and Shift+Tab go from link to link and leave
/// the page behind the last one, Enter follows the link that is marked. Ctrl+Down and Ctrl+Up go from
/// paragraph to paragraph, which a screen reader then reads.
class HelpPage : public wxHtmlWindow {
  public:
    /// `opened` is called whenever another page, or another place of a page, has been opened.
    HelpPage(wxWindow* parent, std::function<void()> opened);

    bool LoadPage(const wxString& location) override;
    /// Marks the first place where the words stand, and scrolls there.
    void ShowWords(const SoughtWords& words);
    void EnlargeText() { SetTextSize(textSize_ + 1); }
    void ReduceText() { SetTextSize(textSize_ - 1); }

    /// The toolkit asks for it when it paints what is marked, which could not be read in the grey that it has
    /// for a window without the keyboard. What was found is looked at from the list that it was found by.
    bool HasFocus() const override { return true; }

  private:
    void PressKey(wxKeyEvent& event);
    void GoToLink(bool forward);
    void GoToParagraph(bool forward);
    /// The link behind what is marked, or before it; when nothing is, one that can be seen, or is yet to
    /// come.
    const PageRange* NextLink(const std::vector<PageRange>& links, bool forward) const;
    /// Null when what is marked is no link.
    const wxHtmlLinkInfo* MarkedLink() const;
    void FollowMarked();
    /// Marks cells as the user's selection is, and scrolls there when they cannot be seen.
    void Mark(const PageRange& cells);
    void Unmark();
    bool IsBelowTop(const PageRange& cells) const;
    bool IsAboveBottom(const PageRange& cells) const;
    void SetTextSize(int points);
    void TakeColours(wxSysColourChangedEvent& event);

    std::function<void()> opened_;
    std::set<wxString> headings_; ///< the texts of those on the page
    PageReading reading_;
    int textSize_;
};

} // namespace zy
