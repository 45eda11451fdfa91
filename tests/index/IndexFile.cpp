#include "index/IndexFile.h"

#include <utility>

#include "basics/Text.h"
#include "dbase/Errors.h"
#include "dbase/IndexLayout.h"
#include "dbase/LittleEndian.h"

namespace zy::dbase {
namespace {

/// More levels than the pages of any file could fill.
constexpr int kMostLevels = 32;

} // namespace

/// A page whose number and count of entries have been checked.
struct IndexFile::PageView {
    std::string_view bytes;
    std::size_t entrySize;
    std::size_t keyLength;

    std::size_t Count() const { return Get32(bytes, 0); }
    /// The kind shows in the first child, which is there even when no entry is.
    bool IsLeaf() const { return Child(0) == 0; }
    /// In an inner page there is one more child than entries.
    std::uint32_t Child(std::size_t i) const { return Get32(bytes, Place(i) + kChildAt); }
    std::uint32_t Record(std::size_t i) const { return Get32(bytes, Place(i) + kRecordAt); }
    std::string_view Key(std::size_t i) const { return bytes.substr(Place(i) + kKeyAt, keyLength); }

  private:
    std::size_t Place(std::size_t i) const { return kFirstEntryAt + i * entrySize; }
};

IndexFile::IndexFile(std::string file, std::string path) : file_(std::move(file)), path_(std::move(path)) {
    if (file_.size() < 2 * kPageSize) {
        Refuse("it has " + std::to_string(file_.size()) + " bytes, an index at least 1024");
    }
    pages_ = Get32(file_, kPagesAt);
    keyLength_ = Get16(file_, kKeyLengthAt);
    entrySize_ = Get16(file_, kEntrySizeAt);
    CheckHeader();
}

std::string_view IndexFile::Expression() const {
    const auto rest = std::string_view(file_).substr(kExpressionAt, kPageSize - kExpressionAt);
    return Trim(rest.substr(0, rest.find('\0')));
}

bool IndexFile::IsUnique() const {
    return ByteAt(file_, kUniqueAt) != 0;
}

void IndexFile::CheckHeader() const {
    if (const auto held = file_.size() / kPageSize; pages_ < 2 || pages_ > held) {
        Refuse("byte 4 says that it has " + std::to_string(pages_) + " pages, but the file holds " +
               std::to_string(held));
    }
    if (const auto root = Get32(file_, kRootAt); root == 0 || root >= pages_) {
        Refuse("byte 0 names page " + std::to_string(root) + " of " + std::to_string(pages_) +
               " as the root");
    }
    if (Get16(file_, kKeyTypeAt) != 0) {
        Refuse("its keys are not text");
    }
    if (keyLength_ == 0 || keyLength_ > kLongestKey) {
        Refuse("byte 12 says that its keys have " + std::to_string(keyLength_) + " characters");
    }
    if (entrySize_ < kKeyAt + keyLength_ || entrySize_ > EntrySize(kLongestKey)) {
        Refuse("byte 18 says that its entries have " + std::to_string(entrySize_) + " bytes for keys of " +
               std::to_string(keyLength_));
    }
    if (Get16(file_, kKeysPerPageAt) > KeysPerPage(entrySize_)) {
        Refuse("byte 14 says that a page has " + std::to_string(Get16(file_, kKeysPerPageAt)) +
               " keys, which do not fit");
    }
}

IndexFile::PageView IndexFile::View(std::uint32_t number) const {
    if (number == 0 || number >= pages_) {
        Refuse("there is a page " + std::to_string(number) + " in it, beyond its " + std::to_string(pages_) +
               " pages");
    }
    const PageView page{std::string_view(file_).substr(number * kPageSize, kPageSize), entrySize_,
                        keyLength_};
    if (page.Count() > KeysPerPage(entrySize_)) {
        RefusePage(number, "counts " + std::to_string(page.Count()) + " entries");
    }
    return page;
}

void IndexFile::Refuse(std::string_view why) const {
    RaiseBadFormat(path_, why);
}

void IndexFile::RefusePage(std::uint32_t page, std::string_view why) const {
    Refuse("page " + std::to_string(page) + " " + std::string(why));
}

class IndexFile::Walker {
  public:
    explicit Walker(const IndexFile& index) : index_(index), seen_(index.pages_) {}

    std::vector<Entry> Walk() {
        Page(Get32(index_.file_, kRootAt), 1);
        return std::move(entries_);
    }

  private:
    void Page(std::uint32_t number, int level) {
        const auto page = index_.View(number);
        if (seen_[number] || level > kMostLevels) {
            index_.RefusePage(number, "is in a loop");
        }
        seen_[number] = true;
        if (page.IsLeaf()) {
            Leaf(number, page, level);
        } else {
            Inner(number, page, level);
        }
    }

    void Inner(std::uint32_t number, const PageView& page, int level) {
        if (page.Count() == 0) {
            index_.RefusePage(number, "has one child and no key");
        }
        for (std::size_t i = 0; i < page.Count(); ++i) {
            Page(page.Child(i), level + 1);
            separator_ = page.Key(i);
            if (entries_.back().key > *separator_) {
                index_.RefusePage(number, "has a key below those of its child");
            }
        }
        Page(page.Child(page.Count()), level + 1);
    }

    void Leaf(std::uint32_t number, const PageView& page, int level) {
        leafLevel_ = leafLevel_.value_or(level);
        if (*leafLevel_ != level) {
            index_.RefusePage(number, "is a leaf on another level than the first");
        }
        if (page.Count() == 0 && level != 1) {
            index_.RefusePage(number, "is an empty leaf");
        }
        for (std::size_t i = 0; i < page.Count(); ++i) {
            if (page.Child(i) != 0) {
                index_.RefusePage(number, "has children behind its first entry");
            }
            Add(number, {page.Key(i), page.Record(i)});
        }
    }

    void Add(std::uint32_t number, const Entry& entry) {
        const bool isBelow = !entries_.empty() && std::pair(entry.key, entry.record) <=
                                                      std::pair(entries_.back().key, entries_.back().record);
        if (isBelow || (separator_ && entry.key < *separator_)) {
            index_.RefusePage(number, "has a key out of order");
        }
        separator_.reset();
        entries_.push_back(entry);
    }

    const IndexFile& index_;
    std::vector<bool> seen_;
    std::vector<Entry> entries_;
    std::optional<int> leafLevel_;
    std::optional<std::string_view> separator_; ///< the key between the last leaf and the next one
};

class IndexFile::Searcher {
  public:
    Searcher(const IndexFile& index, std::string_view key) : index_(index), key_(key) {}

    /// The first entry below a page whose key is not less.
    std::optional<Entry> Search(std::uint32_t number, int level) {
        const auto page = index_.View(number);
        if (++visited_ > index_.pages_ || level > kMostLevels) {
            index_.RefusePage(number, "is in a loop");
        }
        std::size_t i = 0;
        while (i != page.Count() && page.Key(i) < key_) {
            ++i;
        }
        if (page.IsLeaf()) {
            return i == page.Count() ? std::nullopt : std::optional(Entry{page.Key(i), page.Record(i)});
        }
        std::optional<Entry> found;
        for (; !found && i <= page.Count(); ++i) {
            found = Search(page.Child(i), level + 1);
        }
        return found;
    }

  private:
    const IndexFile& index_;
    std::string_view key_;
    std::uint32_t visited_ = 0;
};

std::vector<IndexFile::Entry> IndexFile::Walk() const {
    return Walker(*this).Walk();
}

std::optional<std::uint32_t> IndexFile::Find(std::string_view key) const {
    std::string filled(RTrim(key));
    if (filled.size() > keyLength_) {
        return std::nullopt;
    }
    filled.resize(keyLength_, ' ');
    const auto found = Searcher(*this, filled).Search(Get32(file_, kRootAt), 1);
    return found && found->key == filled ? std::optional(found->record) : std::nullopt;
}

} // namespace zy::dbase
