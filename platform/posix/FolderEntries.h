#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zy {

/// What stands in a folder of the system, in no order; empty where that cannot be read.
std::vector<std::filesystem::directory_entry> EntriesIn(const std::string& folder);

} // namespace zy
