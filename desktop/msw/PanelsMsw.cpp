#include <wx/msw/wrapwin.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <bit>
#include <utility>

#include "desktop/Panels.h"

namespace zy {
namespace {

/// Moves the focus when it is asked to, as a dialog of the system does. Some systems ask for it when a
/// label's access key is pressed: to the label first, which takes no focus, then to the control that follows.
class OuterPanel final : public wxPanel {
  public:
    using wxPanel::wxPanel;

    WXLRESULT MSWWindowProc(WXUINT message, WXWPARAM wParam, WXLPARAM lParam) override {
        if (message != WM_NEXTDLGCTL) {
            return wxPanel::MSWWindowProc(message, wParam, lParam);
        }
        if (LOWORD(lParam) != 0) {
            GoTo(std::bit_cast<HWND>(wParam));
        } else {
            GoOn(wParam != 0);
        }
        return 0;
    }

  private:
    void GoTo(HWND control) {
        if ((::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0) {
            label_ = control;
        } else {
            ::SetFocus(control);
        }
    }
    void GoOn(bool backwards) {
        const HWND from = label_ != nullptr ? std::exchange(label_, nullptr) : ::GetFocus();
        if (const HWND next = ::GetNextDlgTabItem(GetHandle(), from, backwards ? TRUE : FALSE);
            next != nullptr) {
            ::SetFocus(next);
        }
    }

    HWND label_ = nullptr;
};

/// The toolkit lets the innermost panel or box around the focus look for an access key, and it takes the key
/// even when no control of its own has it.
template <typename Window>
class Inner final : public Window {
  public:
    using Window::Window;

    bool MSWProcessMessage(WXMSG* message) override {
        return message->message != WM_SYSCHAR && Window::MSWProcessMessage(message);
    }
};

} // namespace

wxPanel* MakeOuterPanel(wxWindow& window) {
    return new OuterPanel(&window);
}

void KeepScrollBarsInSight(wxScrolledWindow& /*window*/) {
    // They are.
}

wxPanel* MakeInnerPanel(wxWindow& parent) {
    return new Inner<wxPanel>(&parent);
}

wxStaticBox* MakeInnerBox(wxWindow& parent, const wxString& caption) {
    return new Inner<wxStaticBox>(&parent, wxID_ANY, caption);
}

wxStaticText* MakePlainText(wxWindow& parent, const wxString& text) {
    // The system has a text name what stands behind it only where that has no text of its own.
    return new wxStaticText(&parent, wxID_ANY, text);
}

} // namespace zy
