#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "BigFile.h"
#include "Duel.h"
#include "Row.h"
#include "support/TemporaryFolder.h"

namespace zy::bench {

/// A folder with a big file, and the editor over it.
template <typename Editor>
class Workplace {
  public:
    /// Throws std::runtime_error when the editor does not load what was put there.
    Workplace(const std::filesystem::path& below, int count)
        : folder_(below), records_(CountOf(count, Editor::kFile.records)), editor_(folder_.InsidePath()) {
        folder_.Put(Editor::kFile.name, Editor::kFile.text(count));
        if (Editor::Count(*editor_.Load()) != count) {
            throw std::runtime_error("not all " + records_ + " were loaded");
        }
    }

    const std::string& Records() const { return records_; } ///< "32,767 rules"
    std::string File() const { return folder_.Path(Editor::kFile.name); }
    /// Puts another file there and returns its path.
    std::string Put(const std::string& name, const std::string& bytes) const {
        folder_.Put(name, bytes);
        return folder_.Path(name);
    }

    Seconds Load() {
        return Working([this] { return editor_.Load(); });
    }
    /// The work on what is loaded now: the text that a save writes, and the save.
    Seconds Text() {
        return Working([this, loaded = Loaded()] { return editor_.Text(*loaded); });
    }
    Seconds Save() {
        return Working([this, loaded = Loaded()] { editor_.Save(*loaded); });
    }
    Seconds SyncedSave() {
        return Waiting([this, loaded = Loaded()] { editor_.Save(*loaded); });
    }
    auto Loaded() { return std::shared_ptr(editor_.Load()); }

  private:
    test::TemporaryFolder folder_;
    std::string records_;
    Editor editor_;
};

/// The system's place for temporary files, which is on a disk, and one in memory. There syncing costs
/// nothing, so that what is left is the work itself.
inline std::filesystem::path Disk() {
    return std::filesystem::temp_directory_path();
}
inline std::filesystem::path MemoryDisk() {
    return "/dev/shm";
}

} // namespace zy::bench
