#include "desktop/AccessiblePage.h"

#include <wx/access.h>
#include <wx/weakref.h>
#include <wx/window.h>

namespace zy {
namespace {

constexpr int kItself = wxACC_SELF;

/// The page as the system's screen readers know it, who count its parts from 1 on.
class PartsAccessible final : public wxAccessible {
  public:
    PartsAccessible(wxWindow& page, PageContent& content)
        : wxAccessible(&page), page_(page), content_(content) {}

    int NumberOfCurrent() const { return content_.Current() + 1; }
    bool HasKeyboard() const { return page_.wxWindow::HasFocus(); }

    wxAccStatus GetChildCount(int* count) override {
        *count = content_.Count();
        return wxACC_OK;
    }
    wxAccStatus GetChild(int /*number*/, wxAccessible** child) override {
        *child = nullptr;
        return wxACC_OK;
    }
    wxAccStatus GetName(int number, wxString* name) override {
        *name = number == kItself ? content_.Name() : content_.Text(number - 1);
        return wxACC_OK;
    }
    wxAccStatus GetValue(int /*number*/, wxString* /*value*/) override { return wxACC_NOT_SUPPORTED; }
    wxAccStatus GetDescription(int number, wxString* description) override {
        *description =
            number == kItself ? content_.Description() : DescriptionOf(content_.KindOf(number - 1));
        return wxACC_OK;
    }
    wxAccStatus GetRole(int number, wxAccRole* role) override {
        *role = number == kItself ? wxROLE_SYSTEM_DOCUMENT
                : IsLink(number)  ? wxROLE_SYSTEM_LINK
                                  : wxROLE_SYSTEM_STATICTEXT;
        return wxACC_OK;
    }
    wxAccStatus GetState(int number, long* state) override {
        *state = wxACC_STATE_SYSTEM_FOCUSABLE | wxACC_STATE_SYSTEM_READONLY;
        if (HasKeyboard() && (number == kItself || number == NumberOfCurrent())) {
            *state |= wxACC_STATE_SYSTEM_FOCUSED;
        }
        if (number != kItself && !page_.GetScreenRect().Intersects(content_.PlaceOf(number - 1))) {
            *state |= wxACC_STATE_SYSTEM_OFFSCREEN;
        }
        return wxACC_OK;
    }
    wxAccStatus GetLocation(wxRect& place, int number) override {
        if (number == kItself) {
            return wxACC_NOT_IMPLEMENTED; // the system knows it
        }
        place = content_.PlaceOf(number - 1);
        return wxACC_OK;
    }
    wxAccStatus HitTest(const wxPoint& onScreen, int* number, wxAccessible** child) override {
        *child = nullptr;
        // A link lies on its paragraph, and is counted behind it.
        for (*number = content_.Count(); *number > kItself; --*number) {
            if (content_.PlaceOf(*number - 1).Contains(onScreen)) {
                return wxACC_OK;
            }
        }
        *child = this;
        return wxACC_OK;
    }
    wxAccStatus Navigate(wxNavDir direction, int from, int* number, wxAccessible** child) override {
        *child = nullptr;
        if (from == kItself && direction != wxNAVDIR_FIRSTCHILD && direction != wxNAVDIR_LASTCHILD) {
            return wxACC_NOT_IMPLEMENTED; // from window to window
        }
        *number = NumberFrom(from, direction);
        return *number > kItself && *number <= content_.Count() ? wxACC_OK : wxACC_FALSE;
    }
    wxAccStatus GetFocus(int* number, wxAccessible** child) override {
        *number = HasKeyboard() ? NumberOfCurrent() : kItself;
        *child = HasKeyboard() && *number == kItself ? this : nullptr;
        return wxACC_OK;
    }
    wxAccStatus GetDefaultAction(int number, wxString* action) override {
        *action = "Jump";
        return IsLink(number) ? wxACC_OK : wxACC_NOT_SUPPORTED;
    }
    wxAccStatus DoDefaultAction(int number) override {
        if (!IsLink(number)) {
            return wxACC_NOT_SUPPORTED;
        }
        content_.Follow(number - 1);
        return wxACC_OK;
    }

  private:
    bool IsLink(int number) const {
        return number != kItself && content_.KindOf(number - 1) == PageContent::Kind::Link;
    }
    /// The system has no role for headings.
    static wxString DescriptionOf(PageContent::Kind kind) {
        return kind == PageContent::Kind::Title     ? "title"
               : kind == PageContent::Kind::Heading ? "heading"
                                                    : "";
    }
    int NumberFrom(int from, wxNavDir direction) const {
        switch (direction) {
        case wxNAVDIR_FIRSTCHILD:
            return from == kItself ? 1 : kItself;
        case wxNAVDIR_LASTCHILD:
            return from == kItself ? content_.Count() : kItself;
        case wxNAVDIR_NEXT:
        case wxNAVDIR_DOWN:
            return from + 1;
        case wxNAVDIR_PREVIOUS:
        case wxNAVDIR_UP:
            return from - 1;
        default:
            return kItself;
        }
    }

    wxWindow& page_;
    PageContent& content_;
};

/// Tells the system's listeners where the user has come to.
class PageOfParts final : public AccessiblePage {
  public:
    PageOfParts(wxWindow& page, PageContent& content)
        : page_(&page), accessible_(new PartsAccessible(page, content)) {
        page.SetAccessible(accessible_);
        page.Bind(wxEVT_SET_FOCUS, &PageOfParts::TakeFocus, this);
    }
    ~PageOfParts() override {
        if (page_) {
            page_->Unbind(wxEVT_SET_FOCUS, &PageOfParts::TakeFocus, this);
            page_->SetAccessible(nullptr);
        }
    }
    PageOfParts(const PageOfParts&) = delete;
    PageOfParts& operator=(const PageOfParts&) = delete;

    void TellCurrent() override {
        if (accessible_->HasKeyboard() && accessible_->NumberOfCurrent() != kItself) {
            Tell(wxACC_EVENT_OBJECT_FOCUS, accessible_->NumberOfCurrent());
        }
    }
    void TellPage() override {
        Tell(wxACC_EVENT_OBJECT_REORDER, kItself);
        TellCurrent();
    }

  private:
    void TakeFocus(wxFocusEvent& event) {
        event.Skip();
        // Behind the system's own event, which is of the window as a whole.
        page_->CallAfter([this] { TellCurrent(); });
    }
    void Tell(int event, int number) const {
        wxAccessible::NotifyEvent(event, page_, wxOBJID_CLIENT, number);
    }

    wxWeakRef<wxWindow> page_;
    PartsAccessible* accessible_; ///< the window's own
};

} // namespace

std::unique_ptr<AccessiblePage> MakeAccessiblePage(wxWindow& page, PageContent& content) {
    return std::make_unique<PageOfParts>(page, content);
}

} // namespace zy
