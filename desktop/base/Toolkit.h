#pragma once

#include <stdexcept>

namespace zy {

/// Nothing can be shown, not even an error. It says why, and what to do about it.
class CannotShow : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The window toolkit, running from construction to destruction. At most one at a time.
class Toolkit {
  public:
    /// Throws CannotShow where there is no display, or no font.
    Toolkit();
    ~Toolkit();
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

    /// Runs the event loop until EndLoop.
    void RunLoop();
    void EndLoop();
};

} // namespace zy
