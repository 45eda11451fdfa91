#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>

#include "NativeLook.h"

namespace zy::test {

// A test's script runs beside the window: what it does to the window or asks of it runs in the window's own
// thread, between the window's events, also while a message box is open.

/// What a script waited for did not come.
class GaveUp : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

inline constexpr std::chrono::seconds kPatience{20};

/// Runs `work` in the window's thread and returns what it returns.
template <typename Work>
auto InWindow(Work work) {
    using Result = decltype(work());
    const auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
    auto result = task->get_future();
    HandToWindow([task] { (*task)(); });
    if (result.wait_for(kPatience) != std::future_status::ready) {
        throw GaveUp("The window does not answer any more");
    }
    return result.get();
}

/// Waits until a condition, looked at in the window's thread, holds.
void WaitUntil(const std::string& what, const std::function<bool()>& holds);

} // namespace zy::test
