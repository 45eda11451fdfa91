#pragma once

#include "platform/posix/CrashNotes.h"
#include "platform/posix/MemoryDumps.h"
#include "platform/posix/PosixWorld.h"

namespace zy {

/// The operating system that the program runs on.
using SystemWorld = PosixWorld;

} // namespace zy
