#include "HeldMouse.h"

#include <X11/Xlib.h>

#include <stdexcept>

namespace zy::test {

HeldMouse::HeldMouse() : display_(::XOpenDisplay(nullptr)) {
    const auto got = ::XGrabPointer(display_.get(), DefaultRootWindow(display_.get()), False, 0,
                                    GrabModeAsync, GrabModeAsync, None, None, CurrentTime);
    if (got != GrabSuccess) {
        throw std::runtime_error("somebody has the mouse already");
    }
}

void HeldMouse::CloseDisplay::operator()(_XDisplay* display) const {
    ::XCloseDisplay(display);
}

} // namespace zy::test
