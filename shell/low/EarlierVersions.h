#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/Journals.h"
#include "platform/SystemInfo.h"

namespace zy {

/// Copies of what files held before they were saved, among the state that the program keeps for the user:
/// "backups", in it a folder for each folder that files were saved in, in that one for each file, and there
/// the versions, each named by its time in UTC as in "20261122T004107Z". Nobody else may enter the folders,
/// and where one of them is somebody else's or a symbolic link there are no versions.
class EarlierVersions {
  public:
    /// All of these must outlive it.
    EarlierVersions(FileSystem& files, const Journals& journals, SystemInfo& system);

    struct Version {
        std::chrono::sys_seconds time;
        std::string name;
        std::uint64_t size = 0;
    };

    /// Keeps these bytes as a version of a file, unless its newest version holds the same. It stands on the
    /// disk as a whole when this returns None, and else not at all. Its time is now, but later than the
    /// newest version's whatever the clock says. NotFound where the system has no place for it.
    FileError Keep(std::string_view path, std::string_view bytes);
    /// The versions of a file, from the newest on.
    std::vector<Version> Of(std::string_view path);
    /// The bytes of a version; nothing when it cannot be read whole.
    std::optional<std::string> Read(std::string_view path, const Version& version);
    /// Removes the versions of a file that need not be kept, as history/VersionPlan says, and nothing else.
    void Prune(std::string_view path);

  private:
    using Folders = std::vector<std::string>;

    /// The folders on the way to a file's versions, theirs the last; none where there is no place for them.
    Folders FoldersFor(std::string_view path);
    /// Makes those that are missing, and the user's alone of all.
    FileError Enter(const Folders& folders);
    /// The time of a version that is kept now.
    std::chrono::sys_seconds TimeAfter(const std::vector<Version>& versions);
    FileError Write(const std::string& folder, const std::string& name, std::string_view bytes);

    FileSystem& files_;
    const Journals& journals_;
    SystemInfo& system_;
};

} // namespace zy
