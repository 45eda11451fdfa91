#pragma once

#include <wx/html/htmlwin.h>

#include <memory>

#include "desktop/PageParts.h"

namespace zy {

/// A page of the help as somebody reads it who does not see it: paragraph by paragraph, and by its links.
class PageReading final : public PageContent {
  public:
    /// `page` must outlive this object's last use.
    explicit PageReading(wxHtmlWindow& page);

    /// Reads the page anew, whose cells are others now. It begins at the part that is the first one in sight.
    void Begin(const std::set<wxString>& headings);
    /// The reader has come to these cells: to the part that they are, else to the paragraph that they begin
    /// in.
    void ComeTo(const PageRange& cells);
    /// The paragraph behind the current one, or before it; null where there is none.
    const PageRange* Neighbour(bool forward) const;

    wxString Name() const override { return page_.GetOpenedPageTitle(); }
    wxString Description() const override { return "Ctrl+Down reads the next paragraph, Tab the next link"; }
    int Count() const override { return static_cast<int>(parts_.size()); }
    Kind KindOf(int part) const override { return At(part).kind; }
    wxString Text(int part) const override { return At(part).text; }
    wxRect PlaceOf(int part) const override;
    int Current() const override { return parts_.empty() ? -1 : current_; }
    void Follow(int part) override;

  private:
    const PagePart& At(int part) const { return parts_[static_cast<std::size_t>(part)]; }
    int FirstInSight() const;

    wxHtmlWindow& page_;
    std::vector<PagePart> parts_;
    int current_ = 0;
    std::unique_ptr<AccessiblePage> accessible_;
};

} // namespace zy
