#include "Hands.h"

#include <wx/uiaction.h>

#include <thread>

#include "NativeLook.h"
#include "WindowThread.h"

namespace zy::test {

Hands::Hands() : simulator_(InWindow([] { return std::make_unique<wxUIActionSimulator>(); })) {}

Hands::~Hands() = default;

void Hands::Press(int key, int modifiers) {
    InWindow([&] { simulator_->Char(key, modifiers); });
}

void Hands::Type(const std::string& text) {
    InWindow([&] { simulator_->Text(text.c_str()); });
}

void Hands::Click(const wxPoint& place) {
    PushMouse(place);
    LetGoOfMouse();
}

void Hands::RightClick(const wxPoint& place) {
    InWindow([&] { simulator_->MouseMove(place); });
    InWindow([&] { simulator_->MouseDown(wxMOUSE_BTN_RIGHT); });
    InWindow([&] { simulator_->MouseUp(wxMOUSE_BTN_RIGHT); });
}

void Hands::TurnWheelOver(const wxPoint& place) {
    InWindow([&] { simulator_->MouseMove(place); });
    TurnWheel();
}

void Hands::PointAt(const wxPoint& place) {
    InWindow([&] { simulator_->MouseMove(place - wxPoint(1, 0)); });
    InWindow([&] { simulator_->MouseMove(place); });
}

void Hands::PushMouse(const wxPoint& place) {
    InWindow([&] { simulator_->MouseMove(place); });
    InWindow([&] { simulator_->MouseDown(); });
}

void Hands::LetGoOfMouse() {
    InWindow([&] { simulator_->MouseUp(); });
}

void Hands::Drag(const wxPoint& from, const wxPoint& to, std::chrono::milliseconds pause) {
    PushMouse(from);
    constexpr int kSteps = 10;
    for (int step = 1; step <= kSteps; ++step) {
        std::this_thread::sleep_for(pause);
        InWindow([&] { simulator_->MouseMove(from + (to - from) * step / kSteps); });
    }
    std::this_thread::sleep_for(pause);
    LetGoOfMouse();
}

void Hands::DragWindow(const wxPoint& from, const wxPoint& to) {
    DragBorder(*this, from, to);
}

void Hands::ClickWith(int key, const wxPoint& place) {
    // A mouse that comes from another window brings the state of the real keyboard with it, after a while.
    constexpr std::chrono::milliseconds kUntilItHasCome{200};
    InWindow([&] { simulator_->MouseMove(place); });
    std::this_thread::sleep_for(kUntilItHasCome);
    HoldKey(key);
    Click(place);
    LetGoOfKey(key);
}

void Hands::HoldKey(int key) {
    InWindow([&] { simulator_->KeyDown(key); });
}

void Hands::LetGoOfKey(int key) {
    InWindow([&] { simulator_->KeyUp(key); });
}

} // namespace zy::test
