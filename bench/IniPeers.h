#pragma once

#include <string>

#include "Duel.h"

namespace zy::bench {

/// inih, which hands every key and value on to nobody.
Peer LoadByInih(const std::string& path);
Peer LoadBySimpleIni(const std::string& path);

} // namespace zy::bench
