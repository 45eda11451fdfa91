#include "platform/RecycleBin.h"

#include <algorithm>

namespace zy {

std::vector<std::string_view> SplitPathList(std::string_view nulSeparatedPaths) {
    std::vector<std::string_view> paths;
    while (!nulSeparatedPaths.empty() && nulSeparatedPaths.front() != '\0') {
        const auto path = nulSeparatedPaths.substr(0, nulSeparatedPaths.find('\0'));
        paths.push_back(path);
        nulSeparatedPaths.remove_prefix(std::min(path.size() + 1, nulSeparatedPaths.size()));
    }
    return paths;
}

} // namespace zy
