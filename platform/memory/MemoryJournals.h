#pragma once

#include <functional>
#include <list>
#include <string>
#include <string_view>

#include "platform/Journals.h"

namespace zy {

/// Journals that can be looked into. They outlive the session that noted them, as long as this object lives.
class MemoryJournals final : public Journals {
  public:
    struct Entry {
        std::string kind;
        std::string bytes;
        std::chrono::local_seconds changed;
        std::size_t synced = 0; ///< how many of the bytes would outlive a power cut
        bool isHeld = false;    ///< a living session has it
    };

    OpenedJournal Create(std::string_view kind, Secrecy secrecy) override;
    std::vector<std::unique_ptr<Journal>> Orphans(std::string_view kind, Secrecy secrecy) override;
    std::string Fingerprint(std::string_view bytes) const override;

    /// The journals that are there, from the earliest to the latest.
    std::list<Entry>& Entries() { return entries_; }
    /// What the next thing noted is noted at.
    void SetTime(std::chrono::local_seconds time) { time_ = time; }
    /// Asked before each "Create", "Append", "Sync" and "Remove", which fails by the answer.
    std::function<FileError(std::string_view operation)> fault = [](std::string_view) {
        return FileError::None;
    };

  private:
    class Held;

    std::list<Entry> entries_;
    std::chrono::local_seconds time_{};
};

} // namespace zy
