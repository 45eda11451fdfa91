#include "desktop/EventGate.h"

#include <wx/app.h>
#include <wx/utils.h>

#include <utility>

#include "desktop/Native.h"

namespace zy {
namespace {

bool MouseIsDown() {
    const auto mouse = wxGetMouseState();
    return mouse.LeftIsDown() || mouse.MiddleIsDown() || mouse.RightIsDown();
}

} // namespace

EventGate::~EventGate() {
    StopAwaitingMouse();
}

void EventGate::Act(const std::function<void()>& action) {
    Guard([&] {
        if (running_ > 1 || Settle()) {
            action();
        }
    });
}

void EventGate::ActLater(Step step) {
    putOff_.push_back(std::move(step));
    Schedule();
}

void EventGate::Tell(const std::function<void()>& news) {
    Guard(news);
}

void EventGate::Answer(const std::function<void()>& answer) {
    try {
        answer();
    } catch (...) {
        if (!failure_) {
            failure_ = std::current_exception();
        }
        wxTheApp->ExitMainLoop();
    }
}

void EventGate::PrepareForBox() {
    updateViews.Raise();
    boxOpening.Raise();
}

void EventGate::RunDialog(const std::function<void()>& run) {
    const int outer = std::exchange(running_, 0);
    run();
    running_ = outer;
}

void EventGate::Rethrow() const {
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

void EventGate::Guard(const std::function<void()>& work) {
    if (failure_) {
        return;
    }
    ++running_;
    Answer([&] {
        work();
        updateViews.Raise();
    });
    if (--running_ == 0 && !putOff_.empty()) {
        Schedule();
    }
}

void EventGate::RunPutOff() {
    scheduled_ = false;
    if (putOff_.empty() || running_ != 0) {
        // While a message box is open nothing is asked: what was put off waits for its end.
        return;
    }
    if (MouseIsDown()) {
        // A control that is held down would not get to know that a message box has taken the mouse.
        AwaitMouse();
        return;
    }
    Act([] {});
}

void EventGate::AwaitMouse() {
    if (!std::exchange(awaitsMouse_, true)) {
        wxTheApp->Bind(wxEVT_IDLE, &EventGate::LookForMouse, this);
    }
}

void EventGate::LookForMouse(wxIdleEvent& event) {
    event.Skip();
    if (!MouseIsDown()) {
        StopAwaitingMouse();
        Schedule();
    }
}

void EventGate::StopAwaitingMouse() {
    if (std::exchange(awaitsMouse_, false)) {
        wxTheApp->Unbind(wxEVT_IDLE, &EventGate::LookForMouse, this);
    }
}

bool EventGate::Settle() {
    while (!putOff_.empty()) {
        const Step step = std::move(putOff_.front());
        putOff_.pop_front();
        if (!step()) {
            putOff_.clear();
            return false;
        }
    }
    return true;
}

void EventGate::Schedule() {
    if (!std::exchange(scheduled_, true)) {
        RunBehindEvent(*wxTheApp, [this] { RunPutOff(); });
    }
}

} // namespace zy
