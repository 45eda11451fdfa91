#pragma once

#include <memory>

struct _XDisplay; // NOLINT(bugprone-reserved-identifier): the name is the window system's own

namespace zy::test {

/// Another program that has taken the mouse, as a window manager does while it looks at a click.
class HeldMouse {
  public:
    HeldMouse();

  private:
    struct CloseDisplay {
        void operator()(_XDisplay* display) const;
    };

    std::unique_ptr<_XDisplay, CloseDisplay> display_;
};

} // namespace zy::test
