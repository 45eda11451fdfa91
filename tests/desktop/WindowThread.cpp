#include "WindowThread.h"

#include <thread>

namespace zy::test {

void WaitUntil(const std::string& what, const std::function<bool()>& holds) {
    constexpr std::chrono::milliseconds kPause{5};
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!InWindow(holds)) {
        if (std::chrono::steady_clock::now() > end) {
            throw GaveUp("Waited in vain until " + what);
        }
        std::this_thread::sleep_for(kPause);
    }
}

} // namespace zy::test
