#pragma once

namespace zy {

/// From here on the system keeps no picture of this process's memory when it breaks off. For memory that
/// holds passwords. What leaves a note then is called all the same.
void ForbidMemoryDumps();

} // namespace zy
