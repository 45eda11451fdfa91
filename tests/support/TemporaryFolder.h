#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zy::test {

/// A new folder of the system that goes, with all that is in it, when this does. Names are the system's.
class TemporaryFolder {
  public:
    /// Below the system's place for temporary files, or below another.
    TemporaryFolder();
    explicit TemporaryFolder(const std::filesystem::path& below);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& Path() const { return path_; }
    /// The path of a name in the folder.
    std::string Path(std::string_view name) const { return (path_ / name).string(); }
    /// The folder's path inside the program.
    std::string InsidePath() const;
    /// The path inside the program of a name, which is the program's.
    std::string InsidePath(std::string_view name) const { return InsidePath() + '\\' + std::string(name); }

    void AddFolder(std::string_view name) const;
    void Put(std::string_view name, std::string_view bytes) const;
    std::optional<std::string> Get(std::string_view name) const;
    /// The names of the regular files, sorted by their bytes.
    std::vector<std::string> Names(std::string_view folder = "") const;

  private:
    std::filesystem::path path_;
};

} // namespace zy::test
