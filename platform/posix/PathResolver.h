#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileError.h"
#include "platform/posix/Links.h"
#include "platform/posix/PathText.h"

namespace zy {

/// A folder that the program knows from its start on: its path in the program and the one in the system.
struct KnownFolder {
    std::string inside;
    std::string outside;
};

/// Finds the file of the system that a path of the program means.
///
/// A path that leads through a known folder, without regard to case, means that folder, whatever else it
/// could mean: what the program has put together itself reaches the place it came from, though it went
/// through capitals or through a folder that cannot be listed. Where a path leads through several, the one
/// furthest down counts; of two that differ by case alone the one that matches exactly, else the first.
class PathResolver {
  public:
    explicit PathResolver(const CodePage& codePage, std::vector<KnownFolder> known = {});

    /// The path in the system. Each part behind a known folder is found without regard to case; a name that
    /// matches exactly wins, among several others the first in the order of their bytes. From the first part
    /// that does not exist on, the names are those given, so that a file can be created under it. "/" counts
    /// as "\", and "." as nothing.
    ///
    /// Nothing when no file can have the path: it is not absolute, or a part of it can be no file's name.
    std::optional<std::string> Resolve(std::string_view path) const;

    /// The same, behind the symbolic links that the path ends in: NotFound when no file can have the path,
    /// LinkLoop when they come to no end.
    LinkEnd ResolveLinks(std::string_view path) const;

    /// Whether it is certain which place the path means, as FileSystem::Locate says.
    FileError Locate(std::string_view path) const;

  private:
    /// Where the search for a path begins, and the parts to look for from there on.
    struct Start {
        std::string folder;
        std::string_view rest;
    };
    /// The names in a folder that are equal but for case, or why they cannot be listed.
    struct Names {
        std::vector<std::string> found;
        int error = 0;
    };

    /// Whether two names are equal but for case.
    bool IsSame(std::string_view left, std::string_view right) const;
    Start StartOf(std::string_view path) const;
    /// The parts of a path behind a folder; nothing when it does not lead through that.
    std::optional<std::string_view> Behind(std::string_view folder, std::string_view path) const;
    /// The path whose parts are named by `nameInFolder`, from the first on; nothing when one has no name.
    template <typename NameInFolder>
    std::optional<std::string> ResolveEach(const Start& start, const NameInFolder& nameInFolder) const;
    /// The name in the system of one part of a path.
    std::optional<std::string> ResolveName(const std::string& folder, std::string_view name) const;
    Names NamesIgnoringCase(const std::string& folder, std::string_view name) const;

    const CodePage& codePage_;
    PathText text_;
    std::vector<KnownFolder> known_;
};

} // namespace zy
