#include "dbase/IndexBuilder.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <vector>

#include "dbase/IndexLayout.h"
#include "dbase/LittleEndian.h"

namespace zy::dbase {
namespace {

/// The keys of all records, one behind the other.
class Keys {
  public:
    Keys(const TableImage& table, std::size_t field)
        : length_(table.Fields()[field].width), count_(table.Records()), bytes_(count_ * length_, ' ') {
        for (std::uint32_t record = 0; record < count_; ++record) {
            const auto value = table.Value(record, field);
            value.copy(bytes_.data() + record * length_, value.size());
        }
    }

    std::size_t Length() const { return length_; }
    std::uint32_t Count() const { return count_; }
    std::string_view Of(std::uint32_t record) const { return {bytes_.data() + record * length_, length_}; }

    /// The records in the order of their keys.
    std::vector<std::uint32_t> Sorted() const {
        std::vector<std::uint32_t> records(count_);
        std::iota(records.begin(), records.end(), 0U);
        std::vector<std::uint32_t> sorted(count_);
        for (auto place = length_; place-- != 0;) {
            if (SortBy(place, records, sorted)) {
                records.swap(sorted);
            }
        }
        return records;
    }

  private:
    using Starts = std::array<std::uint32_t, 256>;

    unsigned char At(std::uint32_t record, std::size_t place) const {
        return static_cast<unsigned char>(bytes_[record * length_ + place]);
    }

    /// Sorts by one character of the keys, and keeps the order of those that have the same. False, without
    /// having done anything, when all of them do.
    bool SortBy(std::size_t place, const std::vector<std::uint32_t>& records,
                std::vector<std::uint32_t>& sorted) const {
        Starts starts{};
        for (std::uint32_t record = 0; record < count_; ++record) {
            ++starts[At(record, place)];
        }
        if (std::find(starts.begin(), starts.end(), count_) != starts.end()) {
            return false;
        }
        std::exclusive_scan(starts.begin(), starts.end(), starts.begin(), 0U);
        for (const auto record : records) {
            sorted[starts[At(record, place)]++] = record;
        }
        return true;
    }

    std::size_t length_;
    std::uint32_t count_;
    std::string bytes_;
};

/// A page that is written, and the highest key in it and below it.
struct Page {
    std::uint32_t number;
    std::string_view highest;
};

class IndexWriter {
  public:
    IndexWriter(const Keys& keys, std::string_view expression)
        : keys_(keys), entrySize_(EntrySize(keys.Length())), file_(kPageSize, '\0') {
        PutByte(file_, kKeyLetterAt, 'C');
        Put16(file_, kKeyLengthAt, static_cast<unsigned>(keys.Length()));
        Put16(file_, kKeysPerPageAt, static_cast<unsigned>(KeysPerPage(entrySize_)));
        Put16(file_, kEntrySizeAt, static_cast<unsigned>(entrySize_));
        expression.copy(file_.data() + kExpressionAt, expression.size());
    }

    std::string Write() {
        file_.reserve((keys_.Count() / KeysPerPage(entrySize_) + 1) * kPageSize * 11 / 10 + 4 * kPageSize);
        auto pages = WriteLeaves();
        while (pages.size() > 1) {
            pages = WriteParents(pages);
        }
        Put32(file_, kRootAt, pages.front().number);
        Put32(file_, kPagesAt, PageCount());
        return std::move(file_);
    }

  private:
    std::vector<Page> WriteLeaves() {
        const auto records = keys_.Sorted();
        std::vector<Page> leaves;
        std::size_t written = 0;
        do {
            const auto count = std::min(KeysPerPage(entrySize_), records.size() - written);
            const auto number = AddPage(count);
            std::string_view highest;
            for (std::size_t i = 0; i < count; ++i) {
                const auto record = records[written + i];
                highest = keys_.Of(record);
                PutEntry(number, i, 0, record + 1, highest);
            }
            leaves.push_back({number, highest});
            written += count;
        } while (written != records.size());
        return leaves;
    }

    /// The level above some pages.
    std::vector<Page> WriteParents(const std::vector<Page>& children) {
        const auto most = KeysPerInnerPage(entrySize_) + 1;
        std::vector<Page> parents;
        for (std::size_t first = 0; first != children.size();) {
            const auto rest = children.size() - first;
            // No page may be left over for a parent without a key.
            const auto count = rest == most + 1 ? most - 1 : std::min(most, rest);
            parents.push_back(WriteParent({children.data() + first, count}));
            first += count;
        }
        return parents;
    }

    /// The last child has no key and is not counted.
    Page WriteParent(std::span<const Page> children) {
        const auto keys = children.size() - 1;
        const auto number = AddPage(keys);
        for (std::size_t i = 0; i < keys; ++i) {
            PutEntry(number, i, children[i].number, 0, children[i].highest);
        }
        Put32(file_, EntryPlace(number, keys) + kChildAt, children.back().number);
        return {number, children.back().highest};
    }

    std::uint32_t AddPage(std::size_t entries) {
        const auto number = PageCount();
        file_.resize(file_.size() + kPageSize);
        Put32(file_, number * kPageSize, static_cast<std::uint32_t>(entries));
        return number;
    }

    void PutEntry(std::uint32_t page, std::size_t index, std::uint32_t child, std::uint32_t record,
                  std::string_view key) {
        const auto place = EntryPlace(page, index);
        Put32(file_, place + kChildAt, child);
        Put32(file_, place + kRecordAt, record);
        key.copy(file_.data() + place + kKeyAt, key.size());
    }

    std::size_t EntryPlace(std::uint32_t page, std::size_t index) const {
        return page * kPageSize + kFirstEntryAt + index * entrySize_;
    }

    std::uint32_t PageCount() const { return static_cast<std::uint32_t>(file_.size() / kPageSize); }

    const Keys& keys_;
    std::size_t entrySize_;
    std::string file_;
};

} // namespace

bool CanBeIndexed(const TableField& field) {
    return field.IsText() && field.width >= 1 && field.width <= kLongestKey;
}

std::string BuildIndex(const TableImage& table, std::size_t field) {
    const Keys keys(table, field);
    return IndexWriter(keys, table.Fields()[field].name).Write();
}

} // namespace zy::dbase
