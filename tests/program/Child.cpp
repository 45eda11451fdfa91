#include "Child.h"

#include <fstream>
#include <iterator>
#include <thread>

namespace zy::test {

bool WaitUntil(const std::function<bool()>& holds, std::chrono::seconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

std::string Child::Output() const {
    std::ifstream file(output_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::optional<int> Child::Status() {
    if (!status_) {
        status_ = Ended();
    }
    return status_;
}

std::optional<int> Child::WaitForEnd() {
    WaitUntil([this] { return Status().has_value(); });
    return status_;
}

std::optional<int> Child::Stop() {
    AskToEnd();
    return WaitForEnd();
}

} // namespace zy::test
