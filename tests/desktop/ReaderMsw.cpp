#include "ReaderMsw.h"

#include <wx/string.h>

#include <algorithm>
#include <array>

#include "WindowThread.h"

namespace zy::test {
namespace {

VARIANT Numbered(long child) {
    VARIANT number{};
    number.vt = VT_I4;
    number.lVal = child;
    return number;
}

long NumberIn(const VARIANT& number) {
    return number.vt == VT_I4 ? number.lVal : Reader::kNone;
}

std::string Taken(BSTR text) {
    const std::string taken = text == nullptr ? std::string() : wxString(text).utf8_string();
    ::SysFreeString(text);
    return taken;
}

std::string Line(const Reader& reader, long child) {
    return reader.Role(child) + " '" + reader.Name(child) + '\'';
}

void ReadWindows(HWND window, const std::string& indent, std::vector<std::string>& lines) {
    lines.push_back(indent + Line(Reader(window), CHILDID_SELF));
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (::IsWindowVisible(child) != FALSE) {
            ReadWindows(child, indent + "  ", lines);
        }
    }
}

} // namespace

std::vector<std::string> ReadWindows(HWND window) {
    std::vector<std::string> lines;
    ReadWindows(window, "", lines);
    return lines;
}

Reader::Reader(HWND window) {
    void* object = nullptr;
    ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object);
    object_.reset(static_cast<IAccessible*>(object));
}

std::string Reader::Name(long child) const {
    BSTR name = nullptr;
    object_->get_accName(Numbered(child), &name);
    return Taken(name);
}

std::string Reader::Role(long child) const {
    VARIANT role{};
    object_->get_accRole(Numbered(child), &role);
    std::array<char, 80> text{};
    ::GetRoleTextA(static_cast<DWORD>(NumberIn(role)), text.data(), text.size());
    return text.data();
}

std::string Reader::Description(long child) const {
    BSTR description = nullptr;
    object_->get_accDescription(Numbered(child), &description);
    return Taken(description);
}

long Reader::State(long child) const {
    VARIANT state{};
    object_->get_accState(Numbered(child), &state);
    return state.vt == VT_I4 ? state.lVal : 0;
}

wxRect Reader::Place(long child) const {
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    object_->accLocation(&left, &top, &width, &height, Numbered(child));
    return {left, top, width, height};
}

long Reader::At(const wxPoint& onScreen) const {
    VARIANT child{};
    object_->accHitTest(onScreen.x, onScreen.y, &child);
    return NumberIn(child);
}

long Reader::Neighbour(long child, long direction) const {
    VARIANT neighbour{};
    return object_->accNavigate(direction, Numbered(child), &neighbour) == S_OK ? NumberIn(neighbour) : kNone;
}

long Reader::Focus() const {
    VARIANT child{};
    object_->get_accFocus(&child);
    return NumberIn(child);
}

long Reader::Selected() const {
    VARIANT child{};
    object_->get_accSelection(&child);
    return NumberIn(child);
}

std::string Reader::Action(long child) const {
    BSTR action = nullptr;
    object_->get_accDefaultAction(Numbered(child), &action);
    return Taken(action);
}

void Reader::Do(long child) const {
    object_->accDoDefaultAction(Numbered(child));
}

void Reader::Pick(long child) const {
    object_->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Numbered(child));
}

std::vector<std::string> Reader::Lines() const {
    std::vector<std::string> lines;
    long count = 0;
    object_->get_accChildCount(&count);
    for (long child = 1; child <= count; ++child) {
        lines.push_back(Line(*this, child));
    }
    return lines;
}

HeardEvents::HeardEvents(const wxWindow* window) {
    InWindow([&] {
        heard_.clear();
        window_ = window->GetHandle();
        hook_ = ::SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, Note, ::GetCurrentProcessId(), 0,
                                  WINEVENT_OUTOFCONTEXT);
    });
}

HeardEvents::~HeardEvents() {
    InWindow([&] { ::UnhookWinEvent(hook_); });
}

void HeardEvents::WaitFor(const Heard& event) const {
    WaitUntil("a screen reader learns of event " + std::to_string(event.event),
              [&] { return std::find(heard_.begin(), heard_.end(), event) != heard_.end(); });
}

void HeardEvents::Note(HWINEVENTHOOK /*hook*/, DWORD event, HWND window, LONG object, LONG child,
                       DWORD /*thread*/, DWORD /*time*/) {
    if (window == window_ && object == OBJID_CLIENT) {
        heard_.push_back({.event = event, .child = child});
    }
}

} // namespace zy::test
