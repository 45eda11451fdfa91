#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace zy::test {

/// A folder on a disk that a contract test works in, from outside the file system under test. Names are in
/// the code page, and are not followed by any "\".
class Disk {
  public:
    virtual ~Disk() = default;

    virtual FileSystem& Files() = 0;
    /// The path of the folder.
    virtual std::string Folder() const = 0;
    /// The path of a name in the folder.
    std::string Path(std::string_view name) const { return Folder() + '\\' + std::string(name); }

    virtual void AddFolder(std::string_view name) = 0;
    virtual void Put(std::string_view name, std::string_view bytes) = 0;
    virtual std::optional<std::string> Get(std::string_view name) const = 0;
    virtual std::vector<std::string> Names() const = 0;

    /// Written as in 0604: what the owner may do, and what everybody may. The figure between them, the
    /// group's, is not on every system.
    virtual void SetPermissions(std::string_view name, unsigned permissions) = 0;
    virtual std::optional<unsigned> Permissions(std::string_view name) const = 0;

    /// Lets another program hold the folder for a save, or let go of it.
    virtual void HoldFolder(bool held) = 0;

    // These say false, and change nothing, where the system of the tests does not let itself be set so.

    /// Hides a file, as an attribute of its does.
    [[nodiscard]] virtual bool Hide(std::string_view name) = 0;
    /// From here on the user may not read the file.
    [[nodiscard]] virtual bool ForbidReading(std::string_view name) = 0;
    /// From here on the user may not change the folder.
    [[nodiscard]] virtual bool ForbidChanges() = 0;
    /// From here on the user may not look up which names the folder holds.
    [[nodiscard]] virtual bool HideNames() = 0;
    /// Makes a name mean two files that differ by case alone.
    [[nodiscard]] virtual bool PutTwins(std::string_view name) = 0;
    /// From here on no file gets beyond that many bytes.
    [[nodiscard]] virtual bool LimitTo(unsigned bytes) = 0;
};

/// A kind of disk, by a name for the test's name.
struct DiskKind {
    const char* name;
    std::function<std::unique_ptr<Disk>()> make;
};

inline void PrintTo(const DiskKind& kind, std::ostream* out) {
    *out << kind.name;
}

/// In memory, and on the system's real one.
std::vector<DiskKind> DiskKinds();

} // namespace zy::test
