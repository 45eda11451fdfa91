#include "support/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <set>

#include "support/ThisSystem.h"

namespace zy::test {

namespace fs = std::filesystem;

namespace {

/// Folders that a test has locked could otherwise not be removed.
void Unlock(const fs::path& folder) {
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (const auto& entry : fs::directory_iterator(folder, ignored)) {
        if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
            Unlock(entry.path());
        }
    }
}

/// A new folder for the user alone, under a name that no other program has at the same time.
fs::path MakeFolder(const fs::path& below) {
    std::random_device random;
    auto path = below / ("zytest-" + std::to_string(random()));
    while (!fs::create_directory(path)) {
        path = below / ("zytest-" + std::to_string(random()));
    }
    fs::permissions(path, fs::perms::owner_all);
    return path;
}

} // namespace

TemporaryFolder::TemporaryFolder() : TemporaryFolder(fs::temp_directory_path()) {}

TemporaryFolder::TemporaryFolder(const fs::path& below) : path_(MakeFolder(below)) {}

TemporaryFolder::~TemporaryFolder() {
    Unlock(path_);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::InsidePath() const {
    return PathToInside(path_);
}

void TemporaryFolder::AddFolder(std::string_view name) const {
    fs::create_directories(path_ / FromUtf8(name));
}

void TemporaryFolder::Put(std::string_view name, std::string_view bytes) const {
    std::ofstream out(path_ / FromUtf8(name), std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) {
        throw fs::filesystem_error("write", path_ / FromUtf8(name),
                                   std::make_error_code(std::errc::io_error));
    }
}

std::optional<std::string> TemporaryFolder::Get(std::string_view name) const {
    std::ifstream in(path_ / FromUtf8(name), std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(in), {});
}

std::vector<std::string> TemporaryFolder::Names(std::string_view folder) const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(path_ / FromUtf8(folder))) {
        if (entry.is_regular_file()) {
            names.insert(ToUtf8(entry.path().filename()));
        }
    }
    return {names.begin(), names.end()};
}

} // namespace zy::test
