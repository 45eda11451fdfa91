#include "desktop/PageReading.h"

#include <algorithm>

#include "desktop/Native.h"

namespace zy {
namespace {

wxRect RectOf(const wxHtmlCell& cell) {
    return {cell.GetAbsPos(), wxSize(cell.GetWidth(), cell.GetHeight())};
}

} // namespace

PageReading::PageReading(wxHtmlWindow& page) : page_(page), accessible_(MakeAccessiblePage(page, *this)) {}

void PageReading::Begin(const std::set<wxString>& headings) {
    parts_ = PartsOf(*page_.GetInternalRepresentation(), headings);
    current_ = FirstInSight();
    accessible_->TellPage();
}

int PageReading::FirstInSight() const {
    const int top = page_.CalcUnscrolledPosition(wxPoint()).y;
    const auto first = std::find_if(parts_.begin(), parts_.end(), [top](const PagePart& part) {
        return part.cells.first->GetAbsPos().y >= top;
    });
    return first == parts_.end() ? 0 : static_cast<int>(first - parts_.begin());
}

void PageReading::ComeTo(const PageRange& cells) {
    const auto isReached = [&](const PagePart& part) {
        return part.cells == cells || (!part.isInside && !StandsBefore(*cells.first, *part.cells.first));
    };
    const auto reached = std::find_if(parts_.rbegin(), parts_.rend(), isReached);
    if (reached != parts_.rend()) {
        current_ = static_cast<int>(parts_.rend() - reached) - 1;
        accessible_->TellCurrent();
    }
}

const PageRange* PageReading::Neighbour(bool forward) const {
    int part = current_;
    do {
        part += forward ? 1 : -1;
    } while (part >= 0 && part < Count() && At(part).isInside);
    return part >= 0 && part < Count() ? &At(part).cells : nullptr;
}

wxRect PageReading::PlaceOf(int part) const {
    const auto& [first, last] = At(part).cells;
    wxRect place =
        KindOf(part) == Kind::Link ? RectOf(*first).Union(RectOf(*last)) : RectOf(*first->GetParent());
    place.SetPosition(page_.ClientToScreen(page_.CalcScrolledPosition(place.GetPosition())));
    return place;
}

void PageReading::Follow(int part) {
    if (KindOf(part) == Kind::Link) {
        // Behind the question: the page's parts go with it.
        RunBehindEvent(page_, [this, link = *At(part).cells.first->GetLink()] { page_.OnLinkClicked(link); });
    }
}

} // namespace zy
