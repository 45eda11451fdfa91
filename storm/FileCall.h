#pragma once

#include <span>
#include <string>
#include <vector>

namespace zy::storm {

/// What a call can fail with, as far as disks and people do that to it: a full disk fails no call that needs
/// no room.
enum FailureKind : unsigned {
    kNoRoom = 1,      ///< ENOSPC
    kBadDisk = 2,     ///< EIO
    kRefused = 4,     ///< EACCES
    kInterrupted = 8, ///< EINTR
    kShort = 16,      ///< half of the bytes are written, and the call says so
};

/// A call of the system that concerns files, and which of its arguments say which ones; -1 where none does.
struct FileCall {
    unsigned number;
    const char* name;
    int folder; ///< an open folder that the path starts from
    int path;
    int file; ///< an open file
    int otherFolder;
    int otherPath;
    int length; ///< how many bytes are to be written
    int flags;  ///< of opening
    unsigned failures;
};

/// All that are looked at.
std::span<const FileCall> FileCalls();
/// Null for a call that concerns no files.
const FileCall* FindFileCall(unsigned number);

/// A failure by the name of its error, as "ENOSPC"; "short" for kShort. 0 where there is none of that name.
FailureKind FailureNamed(const std::string& name);
/// The names of all of these.
std::string NamesOf(unsigned failures);
/// The number of the error; 0 for kShort.
int ErrorOf(FailureKind failure);

} // namespace zy::storm
