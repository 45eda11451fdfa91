#include "platform/memory/MemoryJournals.h"

#include <functional>
#include <iterator>

namespace zy {

class MemoryJournals::Held final : public Journal {
  public:
    Held(MemoryJournals& owner, std::list<Entry>::iterator entry) : owner_(owner), entry_(entry) {
        entry_->isHeld = true;
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held() override {
        if (!isRemoved_) {
            entry_->isHeld = false;
        }
    }

    std::string Read() override { return entry_->bytes; }

    FileError Append(std::string_view piece) override {
        const auto error = owner_.fault("Append");
        // A disk that fills takes what there is room for.
        entry_->bytes += error == FileError::None ? piece : piece.substr(0, piece.size() / 2);
        entry_->changed = owner_.time_;
        return error;
    }

    FileError Sync() override {
        const auto error = owner_.fault("Sync");
        if (error == FileError::None) {
            entry_->synced = entry_->bytes.size();
        }
        return error;
    }

    FileError Remove() override {
        const auto error = owner_.fault("Remove");
        if (error == FileError::None) {
            owner_.entries_.erase(entry_);
            isRemoved_ = true;
        }
        return error;
    }

    std::chrono::local_seconds LastChange() override { return entry_->changed; }

  private:
    MemoryJournals& owner_;
    std::list<Entry>::iterator entry_;
    bool isRemoved_ = false;
};

OpenedJournal MemoryJournals::Create(std::string_view kind, Secrecy /*secrecy*/) {
    const auto error = fault("Create");
    if (error != FileError::None) {
        return {nullptr, error};
    }
    entries_.push_back({std::string(kind), {}, time_});
    return {std::make_unique<Held>(*this, std::prev(entries_.end())), FileError::None};
}

std::vector<std::unique_ptr<Journal>> MemoryJournals::Orphans(std::string_view kind, Secrecy /*secrecy*/) {
    std::vector<std::unique_ptr<Journal>> orphans;
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
        if (entry->kind == kind && !entry->isHeld) {
            orphans.insert(orphans.begin(), std::make_unique<Held>(*this, entry));
        }
    }
    return orphans;
}

std::string MemoryJournals::Fingerprint(std::string_view bytes) const {
    return std::to_string(std::hash<std::string_view>()(bytes));
}

} // namespace zy
