#pragma once

#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/HelpSystem.h"
#include "platform/Journals.h"
#include "platform/NativeWindow.h"
#include "platform/Paper.h"
#include "platform/RecycleBin.h"
#include "platform/Registry.h"
#include "platform/ShellLinks.h"
#include "platform/SystemInfo.h"
#include "platform/TraceServers.h"

namespace zy {

/// The part of the outside world that the window toolkit supplies.
struct ScreenWorld {
    Dialogs& dialogs;
    HelpSystem& help;
    NativeWindow& window;
    Paper& paper;
};

/// The outside world, as one program sees it. Whoever builds the program owns the parts and outlives it.
struct World {
    FileSystem& files;
    SystemInfo& system;
    TraceServers& traceServers;
    RecycleBin& recycleBin;
    Registry& registry;
    ShellLinks& links;
    Journals& journals;
    Dialogs& dialogs;
    HelpSystem& help;
    NativeWindow& window;
    Paper& paper;
    const CodePage& codePage;
};

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
            .journals = system.journals,
            .dialogs = screen.dialogs,
            .help = screen.help,
            .window = screen.window,
            .paper = screen.paper,
            .codePage = system.codePage};
}

} // namespace zy
