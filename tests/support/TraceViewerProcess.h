#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/ChildProcess.h"

namespace zy::test {

/// The trace viewer `zydebug`, running on the session bus that the environment names.
class TraceViewerProcess {
  public:
    /// Returns when the viewer is listening; throws when it does not come to that.
    TraceViewerProcess();

    /// The next line it prints; nothing when none comes.
    std::optional<std::string> NextLine() { return process_.Output().Next(); }
    /// Ends it as Ctrl+C does, and waits for its end. Returns its exit status.
    std::optional<int> Stop();

    /// The path of the program.
    static std::string ProgramPath();

  private:
    ChildProcess process_;
};

} // namespace zy::test
