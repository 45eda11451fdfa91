#include "platform/posix/PathResolver.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

namespace zy {
namespace {

constexpr std::string_view kSeparators = "\\/";

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

bool NameExists(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0;
}

} // namespace

std::optional<std::string> PathResolver::Resolve(std::string_view path) const {
    if (path.empty() || kSeparators.find(path.front()) == std::string_view::npos) {
        return std::nullopt;
    }
    // Nearly always the path is right as it stands: then one look is enough.
    const auto exact = ResolveEach(
        path, [this](const std::string&, std::string_view name) { return text_.NameToOutside(name); });
    if (exact && NameExists(*exact)) {
        return exact;
    }
    return ResolveEach(
        path, [this](const std::string& folder, std::string_view name) { return ResolveName(folder, name); });
}

template <typename NameInFolder>
std::optional<std::string> PathResolver::ResolveEach(std::string_view path,
                                                     const NameInFolder& nameInFolder) const {
    std::string resolved;
    while (!path.empty()) {
        const auto name = path.substr(0, path.find_first_of(kSeparators));
        if (!name.empty()) {
            const auto found = nameInFolder(resolved + '/', name);
            if (!found) {
                return std::nullopt;
            }
            resolved += '/' + *found;
        }
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
    return resolved.empty() ? "/" : resolved;
}

std::optional<std::string> PathResolver::ResolveName(const std::string& folder, std::string_view name) const {
    auto exact = text_.NameToOutside(name);
    if (exact && NameExists(folder + *exact)) {
        return exact;
    }
    auto other = FindIgnoringCase(folder, name);
    return other ? other : exact;
}

std::optional<std::string> PathResolver::FindIgnoringCase(const std::string& folder,
                                                          std::string_view name) const {
    const std::unique_ptr<DIR, CloseFolder> entries(::opendir(folder.c_str()));
    const auto wanted = codePage_.UCase(name);
    std::optional<std::string> found;
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        const std::string_view candidate = entry->d_name;
        if (codePage_.UCase(text_.NameToInside(candidate)) == wanted && (!found || candidate < *found)) {
            found = candidate;
        }
    }
    return found;
}

} // namespace zy
