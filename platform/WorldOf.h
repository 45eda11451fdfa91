#pragma once

#include "platform/World.h"

namespace zy {

/// The outside world that a system and a screen make together. A system has its parts as members that are
/// called as those of World.
template <typename System>
World WorldOf(System& system, const ScreenWorld& screen) {
    return {.files = system.files,
            .system = system.system,
            .traceServers = system.traceServers,
            .recycleBin = system.recycleBin,
            .registry = system.registry,
            .links = system.links,
            .dialogs = screen.dialogs,
            .help = screen.help,
            .window = screen.window,
            .codePage = system.codePage};
}

} // namespace zy
