#include "platform/memory/MemoryWorld.h"

namespace zy {

MemoryWorld::MemoryWorld(const CodePage& page) : codePage(page) {
    files.AddFolder(system.SystemDirectory());
}

World MemoryWorld::Get() {
    return WorldOf(*this, {.dialogs = dialogs, .help = help, .window = window});
}

} // namespace zy
