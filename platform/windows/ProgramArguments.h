#pragma once

#include <string_view>

namespace zy {

/// The arguments in a command line of the system, which starts with the program's own name, in double quotes
/// or up to the first blank. Blanks between the two go; those at the end stay.
std::string_view ProgramArguments(std::string_view commandLine);

} // namespace zy
