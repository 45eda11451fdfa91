#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/PathText.h"

namespace zy {

/// Finds the file of the system that a path of the program means.
class PathResolver {
  public:
    explicit PathResolver(const CodePage& codePage) : codePage_(codePage), text_(codePage) {}

    /// The path in the system. Each part is found without regard to case; a name that matches exactly wins,
    /// among several others the first in the order of their bytes. From the first part that does not exist
    /// on, the names are those given, so that a file can be created under it. "/" counts as "\".
    ///
    /// Nothing when no file can have the path: it is not absolute, or a part of it can be no file's name.
    std::optional<std::string> Resolve(std::string_view path) const;

  private:
    /// The path whose parts are named by `nameInFolder`, from the first on; nothing when one has no name.
    template <typename NameInFolder>
    std::optional<std::string> ResolveEach(std::string_view path, const NameInFolder& nameInFolder) const;
    /// The name in the system of one part of a path.
    std::optional<std::string> ResolveName(const std::string& folder, std::string_view name) const;
    std::optional<std::string> FindIgnoringCase(const std::string& folder, std::string_view name) const;

    const CodePage& codePage_;
    PathText text_;
};

} // namespace zy
