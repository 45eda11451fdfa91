#pragma once

#include <wx/event.h>

#include <deque>
#include <exception>
#include <functional>

#include "controls/Event.h"

namespace zy {

/// The one gate through which the toolkit's events reach the program.
///
/// Exceptions do not pass through the toolkit, parts of which are in C: the gate keeps the first one, ends
/// the event loop and lets nothing more through; whoever ran the loop then calls Rethrow.
class EventGate {
  public:
    EventGate() = default;
    EventGate(const EventGate&) = delete;
    EventGate& operator=(const EventGate&) = delete;
    ~EventGate();

    /// Work that was put off; false when a control refused to be left.
    using Step = std::function<bool()>;

    /// Runs what the user did, behind everything that was put off before it. When a step of that was refused,
    /// all later ones and the action itself are dropped, so that no question is asked twice for one gesture.
    void Act(const std::function<void()>& action);
    /// Puts a step off until the toolkit's own handler is done and no button of the mouse is held down, or
    /// until the next action if that comes first.
    void ActLater(Step step);
    /// Hands on at once what the window system reports, such as a new size, whatever has been put off.
    void Tell(const std::function<void()>& news);
    /// Runs a part of the program that only answers the toolkit's questions.
    void Answer(const std::function<void()>& answer);

    /// Brings the screen up to date before a message box opens.
    void PrepareForBox();
    /// Runs a dialog of the program. What is put off in it does not wait for the action that has opened it.
    void RunDialog(const std::function<void()>& run);
    /// Throws on the exception that was kept, if there is one.
    void Rethrow() const;
    bool HasFailed() const { return failure_ != nullptr; }

    /// Views do now what they do once for a whole action.
    Event<> updateViews;
    /// A message box is about to open: what holds the mouse or the keyboard lets go of it.
    Event<> boxOpening;

  private:
    void Guard(const std::function<void()>& work);
    void AwaitMouse();
    /// Behind every event of the toolkit, those among them that only its own widgets get to know.
    void LookForMouse(wxIdleEvent& event);
    void StopAwaitingMouse();
    void RunPutOff();
    bool Settle();
    void Schedule();

    std::deque<Step> putOff_;
    bool scheduled_ = false;
    bool awaitsMouse_ = false;
    int running_ = 0;
    std::exception_ptr failure_;
};

} // namespace zy
