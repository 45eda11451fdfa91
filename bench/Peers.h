#pragma once

#include <string>

#include "Duel.h"

namespace zy::bench {

// Peers of the load and the save of a settings file.

/// GLib's key file, which keeps everything: its load; its text and its save down to the disk, of what is
/// loaded here.
Peer LoadByGlib(const std::string& path);
Peer TextByGlib(const std::string& path);
Peer SaveByGlib(const std::string& path);

/// Reading the whole file and looking at every character once.
Peer Scan(const std::string& path);
Peer OpenReadClose(const std::string& path);
/// Writing the file's bytes to a file beside it and renaming that, without waiting for the disk.
Peer PlainSave(const std::string& path);

} // namespace zy::bench
