#pragma once

#include <type_traits>

#include "platform/World.h"
#include "platform/memory/MemoryFileSystem.h"
#include "platform/memory/MemoryHelpSystem.h"
#include "platform/memory/MemoryJournals.h"
#include "platform/memory/MemoryNativeWindow.h"
#include "platform/memory/MemoryPaper.h"
#include "platform/memory/MemoryRecycleBin.h"
#include "platform/memory/MemoryRegistry.h"
#include "platform/memory/MemoryShellLinks.h"
#include "platform/memory/MemorySystemInfo.h"
#include "platform/memory/MemoryTraceServers.h"
#include "platform/memory/ScriptedDialogs.h"

namespace zy {

// platform/memory: the whole outside world in memory, for tests, benchmarks and fuzzing. It owns one
// implementation of every interface of platform/, each of which can be looked into and be made to fail, and
// calls nothing outside.

/// One of each. At first the system directory "C:\SYS" is an empty folder, the registry is empty, no trace
/// viewer runs, no box is expected, the program is called "zyGlobal", and it was started without an argument.
struct MemoryWorld {
    explicit MemoryWorld(const CodePage& page = Windows1252());

    /// The program's view of this world, which must outlive it.
    World Get() { return With(); }
    /// The same with these parts, each in place of this world's one of its kind.
    template <typename... Parts>
    World With(Parts&... parts) {
        return {.files = Chosen<FileSystem>(files, parts...),
                .system = Chosen<SystemInfo>(system, parts...),
                .traceServers = Chosen<TraceServers>(traceServers, parts...),
                .recycleBin = Chosen<RecycleBin>(recycleBin, parts...),
                .registry = Chosen<Registry>(registry, parts...),
                .links = Chosen<ShellLinks>(links, parts...),
                .journals = Chosen<Journals>(journals, parts...),
                .dialogs = Chosen<Dialogs>(dialogs, parts...),
                .help = Chosen<HelpSystem>(help, parts...),
                .window = Chosen<NativeWindow>(window, parts...),
                .paper = Chosen<Paper>(paper, parts...),
                .codePage = codePage};
    }

    const CodePage& codePage;
    MemoryFileSystem files{codePage};
    MemorySystemInfo system;
    MemoryTraceServers traceServers;
    MemoryRecycleBin recycleBin{files};
    MemoryRegistry registry{codePage};
    MemoryShellLinks links;
    MemoryJournals journals;
    ScriptedDialogs dialogs;
    MemoryHelpSystem help;
    MemoryNativeWindow window;
    MemoryPaper paper;

  private:
    /// The part of that kind; this world's own one where none is given.
    template <typename Kind>
    static Kind& Chosen(Kind& own) {
        return own;
    }
    template <typename Kind, typename First, typename... Others>
    static Kind& Chosen(Kind& own, First& first, Others&... others) {
        if constexpr (std::is_base_of_v<Kind, First>) {
            return first;
        } else {
            return Chosen<Kind>(own, others...);
        }
    }
};

} // namespace zy
