#include "index/IndexChecks.h"

#include <algorithm>
#include <vector>

#include "dbase/Errors.h"
#include "dbase/IndexBuilder.h"

namespace zy::dbase {
namespace {

using Entries = std::vector<IndexFile::Entry>;

class Checks {
  public:
    Checks(const TableImage& table, const IndexFile& index) : table_(table), index_(index) {}

    void Run() {
        FindField();
        const auto entries = index_.Walk();
        std::vector<bool> listed(table_.Records());
        for (const auto& entry : entries) {
            CheckEntry(entry, listed);
        }
        for (std::uint32_t record = 0; record < table_.Records(); ++record) {
            if (!listed[record] && !(index_.IsUnique() && HasEarlierEqual(entries, record))) {
                Refuse("it lacks record " + std::to_string(record + 1));
            }
        }
    }

  private:
    void FindField() {
        const auto field = table_.FindField(index_.Expression());
        if (!field || !CanBeIndexed(table_.Fields()[*field])) {
            Refuse("its keys are not a text column of the table");
        }
        // Some programs round the length of the keys up.
        const auto width = table_.Fields()[*field].width;
        if (index_.KeyLength() != width && index_.KeyLength() != (width + 3) / 4 * 4) {
            Refuse("its keys have " + std::to_string(index_.KeyLength()) + " characters, the column has " +
                   std::to_string(width));
        }
        field_ = *field;
    }

    void CheckEntry(const IndexFile::Entry& entry, std::vector<bool>& listed) const {
        if (entry.record == 0 || entry.record > table_.Records()) {
            Refuse("it lists record " + std::to_string(entry.record) + " of " +
                   std::to_string(table_.Records()));
        }
        const auto record = entry.record - 1;
        if (listed[record]) {
            Refuse("it lists record " + std::to_string(entry.record) + " twice");
        }
        listed[record] = true;
        if (WithoutFiller(entry.key) != table_.Value(record, field_)) {
            Refuse("the key of record " + std::to_string(entry.record) + " is not its value");
        }
    }

    bool HasEarlierEqual(const Entries& entries, std::uint32_t record) const {
        std::string key(table_.Value(record, field_));
        key.resize(index_.KeyLength(), ' ');
        const auto found =
            std::lower_bound(entries.begin(), entries.end(), std::string_view(key),
                             [](const auto& entry, auto wanted) { return entry.key < wanted; });
        return found != entries.end() && found->key == key && found->record <= record;
    }

    [[noreturn]] void Refuse(std::string_view why) const { RaiseBadFormat(index_.Path(), why); }

    const TableImage& table_;
    const IndexFile& index_;
    std::size_t field_ = 0;
};

} // namespace

void RequireIndexOf(const TableImage& table, const IndexFile& index) {
    Checks(table, index).Run();
}

} // namespace zy::dbase
