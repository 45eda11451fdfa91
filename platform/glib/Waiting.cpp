#include "platform/glib/Waiting.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zy {
namespace {

using Clock = std::chrono::steady_clock;

int MillisecondsUntil(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    return std::max(0, static_cast<int>(left.count()));
}

/// A context whose work this thread does.
class OwnedContext {
  public:
    explicit OwnedContext(GMainContext* context)
        : context_(context == nullptr ? g_main_context_default() : context) {
        g_main_context_acquire(context_);
    }
    OwnedContext(const OwnedContext&) = delete;
    OwnedContext& operator=(const OwnedContext&) = delete;
    ~OwnedContext() { g_main_context_release(context_); }

    /// Sleeps until there is something to do, but not beyond the end, and does it.
    void Iterate(Clock::time_point end) {
        gint priority = 0;
        g_main_context_prepare(context_, &priority);
        auto watched = Query(priority);
        const int left = MillisecondsUntil(end);
        const int sleep = timeout_ < 0 ? left : std::min(timeout_, left);
        const auto poll = g_main_context_get_poll_func(context_);
        poll(watched.data(), static_cast<guint>(watched.size()), sleep);
        if (g_main_context_check(context_, priority, watched.data(), static_cast<gint>(watched.size())) !=
            0) {
            g_main_context_dispatch(context_);
        }
    }

  private:
    /// What the context waits for.
    std::vector<GPollFD> Query(gint priority) {
        std::vector<GPollFD> watched(1);
        for (;;) {
            const auto room = watched.size();
            watched.resize(static_cast<std::size_t>(g_main_context_query(
                context_, priority, &timeout_, watched.data(), static_cast<gint>(room))));
            if (watched.size() <= room) {
                return watched;
            }
        }
    }

    GMainContext* context_;
    gint timeout_ = -1;
};

} // namespace

bool WaitOn(GMainContext* context, std::chrono::milliseconds patience, const std::function<bool()>& isDone) {
    const auto end = Clock::now() + patience;
    OwnedContext owned(context);
    while (!isDone()) {
        if (Clock::now() >= end) {
            return false;
        }
        owned.Iterate(end);
    }
    return true;
}

} // namespace zy
