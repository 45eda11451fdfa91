#include "platform/memory/MemoryNativeWindow.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace zy {

WindowProcedure MemoryNativeWindow::SetProcedure(WindowProcedure procedure) {
    calls_.emplace_back("SetProcedure");
    return std::exchange(procedure_, std::move(procedure));
}

void MemoryNativeWindow::SetPosition(const PixelRect& place, std::uint32_t flags) {
    normal_ = place;
    calls_.push_back("SetPosition " + std::to_string(place.left) + " " + std::to_string(place.top) + " " +
                     std::to_string(place.right - place.left) + " " +
                     std::to_string(place.bottom - place.top) + " flags " + std::to_string(flags));
}

void MemoryNativeWindow::Show(int command) {
    calls_.push_back("Show " + std::to_string(command));
}

void MemoryNativeWindow::SetTwipsPerPixel(double horizontal, double vertical) {
    twipsPerPixelX_ = horizontal;
    twipsPerPixelY_ = vertical;
}

std::intptr_t MemoryNativeWindow::Send(const WindowMessage& message) {
    return procedure_(message);
}

void MemoryNativeWindow::DragTo(const PixelPoint& size) {
    MinMaxInfo bounds;
    bounds.maxTrackSize = screenSize_;
    Send({.window = kHandle, .message = kGetMinMaxInfo, .lParam = std::bit_cast<std::intptr_t>(&bounds)});
    normal_.right = normal_.left + std::clamp(size.x, bounds.minTrackSize.x, bounds.maxTrackSize.x);
    normal_.bottom = normal_.top + std::clamp(size.y, bounds.minTrackSize.y, bounds.maxTrackSize.y);
}

std::intptr_t MemoryNativeWindow::Own(const WindowMessage& message) {
    ownMessages_.push_back(message);
    return kOwnResult;
}

} // namespace zy
