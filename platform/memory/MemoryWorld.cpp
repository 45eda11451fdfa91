#include "platform/memory/MemoryWorld.h"

namespace zy {

MemoryWorld::MemoryWorld(const CodePage& page) : codePage(page) {
    files.AddFolder(system.SystemDirectory());
}

} // namespace zy
