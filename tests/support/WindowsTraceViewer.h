#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "support/WindowsHandles.h"

namespace zy::test {

/// The trace viewer zydebug.exe, which runs beside the test and ends with it.
class WindowsTraceViewer {
  public:
    /// Returns when the viewer can be found; throws when it does not come to that.
    WindowsTraceViewer();
    WindowsTraceViewer(const WindowsTraceViewer&) = delete;
    WindowsTraceViewer& operator=(const WindowsTraceViewer&) = delete;
    ~WindowsTraceViewer();

    /// The next line it prints, without its line end; nothing when none comes in time.
    std::optional<std::string> NextLine();
    /// Ends it in an orderly way, and waits for its end. Returns its exit status; nothing when it does not
    /// end.
    std::optional<unsigned long> Stop();

  private:
    WindowsPipe input_;
    WindowsPipe output_;
    WindowsHandle process_;
    std::string pending_;
};

} // namespace zy::test
