#include "shell/SubClasser.h"

#include <cstring>
#include <exception>
#include <utility>

namespace zy {
namespace {

// Fixed: "MinWidth" and "MinHeight" of the registry are read and kept, but nothing writes them, and they do
// not bound the window.
constexpr int kLeastWidth = 8800;
constexpr int kLeastHeight = 8400;

/// Parts of pixels are cut off.
std::int32_t WholePixels(int twips, double twipsPerPixel) {
    return static_cast<std::int32_t>(twips / twipsPerPixel);
}

} // namespace

void SubClasser::InstallMinSizeHook() {
    state_.glOldWndProc =
        window_.SetProcedure([this](const WindowMessage& message) { return MinSizeWndProc(message); });
}

void SubClasser::RemoveMinSizeHook() {
    if (state_.glOldWndProc) {
        window_.SetProcedure(std::exchange(state_.glOldWndProc, nullptr));
    }
}

std::intptr_t SubClasser::MinSizeWndProc(const WindowMessage& message) {
    try {
        return Answer(message);
    } catch (const std::exception&) {
        return 0;
    }
}

std::intptr_t SubClasser::Answer(const WindowMessage& message) {
    if (message.window != window_.Handle()) {
        return 0;
    }
    if (message.message != kGetMinMaxInfo) {
        // Copied, for a message that closes the window takes the hook away.
        const auto own = state_.glOldWndProc;
        return own(message);
    }
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system hands the address over in a number
    auto* const record = reinterpret_cast<void*>(message.lParam);
    if (record == nullptr) {
        return 0;
    }
    MinMaxInfo bounds;
    std::memcpy(&bounds, record, sizeof bounds);
    FillIn(bounds);
    std::memcpy(record, &bounds, sizeof bounds);
    return 0;
}

void SubClasser::FillIn(MinMaxInfo& bounds) {
    bounds.minTrackSize = {WholePixels(kLeastWidth, window_.TwipsPerPixelX()),
                           WholePixels(kLeastHeight, window_.TwipsPerPixelY())};
    bounds.maxTrackSize = window_.ScreenSize();
}

} // namespace zy
