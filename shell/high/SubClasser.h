#pragma once

#include "platform/NativeWindow.h"
#include "shell/mZYGlobal.h"

namespace zy {

/// Keeps the main window from being made smaller than its least size, by a procedure that gets the window's
/// messages in place of its own.
class SubClasser {
  public:
    SubClasser(NativeWindow& window, SharedState& state) : window_(window), state_(state) {}

    void InstallMinSizeHook();
    void RemoveMinSizeHook();

    /// Answers the question for the bounds of the window's size and hands every other message on. Its own
    /// errors are ignored: a message that cannot be answered gets 0.
    std::intptr_t MinSizeWndProc(const WindowMessage& message);

  private:
    std::intptr_t Answer(const WindowMessage& message);
    void FillIn(MinMaxInfo& bounds);

    NativeWindow& window_;
    SharedState& state_;
};

} // namespace zy
