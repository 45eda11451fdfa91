#pragma once

#include <stdexcept>

namespace zy {

/// There is no screen to show anything on.
class NoDisplay : public std::runtime_error {
  public:
    NoDisplay();
};

/// The window toolkit, running from construction to destruction. At most one at a time.
class Toolkit {
  public:
    /// Throws NoDisplay.
    Toolkit();
    ~Toolkit();
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

    /// Runs the event loop until EndLoop.
    void RunLoop();
    void EndLoop();
};

} // namespace zy
