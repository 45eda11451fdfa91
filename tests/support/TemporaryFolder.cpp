#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>

#include "platform/posix/PathText.h"

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

} // namespace

TemporaryFolder::TemporaryFolder() : TemporaryFolder(fs::temp_directory_path()) {}

TemporaryFolder::TemporaryFolder(const fs::path& below) {
    auto name = (below / "zytest-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw fs::filesystem_error("mkdtemp", name, std::error_code(errno, std::generic_category()));
    }
    path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
    Unlock(path_);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::InsidePath() const {
    return PathText(Windows1252()).PathToInside(path_.string());
}

void TemporaryFolder::AddFolder(std::string_view name) const {
    fs::create_directories(path_ / name);
}

void TemporaryFolder::Put(std::string_view name, std::string_view bytes) const {
    std::ofstream out(path_ / name, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) {
        throw fs::filesystem_error("write", path_ / name, std::make_error_code(std::errc::io_error));
    }
}

std::optional<std::string> TemporaryFolder::Get(std::string_view name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(in), {});
}

std::vector<std::string> TemporaryFolder::Names(std::string_view folder) const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(path_ / folder)) {
        if (entry.is_regular_file()) {
            names.insert(entry.path().filename().string());
        }
    }
    return {names.begin(), names.end()};
}

} // namespace zy::test
