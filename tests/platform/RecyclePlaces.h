#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace zy::test {

/// The home folder that recycled files of the test program go to. GLib asks for it once and remembers it, so
/// that it is the same one for all tests of the program; each finds it empty.
class RecyclePlaces {
  public:
    RecyclePlaces() {
        for (const auto& entry : std::filesystem::directory_iterator(Home())) {
            std::filesystem::remove_all(entry);
        }
    }

    static const std::filesystem::path& Home() {
        static const TemporaryFolder home;
        [[maybe_unused]] static const bool told = [] {
            ::setenv("HOME", home.Path().c_str(), 1);
            ::setenv("XDG_DATA_HOME", (home.Path() / "data").c_str(), 1);
            return true;
        }();
        return home.Path();
    }

    /// The bytes of each file in the desktop's trash.
    static std::vector<std::string> BytesInDesktopTrash() { return BytesIn(Home() / "data/Trash/files"); }
    /// The bytes of each file in the program's own trash.
    static std::vector<std::string> BytesInOwnTrash() { return BytesIn(Home() / "data/zysetup/Trash"); }

  private:
    static std::vector<std::string> BytesIn(const std::filesystem::path& folder) {
        std::vector<std::string> bytes;
        std::error_code missing;
        for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
            std::ifstream in(entry.path(), std::ios::binary);
            bytes.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        }
        return bytes;
    }
};

} // namespace zy::test
