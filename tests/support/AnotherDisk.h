#pragma once

namespace zy::test {

/// Where folders lie on another disk than those below the system's place for temporary files: shared memory
/// is a disk of its own on every Linux system. Where the temporary files lie there too, it is the same one.
inline constexpr auto kAnotherDisk = "/dev/shm";

} // namespace zy::test
