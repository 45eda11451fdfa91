#include "desktop/HelpPage.h"

#include <wx/html/htmlproc.h>

#include <algorithm>
#include <utility>

#include "desktop/PageColours.h"

namespace zy {
namespace {

constexpr int kSmallestText = 6;
constexpr int kUsualText = 10;
constexpr int kLargestText = 36;

class PagePainter : public wxHtmlProcessor {
  public:
    explicit PagePainter(std::set<wxString>& headings) : headings_(headings) {}

    wxString Process(const wxString& source) const override {
        headings_ = HeadingsIn(source);
        return WithDesktopColours(source);
    }

  private:
    std::set<wxString>& headings_;
};

int TopOf(const wxHtmlCell& cell) {
    return cell.GetAbsPos().y;
}

int BottomOf(const wxHtmlCell& cell) {
    return TopOf(cell) + cell.GetHeight();
}

bool IsEnter(int key) {
    return key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
}

} // namespace

HelpPage::HelpPage(wxWindow* parent, std::function<void()> opened)
    : wxHtmlWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxHW_DEFAULT_STYLE | wxBORDER_THEME),
      opened_(std::move(opened)), reading_(*this),
      textSize_(std::max(wxNORMAL_FONT->GetPointSize(), kUsualText)) {
    AddProcessor(new PagePainter(headings_));
    SetStandardFonts(textSize_);
    Bind(wxEVT_CHAR_HOOK, &HelpPage::PressKey, this);
    Bind(wxEVT_SYS_COLOUR_CHANGED, &HelpPage::TakeColours, this);
}

bool HelpPage::LoadPage(const wxString& location) {
    Unmark();
    const bool loaded = wxHtmlWindow::LoadPage(location);
    if (loaded) {
        reading_.Begin(headings_);
        opened_();
    }
    return loaded;
}

void HelpPage::ShowWords(const SoughtWords& words) {
    if (const auto found = FindOn(*m_Cell, words)) {
        Mark(*found);
    }
}

void HelpPage::PressKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (key == WXK_TAB && !event.HasModifiers()) {
        GoToLink(!event.ShiftDown());
    } else if ((key == WXK_DOWN || key == WXK_UP) && event.GetModifiers() == wxMOD_CONTROL) {
        GoToParagraph(key == WXK_DOWN);
    } else if (IsEnter(key) && !event.HasAnyModifiers() && MarkedLink() != nullptr) {
        FollowMarked();
    } else {
        event.Skip();
    }
}

void HelpPage::GoToLink(bool forward) {
    const auto links = LinksOn(*m_Cell);
    if (const auto* next = NextLink(links, forward)) {
        Mark(*next);
    } else {
        Unmark();
        Navigate(forward ? wxNavigationKeyEvent::IsForward : wxNavigationKeyEvent::IsBackward);
    }
}

void HelpPage::GoToParagraph(bool forward) {
    if (const auto* next = reading_.Neighbour(forward)) {
        Mark(*next);
    }
}

const PageRange* HelpPage::NextLink(const std::vector<PageRange>& links, bool forward) const {
    const auto isBehind = [this](const PageRange& link) {
        return m_selection == nullptr ? IsBelowTop(link)
                                      : StandsBefore(*m_selection->GetFromCell(), *link.first);
    };
    const auto isAhead = [this](const PageRange& link) {
        return m_selection == nullptr ? IsAboveBottom(link)
                                      : StandsBefore(*link.first, *m_selection->GetFromCell());
    };
    if (forward) {
        const auto next = std::find_if(links.begin(), links.end(), isBehind);
        return next == links.end() ? nullptr : &*next;
    }
    const auto next = std::find_if(links.rbegin(), links.rend(), isAhead);
    return next == links.rend() ? nullptr : &*next;
}

const wxHtmlLinkInfo* HelpPage::MarkedLink() const {
    return m_selection == nullptr ? nullptr : m_selection->GetFromCell()->GetLink();
}

void HelpPage::FollowMarked() {
    // The cells go with the page.
    const wxHtmlLinkInfo link = *MarkedLink();
    OnLinkClicked(link);
}

void HelpPage::Mark(const PageRange& cells) {
    Unmark();
    m_selection = new wxHtmlSelection;
    m_selection->Set(cells.first, cells.last);
    reading_.ComeTo(cells);
    if (!IsBelowTop(cells) || !IsAboveBottom(cells)) {
        const int above = GetClientSize().y / 3;
        Scroll(-1, std::max(TopOf(*cells.first) - above, 0) / wxHTML_SCROLL_STEP);
    }
}

void HelpPage::Unmark() {
    wxDELETE(m_selection);
    Refresh();
}

bool HelpPage::IsBelowTop(const PageRange& cells) const {
    return TopOf(*cells.first) >= GetViewStart().y * wxHTML_SCROLL_STEP;
}

bool HelpPage::IsAboveBottom(const PageRange& cells) const {
    return BottomOf(*cells.last) <= GetViewStart().y * wxHTML_SCROLL_STEP + GetClientSize().y;
}

void HelpPage::SetTextSize(int points) {
    textSize_ = std::clamp(points, kSmallestText, kLargestText);
    SetStandardFonts(textSize_);
    reading_.Begin(headings_);
}

void HelpPage::TakeColours(wxSysColourChangedEvent& event) {
    event.Skip();
    const wxPoint place = GetViewStart();
    LoadPage(GetOpenedPage());
    Scroll(place);
}

} // namespace zy
