#include "Screen.h"

#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>

#include <stdexcept>

namespace zy::bench {
namespace {

constexpr std::chrono::microseconds kMoment{200};

} // namespace

Screen::Screen() : display_(::XOpenDisplay(nullptr)) {
    if (!display_) {
        throw std::runtime_error("there is no X display");
    }
    int firstError = 0;
    if (!::XDamageQueryExtension(display_.get(), &damageEvent_, &firstError)) {
        throw std::runtime_error("the X display does not tell what is painted");
    }
    ::XDamageCreate(display_.get(), DefaultRootWindow(display_.get()), XDamageReportRawRectangles);
    ::XFlush(display_.get());
}

std::optional<Clock::time_point> Screen::Painted(int pixels) {
    pollfd connection{.fd = ConnectionNumber(display_.get()), .events = POLLIN, .revents = 0};
    const timespec moment{.tv_sec = 0, .tv_nsec = std::chrono::nanoseconds(kMoment).count()};
    if (::XPending(display_.get()) == 0) {
        ::ppoll(&connection, 1, &moment, nullptr);
    }
    const auto now = Clock::now();
    bool painted = false;
    while (::XPending(display_.get()) > 0) {
        XEvent event{};
        ::XNextEvent(display_.get(), &event);
        if (event.type == damageEvent_ + XDamageNotify) {
            const auto& area = reinterpret_cast<const XDamageNotifyEvent&>(event).area;
            painted = painted || area.width * area.height >= pixels;
        }
    }
    return painted ? std::optional(now) : std::nullopt;
}

void Screen::Forget() {
    ::XSync(display_.get(), True);
}

void Screen::PushKey(KeySym key) {
    FakeKey(key, true);
}

void Screen::LetGoOfKey(KeySym key) {
    FakeKey(key, false);
}

void Screen::Press(KeySym key) {
    PushKey(key);
    LetGoOfKey(key);
}

void Screen::Click(int x, int y) {
    constexpr unsigned kLeftButton = 1;
    ::XTestFakeMotionEvent(display_.get(), -1, x, y, CurrentTime);
    ::XTestFakeButtonEvent(display_.get(), kLeftButton, True, CurrentTime);
    ::XTestFakeButtonEvent(display_.get(), kLeftButton, False, CurrentTime);
    ::XFlush(display_.get());
}

void Screen::FakeKey(KeySym key, bool down) {
    ::XTestFakeKeyEvent(display_.get(), ::XKeysymToKeycode(display_.get(), key), down ? True : False,
                        CurrentTime);
    ::XFlush(display_.get());
}

} // namespace zy::bench
