#include "history/RowPairs.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace zy {
namespace {

/// A row as the name of itself: equal rows are one name.
struct WholeRow {
    const RowTexts* rows;
    int row;

    friend bool operator==(const WholeRow& a, const WholeRow& b) {
        return HaveSameTexts(*a.rows, a.row, *b.rows, b.row);
    }
};

struct HashOfRow {
    std::size_t operator()(const WholeRow& name) const {
        constexpr std::size_t kOdd = 0x9E3779B1U;
        std::size_t hash = 0;
        for (int column = 0; column < name.rows->Columns(); ++column) {
            hash = hash * kOdd + std::hash<std::string_view>()(name.rows->Text(name.row, column));
        }
        return hash;
    }
};

/// Rows that wait for others of the same name.
template <typename Name, typename Hash>
class WaitingRows {
  public:
    /// They are rows of a list of so many.
    explicit WaitingRows(int rows) : next_(static_cast<std::size_t>(rows), kNoRow) {}

    bool IsEmpty() const { return first_.empty(); }
    /// The row waits in front of the others of its name.
    void PutInFront(Name name, int row) {
        int& first = first_.try_emplace(std::move(name), kNoRow).first->second;
        next_[static_cast<std::size_t>(row)] = std::exchange(first, row);
    }
    /// The first one of that name, which does not wait any longer, or kNoRow.
    int Take(const Name& name) {
        const auto found = first_.find(name);
        if (found == first_.end() || found->second == kNoRow) {
            return kNoRow;
        }
        return std::exchange(found->second, next_[static_cast<std::size_t>(found->second)]);
    }

  private:
    std::unordered_map<Name, int, Hash> first_;
    std::vector<int> next_; ///< behind each row, of the same name
};

class Pairing {
  public:
    Pairing(const RowTexts& before, const RowTexts& after)
        : before_(before), after_(after), pairs_(before.Rows(), after.Rows()) {}

    /// What nobody touched is most of a list, and costs no look for its pair.
    void PairEnds() {
        const int most = std::min(before_.Rows(), after_.Rows());
        int top = 0;
        for (; top < most && AreEqual(top, top); ++top) {
            pairs_.Pair(top, top);
        }
        int rowBefore = before_.Rows();
        int rowAfter = after_.Rows();
        while (std::min(rowBefore, rowAfter) > top && AreEqual(--rowBefore, --rowAfter)) {
            pairs_.Pair(rowBefore, rowAfter);
        }
    }

    /// Pairs those of the rest that have one name.
    template <typename Hash, typename NameOf>
    void PairByName(const NameOf& nameOf) {
        WaitingRows<std::invoke_result_t<NameOf, const RowTexts&, int>, Hash> waiting(before_.Rows());
        for (int row = before_.Rows() - 1; row >= 0; --row) {
            if (pairs_.AfterOf(row) == kNoRow) {
                waiting.PutInFront(nameOf(before_, row), row);
            }
        }
        for (int row = 0; !waiting.IsEmpty() && row < after_.Rows(); ++row) {
            if (pairs_.BeforeOf(row) == kNoRow) {
                PairIfAny(waiting.Take(nameOf(after_, row)), row);
            }
        }
    }

    RowPairs Take() { return std::move(pairs_); }

  private:
    void PairIfAny(int rowBefore, int rowAfter) {
        if (rowBefore != kNoRow) {
            pairs_.Pair(rowBefore, rowAfter);
        }
    }
    bool AreEqual(int rowBefore, int rowAfter) const {
        return HaveSameTexts(before_, rowBefore, after_, rowAfter);
    }

    const RowTexts& before_;
    const RowTexts& after_;
    RowPairs pairs_;
};

} // namespace

RowPairs::RowPairs(int rowsBefore, int rowsAfter)
    : afterOf_(static_cast<std::size_t>(rowsBefore), kNoRow),
      beforeOf_(static_cast<std::size_t>(rowsAfter), kNoRow) {}

void RowPairs::Pair(int before, int after) {
    afterOf_[static_cast<std::size_t>(before)] = after;
    beforeOf_[static_cast<std::size_t>(after)] = before;
}

RowPairs PairRows(const RowTexts& before, const RowTexts& after, const RowKey& key) {
    Pairing pairing(before, after);
    pairing.PairEnds();
    pairing.PairByName<HashOfRow>([](const RowTexts& rows, int row) { return WholeRow{&rows, row}; });
    pairing.PairByName<std::hash<std::string>>(key);
    return pairing.Take();
}

} // namespace zy
