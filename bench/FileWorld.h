#pragma once

#include <string_view>

#include "platform/memory/MemoryWorld.h"
#include "platform/posix/PosixFileSystem.h"
#include "shell/TraceChannel.h"

namespace zy::bench {

/// The outside of a program without a window: its files are those of the real system, all else is in memory.
class FileWorld {
  public:
    /// The system directory is given by its path inside the program.
    explicit FileWorld(std::string_view systemDirectory) { rest_.system.SetSystemDirectory(systemDirectory); }

    const World& Get() const { return world_; }
    TraceChannel& Trace() { return trace_; }

  private:
    MemoryWorld rest_;
    PosixFileSystem files_{Windows1252()};
    TraceChannel trace_{rest_.traceServers, "bench"};
    const World world_ = rest_.With(files_);
};

} // namespace zy::bench
