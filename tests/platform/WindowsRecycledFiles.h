#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace zy::test {

/// The files that come into the recycle bin while this lives; they are taken out of it in the end. What was
/// there before is left alone.
class WindowsRecycledFiles {
  public:
    WindowsRecycledFiles() : before_(InBin()) {}
    WindowsRecycledFiles(const WindowsRecycledFiles&) = delete;
    WindowsRecycledFiles& operator=(const WindowsRecycledFiles&) = delete;
    ~WindowsRecycledFiles() {
        for (const auto& file : New()) {
            std::error_code ignored;
            std::filesystem::remove(file, ignored);
        }
    }

    /// The bytes of each of them.
    std::vector<std::string> Bytes() const {
        std::vector<std::string> bytes;
        for (const auto& file : New()) {
            std::ifstream in(file, std::ios::binary);
            bytes.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        }
        return bytes;
    }

  private:
    using Paths = std::set<std::filesystem::path>;

    /// Where the shell keeps them: on Windows as files called "$R..." in the folder of each user below the
    /// drive's own, under Wine in the trash of the desktop.
    static Paths InBin() {
        Paths files;
        std::error_code missing;
        for (const auto& user : std::filesystem::directory_iterator(R"(C:\$Recycle.Bin)", missing)) {
            AddFiles(files, user, "$R");
        }
        if (const char* data = std::getenv("XDG_DATA_HOME")) {
            AddFiles(files, std::filesystem::path(std::string("Z:") + data) / "Trash/files", "");
        }
        return files;
    }
    static void AddFiles(Paths& files, const std::filesystem::path& folder, const std::string& front) {
        std::error_code missing;
        for (const auto& file : std::filesystem::directory_iterator(folder, missing)) {
            if (file.path().filename().string().starts_with(front)) {
                files.insert(file);
            }
        }
    }
    Paths New() const {
        Paths files = InBin();
        for (const auto& file : before_) {
            files.erase(file);
        }
        return files;
    }

    Paths before_;
};

} // namespace zy::test
