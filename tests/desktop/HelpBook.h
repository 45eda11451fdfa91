#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace zy::test {

/// The book that is built with the program.
inline std::string HelpBook() {
    std::ifstream file(ZY_HELP_BOOK, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace zy::test
