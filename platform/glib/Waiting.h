#pragma once

#include <glib.h>

#include <chrono>
#include <functional>

namespace zy {

/// Lets a context of GLib's main loop do its work until something is done, and no longer than that. A nullptr
/// is the context in which the window's own events happen. `isDone` is asked at first and behind each piece
/// of work.
///
/// False when the time is over first. That needs no timer: the limit is that of the sleep between two pieces.
bool WaitOn(GMainContext* context, std::chrono::milliseconds patience, const std::function<bool()>& isDone);

} // namespace zy
