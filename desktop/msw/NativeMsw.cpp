#include <wx/button.h>
#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/dataview.h>
#include <wx/eventfilter.h>
#include <wx/hyperlink.h>
#include <wx/msw/wrapwin.h>
#include <wx/settings.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/weakref.h>

#include <bit>
#include <memory>
#include <utility>

#include "desktop/AccessibleMsw.h"
#include "desktop/Contrast.h"
#include "desktop/Native.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

struct PutOffWork {
    wxWeakRef<wxEvtHandler> owner;
    std::function<void()> work;
};

constexpr UINT kRunPutOffWork = WM_APP;

/// For a window that nobody sees and that is there for one message.
LRESULT CALLBACK RunPutOffWork(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kRunPutOffWork) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    const std::unique_ptr<PutOffWork> putOff(std::bit_cast<PutOffWork*>(lParam));
    ::DestroyWindow(window);
    if (putOff->owner) {
        putOff->work();
    }
    return 0;
}

class ScreenContext {
  public:
    ~ScreenContext() { ::ReleaseDC(nullptr, context_); }
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;
    ScreenContext() = default;

    int Ask(int what) const { return ::GetDeviceCaps(context_, what); }

  private:
    HDC context_ = ::GetDC(nullptr);
};

/// The toolkit's own list answers screen readers itself, and calls itself by its window's name.
class NamedList : public wxDataViewCtrlAccessible {
  public:
    NamedList(wxDataViewCtrl& list, wxString name)
        : wxDataViewCtrlAccessible(&list), name_(std::move(name)) {}

    wxAccStatus GetName(int child, wxString* name) override {
        if (child != wxACC_SELF) {
            return wxDataViewCtrlAccessible::GetName(child, name);
        }
        *name = name_;
        return wxACC_OK;
    }

  private:
    wxString name_;
};

/// Shows somebody the events of a window's controls before anything else gets them.
class WindowFilter : public wxEventFilter {
  public:
    using Look = std::function<void(const wxEvent& event)>;

    WindowFilter(const wxWindow& window, Look look) : window_(window), look_(std::move(look)) {
        wxEvtHandler::AddFilter(this);
    }
    ~WindowFilter() override { wxEvtHandler::RemoveFilter(this); }
    WindowFilter(const WindowFilter&) = delete;
    WindowFilter& operator=(const WindowFilter&) = delete;

    int FilterEvent(wxEvent& event) override {
        auto* control = dynamic_cast<wxWindow*>(event.GetEventObject());
        if (control != nullptr && wxGetTopLevelParent(control) == &window_) {
            look_(event);
        }
        return Event_Skip;
    }

  private:
    const wxWindow& window_;
    Look look_;
};

void Watch(wxWindow& window, WindowFilter::Look look) {
    // The filter lives as long as what is bound to the window.
    window.Bind(wxEVT_DESTROY, [filter = std::make_shared<WindowFilter>(window, std::move(look))](
                                   wxWindowDestroyEvent& event) { event.Skip(); });
}

bool IsMousePress(const wxEvent& event) {
    const auto* mouse = dynamic_cast<const wxMouseEvent*>(&event);
    return mouse != nullptr && (mouse->ButtonDown() || mouse->ButtonDClick());
}

/// A key that is pressed with Alt. Alt+F4 the system takes as soon as it learns of it.
bool IsKeyWithAlt(const wxKeyEvent& key) {
    return key.GetEventType() == wxEVT_KEY_DOWN && key.AltDown() && key.GetRawKeyCode() != VK_MENU &&
           key.GetRawKeyCode() != VK_F4;
}

void TellSystem(const wxKeyEvent& key) {
    auto* control = static_cast<wxWindow*>(key.GetEventObject());
    ::DefWindowProcW(control->GetHandle(), WM_SYSKEYDOWN, key.GetRawKeyCode(),
                     static_cast<LPARAM>(key.GetRawKeyFlags()));
}

/// The system's colour for links, else the toolkit's, else that of other text. Each may be much like what
/// lies below the link: the first in some themes, the second in high contrast.
wxColour ReadableLinkColour(const wxHyperlinkCtrl& link) {
    for (const auto& colour : {wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT), link.GetNormalColour()}) {
        if (Contrast(colour, link.GetBackgroundColour()) >= kReadable) {
            return colour;
        }
    }
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
}

wxString TextOnClipboard() {
    wxTextDataObject text;
    const wxClipboardLocker open;
    return !!open && wxTheClipboard->GetData(text) ? text.GetText() : wxString();
}

wxAccRole SystemRole(AccessibleRole role) {
    switch (role) {
    case AccessibleRole::Dialog:
        return wxROLE_SYSTEM_DIALOG;
    case AccessibleRole::StatusBar:
        return wxROLE_SYSTEM_STATUSBAR;
    case AccessibleRole::Notice:
        return wxROLE_SYSTEM_ALERT;
    case AccessibleRole::Link:
        return wxROLE_SYSTEM_LINK;
    case AccessibleRole::Calendar:
        return wxROLE_SYSTEM_CELL; // the system has none for calendars: it stands for its current day
    case AccessibleRole::Picture:
        return wxROLE_SYSTEM_GRAPHIC;
    }
    return wxROLE_NONE;
}

void ShowPushed(const wxButton& button, bool pushed) {
    ::SendMessageW(button.GetHandle(), BM_SETSTATE, pushed ? TRUE : FALSE, 0);
}

} // namespace

bool HasFont() {
    return true; // the system brings its own
}

double DotsPerInch() {
    return ScreenContext().Ask(LOGPIXELSX);
}

double DotsPerInch(const wxWindow& window) {
    return window.GetDPI().x;
}

void ObserveDotsPerInch(wxWindow& window, std::function<void()> changed) {
    window.Bind(wxEVT_DPI_CHANGED, [changed = std::move(changed)](wxDPIChangedEvent& event) {
        event.Skip();
        changed();
    });
}

void LearnBorders() {
    // The system knows them before there is a window.
}

void TellFocusFirst() {
    // It does so by itself.
}

void CloseMenusThatFailed() {
    // The system gives them the keys only while they are open.
}

void OfferNoEmoji() {
    // The system's own window for them is no part of the program.
}

void StrengthenFaintColours() {
    // The system's are black on white, or white on black, or as the user wants them.
}

void SetAccessibleName(wxWindow& window, const wxString& name) {
    if (auto* list = dynamic_cast<wxDataViewCtrl*>(&window)) {
        list->SetAccessible(new NamedList(*list, name));
    } else {
        GiveName(window, name);
    }
}

void SetAccessibleTreeName(wxTreeCtrl& tree, const wxString& name) {
    SetAccessibleName(tree, name); // the system tells of the entries
}

void SetAccessibleDescription(wxWindow& window, const wxString& description) {
    GiveDescription(window, description);
}

void SetAccessibleRole(wxWindow& window, AccessibleRole role) {
    GiveRole(window, SystemRole(role));
}

void AnnounceNotice(wxWindow& notice) {
    wxAccessible::NotifyEvent(wxACC_EVENT_SYSTEM_ALERT, &notice, wxOBJID_CLIENT, wxACC_SELF);
}

void LetNameFollowKind(wxFileDialog& /*dialog*/) {
    // The system's own dialog does that.
}

void StopWatchingName(wxFileDialog& /*dialog*/) {
    // The system's own dialog looks at nothing once it is gone.
}

void RunBehindEvent(wxEvtHandler& owner, const std::function<void()>& work) {
    // The toolkit runs pending work in a hook on each message that is taken from the queue. That message is
    // not done before the hook is, and in a box that the hook opens Wine would keep back all that is posted.
    auto putOff = std::make_unique<PutOffWork>(PutOffWork{&owner, work});
    const HWND window =
        ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, std::bit_cast<LONG_PTR>(&RunPutOffWork));
    if (::PostMessageW(window, kRunPutOffWork, 0, std::bit_cast<LPARAM>(putOff.get())) != FALSE) {
        putOff.release();
    }
}

void FollowByEnter(wxHyperlinkCtrl& link, const std::function<void()>& follow) {
    link.Bind(wxEVT_CHAR_HOOK, [&link, follow](wxKeyEvent& event) {
        const bool enters = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
        if (!enters || event.HasAnyModifiers()) {
            event.Skip();
            return;
        }
        // Behind the key itself, which a dialog would take for that of a button.
        RunBehindEvent(link, follow);
    });
}

void IgnoreWheelWhileClosed(wxChoice& choice) {
    choice.Bind(wxEVT_MOUSEWHEEL, [&choice](wxMouseEvent& event) {
        event.Skip(::SendMessageW(choice.GetHandle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE);
    });
}

char DigitOn(const wxKeyEvent& /*event*/) {
    return '\0'; // the system knows these keys by their digits on every layout
}

void SetPasswordCharacter(wxTextCtrl& box, char character) {
    ::SendMessageW(box.GetHandle(), EM_SETPASSWORDCHAR, static_cast<unsigned char>(character), 0);
}

void LayOutUnseen(wxTopLevelWindow& /*window*/) {
    // A window has its size, shown or not.
}

BoxInside InsideOf(wxStaticBox& box) {
    int above = 0;
    int beside = 0;
    box.GetBordersForSizer(&above, &beside);
    return {.origin = {}, .above = above};
}

void ObserveFocus(wxWindow& window, std::function<void()> moved) {
    window.Bind(wxEVT_CHILD_FOCUS, [moved = std::move(moved)](wxChildFocusEvent& event) {
        event.Skip();
        moved();
    });
}

void ObserveMousePress(wxWindow& window, std::function<void()> pressed) {
    // The system hands a press on a disabled control to the window below it.
    Watch(window, [pressed = std::move(pressed)](const wxEvent& event) {
        if (IsMousePress(event)) {
            pressed();
        }
    });
}

void KeepMenuBarClosed(wxWindow& window) {
    Watch(window, [](const wxEvent& event) {
        const auto* key = dynamic_cast<const wxKeyEvent*>(&event);
        if (key != nullptr && IsKeyWithAlt(*key)) {
            TellSystem(*key);
        }
    });
}

bool HoldsFocus(const wxWindow& control) {
    return control.IsDescendant(wxWindow::FindFocus());
}

void KeepFocusAway(wxButton& button) {
    // The system's button takes the focus when it is pressed, so it does not get to know of the mouse.
    button.DisableFocusFromKeyboard();
    button.Bind(wxEVT_LEFT_DOWN, [&button](wxMouseEvent&) { ShowPushed(button, true); });
    button.Bind(wxEVT_LEFT_DCLICK, [&button](wxMouseEvent&) { ShowPushed(button, true); });
    button.Bind(wxEVT_LEAVE_WINDOW, [&button](wxMouseEvent& event) {
        event.Skip();
        ShowPushed(button, false);
    });
    button.Bind(wxEVT_LEFT_UP, [&button](wxMouseEvent&) {
        ShowPushed(button, false);
        wxCommandEvent press(wxEVT_BUTTON, button.GetId());
        press.SetEventObject(&button);
        button.ProcessWindowEvent(press);
    });
}

void HandOnAccessKey(wxWindow& /*window*/, wxKeyEvent& event) {
    event.Skip(); // the system makes a second message of it
}

long EveryKeyStyle() {
    return wxTE_PROCESS_TAB | wxTE_PROCESS_ENTER;
}

void DressLink(wxHyperlinkCtrl& link) {
    const auto colour = ReadableLinkColour(link);
    link.SetNormalColour(colour);
    link.SetHoverColour(colour);
    link.SetVisitedColour(colour);
}

void TakeLineEnds(wxTextCtrl& box) {
    // The system's line of text would end what is pasted at its first line end.
    box.Bind(wxEVT_TEXT_PASTE, [&box](wxClipboardTextEvent& event) {
        const wxString text = TextOnClipboard();
        if (text.find_first_of("\r\n") == wxString::npos) {
            event.Skip();
        } else {
            box.WriteText(OnOneLine(text));
        }
    });
}

void MoveQuickly(wxTextCtrl& /*box*/) {
    // They do.
}

void CloseDropDown(const wxChoice& choice) {
    ::SendMessageW(choice.GetHandle(), CB_SHOWDROPDOWN, FALSE, 0);
}

void PrepareDropDown(const wxChoice& /*choice*/) {
    // It is ready.
}

void MakeHeaderPlain(wxDataViewColumn& /*column*/) {
    // The list's header takes no focus.
}

wxWindow& KeyboardPart(wxDataViewCtrl& list) {
    return *list.GetMainWindow();
}

void GoToRow(wxDataViewCtrl& list, int row) {
    const auto item =
        static_cast<wxDataViewVirtualListModel*>(list.GetModel())->GetItem(static_cast<unsigned>(row));
    list.SetCurrentItem(item);
    list.Select(item);
    list.EnsureVisible(item);
}

} // namespace zy
