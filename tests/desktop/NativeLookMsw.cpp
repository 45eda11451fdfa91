#include <wx/choice.h>
#include <wx/msgdlg.h>
#include <wx/msw/private.h>
#include <wx/settings.h>
#include <wx/textctrl.h>

#include <commctrl.h>

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>

#include "NativeLook.h"
#include "WindowThread.h"

namespace zy::test {
namespace {

using Work = std::function<void()>;

constexpr UINT kDoWork = WM_APP;

/// A window that nobody sees, for the thread that made it gets its messages in whatever loop that is in.
HWND letterBox = nullptr;

LRESULT CALLBACK TakeWork(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kDoWork) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    const std::unique_ptr<Work> work(std::bit_cast<Work*>(lParam));
    (*work)();
    return 0;
}

bool IsOfClass(HWND window, std::wstring_view name) {
    constexpr int kMost = 32;
    wchar_t text[kMost]{};
    return std::wstring_view(text, static_cast<std::size_t>(::GetClassNameW(window, text, kMost))) == name;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// The system's own dialog that has the keyboard; null when there is none. The toolkit gives no handle to it.
HWND ActiveBox() {
    const HWND active = ::GetActiveWindow();
    const bool isBox = active != nullptr && active == ::GetForegroundWindow() &&
                       IsOfClass(active, L"#32770") && wxFindWinFromHandle(active) == nullptr;
    return isBox ? active : nullptr;
}

/// The first window inside another for which `isWanted` holds.
HWND FindInside(HWND outer, const std::function<bool(HWND)>& isWanted) {
    for (HWND inner = ::GetWindow(outer, GW_CHILD); inner != nullptr;
         inner = ::GetWindow(inner, GW_HWNDNEXT)) {
        const HWND found = isWanted(inner) ? inner : FindInside(inner, isWanted);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

/// A box that can only be confirmed gives the answer of its close box too.
int NumberOf(int answer) {
    return answer == wxID_YES ? IDYES : answer == wxID_NO ? IDNO : IDCANCEL;
}

HWND FindButton(int answer) {
    return FindInside(ActiveBox(), [&](HWND window) { return ::GetDlgCtrlID(window) == NumberOf(answer); });
}

/// Moves the border of the active window that lies at a place, or the whole window by its title.
void MoveBorder(const wxPoint& place, const wxPoint& way) {
    const HWND window = ::GetActiveWindow();
    RECT edges{};
    ::GetWindowRect(window, &edges);
    // The corner of the window can be that of its status bar too.
    const HWND inside = ::WindowFromPoint({place.x, place.y});
    const HWND hit = ::IsChild(window, inside) != FALSE ? inside : window;
    const auto part = ::SendMessageW(hit, WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y));
    if (part == HTCAPTION) {
        ::OffsetRect(&edges, way.x, way.y);
    } else if (part == HTBOTTOMRIGHT) {
        edges.right += way.x;
        edges.bottom += way.y;
    } else {
        throw GaveUp("There is nothing to take hold of");
    }
    ::SetWindowPos(window, nullptr, edges.left, edges.top, edges.right - edges.left, edges.bottom - edges.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void SendKey(WORD character, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    ::SendInput(1, &input, sizeof input);
}

BOOL CALLBACK NoteTip(HWND window, LPARAM found) {
    if (IsOfClass(window, TOOLTIPS_CLASSW) && ::IsWindowVisible(window) != FALSE) {
        *std::bit_cast<std::optional<std::string>*>(found) = wxString(TextOf(window)).utf8_string();
    }
    return TRUE;
}

} // namespace

void AwaitWork() {
    if (letterBox == nullptr) {
        letterBox =
            ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        ::SetWindowLongPtrW(letterBox, GWLP_WNDPROC, std::bit_cast<LONG_PTR>(&TakeWork));
    }
}

void HandToWindow(std::function<void()> work) {
    auto handed = std::make_unique<Work>(std::move(work));
    if (::PostMessageW(letterBox, kDoWork, 0, std::bit_cast<LPARAM>(handed.get())) != FALSE) {
        handed.release();
    }
}

bool HasKeyboard(const wxDialog& /*box*/) {
    return ActiveBox() != nullptr;
}

std::chrono::milliseconds UntilNewWindowKeepsKeyboard() {
    // Under Wine the window manager of another system hands the keyboard on once it has put the window up.
    return std::chrono::seconds(1);
}

std::string TitleOf(const wxMessageDialog& /*box*/) {
    return wxString(TextOf(ActiveBox())).utf8_string();
}

wxPoint ButtonOf(const wxMessageDialog& /*box*/, int answer) {
    RECT place{};
    ::GetWindowRect(FindButton(answer), &place);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

bool IsDefault(const wxMessageDialog& /*box*/, int answer) {
    const auto number = ::SendMessageW(ActiveBox(), DM_GETDEFID, 0, 0);
    return HIWORD(number) == DC_HASDEFID && LOWORD(number) == NumberOf(answer);
}

bool HasPicture(const wxMessageDialog& /*box*/) {
    return FindInside(ActiveBox(), [](HWND window) {
               return ::IsWindowVisible(window) != FALSE && IsOfClass(window, L"Static") &&
                      (::GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
           }) != nullptr;
}

bool CanBeCancelled(const wxMessageDialog& /*box*/) {
    return FindButton(wxID_CANCEL) != nullptr;
}

bool HasDroppedDown(const wxChoice& choice) {
    return ::SendMessageW(choice.GetHandle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

bool IsMenuOpen() {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    ::GetGUIThreadInfo(::GetCurrentThreadId(), &state);
    return (state.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

bool KeysStopAtDisabledEntries() {
    return true;
}

std::optional<wxUniChar> PasswordCharacterOf(const wxTextCtrl& box) {
    const auto character = ::SendMessageW(box.GetHandle(), EM_GETPASSWORDCHAR, 0, 0);
    return character == 0 ? std::nullopt : std::optional(wxUniChar(static_cast<unsigned>(character)));
}

bool ShowsWholeText(const wxTextCtrl& box) {
    const auto last = static_cast<WPARAM>(std::max(box.GetLastPosition() - 1, 0L));
    const auto leftOf = [&](WPARAM character) {
        const auto place = ::SendMessageW(box.GetHandle(), EM_POSFROMCHAR, character, 0);
        return static_cast<int>(static_cast<short>(LOWORD(place)));
    };
    const int end = leftOf(last) + box.GetTextExtent(box.GetValue().Last()).x;
    return leftOf(0) >= 0 && end <= box.GetClientSize().x;
}

std::optional<std::string> TipOnScreen() {
    std::optional<std::string> text;
    ::EnumThreadWindows(::GetCurrentThreadId(), NoteTip, std::bit_cast<LPARAM>(&text));
    return text;
}

wxColour HeaderColourOf(wxDataViewCtrl& /*list*/) {
    return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
}

wxString TextOnClipboard() {
    // The toolkit would change the line ends.
    ::OpenClipboard(nullptr);
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    const wxString text(static_cast<const wchar_t*>(::GlobalLock(data)));
    ::GlobalUnlock(data);
    ::CloseClipboard();
    return text;
}

void TypeForeign(wxUniChar character) {
    SendKey(static_cast<WORD>(character.GetValue()), 0);
    SendKey(static_cast<WORD>(character.GetValue()), KEYEVENTF_KEYUP);
}

void PressMenuKey() {
    ::keybd_event(VK_APPS, 0, 0, 0);
    ::keybd_event(VK_APPS, 0, KEYEVENTF_KEYUP, 0);
}

void TurnWheel() {
    INPUT turn{};
    turn.type = INPUT_MOUSE;
    turn.mi.dwFlags = MOUSEEVENTF_WHEEL;
    turn.mi.mouseData = static_cast<DWORD>(-WHEEL_DELTA);
    ::SendInput(1, &turn, sizeof turn);
}

void TypeComposed(wxUniChar character) {
    // A composed character comes as one that the keyboard has.
    TypeForeign(character);
}

void DragBorder(Hands& /*hands*/, const wxPoint& from, const wxPoint& to) {
    // Under Wine a window manager of another system does that, and follows no simulated mouse.
    InWindow([&] { MoveBorder(from, to - from); });
}

} // namespace zy::test
