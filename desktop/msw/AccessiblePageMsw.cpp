#include "desktop/AccessiblePage.h"

#include <wx/window.h>

#include "desktop/AccessiblePartsMsw.h"

namespace zy {
namespace {

/// The page as the system's screen readers know it.
class PartsOfPage final : public AccessibleParts {
  public:
    PartsOfPage(wxWindow& page, PageContent& content) : AccessibleParts(page), content_(content) {}

    int NumberOfCurrent() const override { return content_.Current() + 1; }

    wxAccStatus GetName(int number, wxString* name) override {
        *name = number == kItself ? content_.Name() : content_.Text(number - 1);
        return wxACC_OK;
    }
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
        if (number != kItself && !Window().GetScreenRect().Intersects(PlaceOf(number))) {
            *state |= wxACC_STATE_SYSTEM_OFFSCREEN;
        }
        return wxACC_OK;
    }
    wxAccStatus HitTest(const wxPoint& onScreen, int* number, wxAccessible** child) override {
        *child = nullptr;
        // A link lies on its paragraph, and is counted behind it.
        for (*number = content_.Count(); *number > kItself; --*number) {
            if (PlaceOf(*number).Contains(onScreen)) {
                return wxACC_OK;
            }
        }
        *child = this;
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
    int Count() const override { return content_.Count(); }
    wxRect PlaceOf(int number) const override { return content_.PlaceOf(number - 1); }
    bool IsLink(int number) const {
        return number != kItself && content_.KindOf(number - 1) == PageContent::Kind::Link;
    }
    /// The system has no role for headings.
    static wxString DescriptionOf(PageContent::Kind kind) {
        return kind == PageContent::Kind::Title     ? "title"
               : kind == PageContent::Kind::Heading ? "heading"
                                                    : "";
    }
    int NumberFrom(int from, wxNavDir direction) const override {
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

    PageContent& content_;
};

/// Tells the system's listeners where the user has come to.
class PageOfParts final : public AccessiblePage {
  public:
    PageOfParts(wxWindow& page, PageContent& content) : parts_(page, new PartsOfPage(page, content)) {}

    void TellCurrent() override { parts_.TellFocus(); }
    void TellPage() override {
        parts_.TellOfItself(wxACC_EVENT_OBJECT_REORDER);
        TellCurrent();
    }

  private:
    PartsTold parts_;
};

} // namespace

std::unique_ptr<AccessiblePage> MakeAccessiblePage(wxWindow& page, PageContent& content) {
    return std::make_unique<PageOfParts>(page, content);
}

} // namespace zy
