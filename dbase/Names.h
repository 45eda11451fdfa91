#pragma once

#include <algorithm>
#include <string_view>

namespace zy::dbase {

// Names of fields and keywords are ASCII.

inline char AsciiCapital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline bool IsSameName(std::string_view left, std::string_view right) {
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [](char l, char r) { return AsciiCapital(l) == AsciiCapital(r); });
}

} // namespace zy::dbase
