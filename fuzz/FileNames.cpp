#include <string>

#include "Targets.h"
#include "platform/posix/PathText.h"

namespace zy::fuzz {

void FileNames(std::string_view input) {
    const PathText text(Windows1252());
    const auto inside = text.NameToInside(input);
    Require(inside.find('\\') == std::string::npos, "a name inside is one part of a path");
    const auto outside = text.NameToOutside(inside);
    const bool canBeAName =
        input.find('\0') == std::string_view::npos && input.find('/') == std::string_view::npos;
    Require(!canBeAName || outside == input, "every name of the system finds its way back");

    const auto given = text.NameToOutside(input);
    const bool isPlain = input.find_first_of("\\\x1A") == std::string_view::npos;
    Require(!given || !isPlain || text.NameToInside(*given) == input, "a plain name finds its way back");
    Require(!given || given->find_first_of(std::string("/\0", 2)) == std::string::npos,
            "no name leads out of its folder");
}

} // namespace zy::fuzz
