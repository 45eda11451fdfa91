#pragma once

#include <memory>
#include <string_view>

#include "platform/memory/MemoryWorld.h"
#include "platform/posix/PosixFileSystem.h"
#include "rules/mRules.h"

namespace zy::bench {

/// The rules editor without a window, over a folder of the real system. What it loads must not outlive it.
class RulesEditor {
  public:
    /// The folder's path inside the program.
    explicit RulesEditor(std::string_view folder) { rest_.system.SetSystemDirectory(folder); }

    std::unique_ptr<mRules> Load() {
        auto rules = std::make_unique<mRules>(world_, trace_);
        rules->Build_Rules_Array();
        return rules;
    }

  private:
    MemoryWorld rest_;
    PosixFileSystem files_{Windows1252()};
    TraceChannel trace_{rest_.traceServers, "bench"};
    const World world_{.files = files_,
                       .system = rest_.system,
                       .traceServers = rest_.traceServers,
                       .recycleBin = rest_.recycleBin,
                       .dialogs = rest_.dialogs,
                       .codePage = rest_.codePage};
};

} // namespace zy::bench
