#pragma once

#include <string>

#include "platform/CodePage.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The full path of the user table, in capitals and trimmed: what the key "ZYSECURE.SECURITYFILE" of the
/// settings file says, under whatever header, else "ZYSECURE.DBF" in the system directory.
///
/// The last of several such keys counts. A value that starts with a double quote loses its first and its last
/// character, whatever the last one is; a double quote alone is an empty path. More than 32,767 lines are
/// run-time error 6.
std::string SecurityFileLocation(FileSystem& files, SystemInfo& system, const CodePage& codePage,
                                 TraceChannel& trace);

} // namespace zy
