#include "platform/posix/PathResolver.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "platform/posix/ErrorNumber.h"

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

bool IsAbsolute(std::string_view path) {
    return !path.empty() && kSeparators.find(path.front()) != std::string_view::npos;
}

/// Takes the next name off the front of a path; empty at its end.
std::string_view TakeName(std::string_view& path) {
    std::string_view name;
    do {
        path.remove_prefix(std::min(path.find_first_not_of(kSeparators), path.size()));
        name = path.substr(0, path.find_first_of(kSeparators));
        path.remove_prefix(name.size());
    } while (name == ".");
    return name;
}

const dirent* NextEntry(DIR& folder) {
    errno = 0;
    return ::readdir(&folder);
}

/// What is missing is certain; what cannot be looked at is not.
FileError Uncertainty(int errorNumber) {
    const auto error = ToFileError(errorNumber);
    return error == FileError::NotFound ? FileError::None : error;
}

} // namespace

PathResolver::PathResolver(const CodePage& codePage, std::vector<KnownFolder> known)
    : codePage_(codePage), text_(codePage), known_(std::move(known)) {
    // Every path leads through the root folder, which says nothing.
    std::erase_if(known_, [](const KnownFolder& folder) { return folder.inside.empty(); });
}

std::optional<std::string> PathResolver::Resolve(std::string_view path) const {
    if (!IsAbsolute(path)) {
        return std::nullopt;
    }
    const auto start = StartOf(path);
    // Nearly always the path is right as it stands: then one look is enough.
    auto exact = ResolveEach(
        start, [this](const std::string&, std::string_view name) { return text_.NameToOutside(name); });
    if (exact && NameExists(*exact)) {
        return exact;
    }
    return ResolveEach(start, [this](const std::string& folder, std::string_view name) {
        return ResolveName(folder, name);
    });
}

LinkEnd PathResolver::ResolveLinks(std::string_view path) const {
    auto resolved = Resolve(path);
    return resolved ? FollowLinks(std::move(*resolved)) : LinkEnd{.path = "", .error = FileError::NotFound};
}

FileError PathResolver::Locate(std::string_view path) const {
    auto [place, rest] = IsAbsolute(path) ? StartOf(path) : Start{};
    for (auto name = TakeName(rest); !name.empty(); name = TakeName(rest)) {
        const auto names = NamesIgnoringCase(place + '/', name);
        if (names.error != 0 || names.found.empty()) {
            return Uncertainty(names.error);
        }
        if (names.found.size() > 1) {
            return FileError::Ambiguous;
        }
        place += '/' + names.found.front();
    }
    struct stat status {};
    return Uncertainty(::stat(place.c_str(), &status) == 0 ? 0 : errno);
}

PathResolver::Start PathResolver::StartOf(std::string_view path) const {
    Start start{.folder = "", .rest = path};
    for (const auto& folder : known_) {
        const auto rest = Behind(folder.inside, path);
        const bool isExact = path.starts_with(folder.inside);
        if (rest && (rest->size() < start.rest.size() || (isExact && rest->size() == start.rest.size()))) {
            start = {.folder = folder.outside, .rest = *rest};
        }
    }
    return start;
}

std::optional<std::string_view> PathResolver::Behind(std::string_view folder, std::string_view path) const {
    for (auto name = TakeName(folder); !name.empty(); name = TakeName(folder)) {
        if (!IsSame(TakeName(path), name)) {
            return std::nullopt;
        }
    }
    return path;
}

bool PathResolver::IsSame(std::string_view left, std::string_view right) const {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [this](char l, char r) { return codePage_.Upper(l) == codePage_.Upper(r); });
}

template <typename NameInFolder>
std::optional<std::string> PathResolver::ResolveEach(const Start& start,
                                                     const NameInFolder& nameInFolder) const {
    auto [resolved, rest] = start;
    for (auto name = TakeName(rest); !name.empty(); name = TakeName(rest)) {
        const auto found = nameInFolder(resolved + '/', name);
        if (!found) {
            return std::nullopt;
        }
        resolved += '/' + *found;
    }
    return resolved.empty() ? "/" : resolved;
}

std::optional<std::string> PathResolver::ResolveName(const std::string& folder, std::string_view name) const {
    auto exact = text_.NameToOutside(name);
    if (exact && NameExists(folder + *exact)) {
        return exact;
    }
    const auto others = NamesIgnoringCase(folder, name).found;
    const auto first = std::min_element(others.begin(), others.end());
    return first != others.end() ? *first : exact;
}

PathResolver::Names PathResolver::NamesIgnoringCase(const std::string& folder, std::string_view name) const {
    const std::unique_ptr<DIR, CloseFolder> entries(::opendir(folder.c_str()));
    if (!entries) {
        return {.found = {}, .error = errno};
    }
    Names names;
    while (const dirent* entry = NextEntry(*entries)) {
        if (IsSame(text_.NameToInside(entry->d_name), name)) {
            names.found.emplace_back(entry->d_name);
        }
    }
    names.error = errno;
    return names;
}

} // namespace zy
