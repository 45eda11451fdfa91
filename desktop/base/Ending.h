#pragma once

#include <functional>

class wxFrame;

namespace zy {

/// Calls `ending` before the system ends the program, for the window's whole life: on Linux by one of the
/// signals that end programs, as at the end of the user's session, of which it then dies without a word; on
/// Windows at the end of the user's session, before the window is asked whether it can be closed. Each system
/// has one file of it.
void ObserveEnding(wxFrame& window, std::function<void()> ending);

} // namespace zy
