#include "history/RowComparison.h"

#include <algorithm>
#include <utility>

namespace zy {
namespace {

/// The longest run of pairs whose rows follow each other in both lists, whatever stands between them. It is
/// found by the best runs up to each row, of each length the one that ends furthest in front.
class LongestRun {
  public:
    explicit LongestRun(const RowPairs& pairs)
        : pairs_(pairs), followed_(static_cast<std::size_t>(pairs.RowsBefore()), kNoRow) {
        for (int row = 0; row < pairs.RowsBefore(); ++row) {
            if (pairs.AfterOf(row) != kNoRow) {
                Add(row);
            }
        }
    }

    /// Whether each row before is in the run.
    std::vector<bool> Rows() const {
        std::vector<bool> rows(followed_.size(), false);
        for (int row = ends_.empty() ? kNoRow : ends_.back(); row != kNoRow; row = Followed(row)) {
            rows[static_cast<std::size_t>(row)] = true;
        }
        return rows;
    }

  private:
    int Followed(int row) const { return followed_[static_cast<std::size_t>(row)]; }

    void Add(int row) {
        const auto place = std::partition_point(
            ends_.begin(), ends_.end(), [&](int end) { return pairs_.AfterOf(end) < pairs_.AfterOf(row); });
        followed_[static_cast<std::size_t>(row)] = place == ends_.begin() ? kNoRow : *(place - 1);
        if (place == ends_.end()) {
            ends_.push_back(row);
        } else {
            *place = row;
        }
    }

    const RowPairs& pairs_;
    std::vector<int> ends_;     ///< the rows before in which runs of one pair, two pairs and so on end
    std::vector<int> followed_; ///< by each row before: the one in front of it in its run
};

class Comparison {
  public:
    Comparison(const RowTexts& before, const RowTexts& after, const RowKey& key)
        : before_(before), after_(after), pairs_(PairRows(before, after, key)),
          stays_(LongestRun(pairs_).Rows()) {}

    std::vector<RowDifference> Differences() {
        AddRemoved(0);
        for (int row = 0; row < after_.Rows(); ++row) {
            AddRow(pairs_.BeforeOf(row), row);
        }
        return std::move(differences_);
    }

  private:
    using Kind = RowDifference::Kind;

    bool Stays(int before) const { return stays_[static_cast<std::size_t>(before)]; }

    void AddRow(int before, int after) {
        if (before == kNoRow) {
            Add({.kind = Kind::Added, .after = after});
            return;
        }
        AddPair(before, after);
        if (Stays(before)) {
            AddRemoved(before + 1);
        }
    }

    void AddPair(int before, int after) {
        const bool isMoved = !Stays(before);
        if (!HaveSameTexts(before_, before, after_, after)) {
            Add({.kind = Kind::Changed, .isMoved = isMoved, .before = before, .after = after});
        } else if (isMoved) {
            Add({.kind = Kind::Moved, .isMoved = true, .before = before, .after = after});
        }
    }

    /// Those that stood between a row and the next one that stays.
    void AddRemoved(int before) {
        for (; before < before_.Rows() && !Stays(before); ++before) {
            if (pairs_.AfterOf(before) == kNoRow) {
                Add({.kind = Kind::Removed, .before = before});
            }
        }
    }

    void Add(const RowDifference& difference) { differences_.push_back(difference); }

    const RowTexts& before_;
    const RowTexts& after_;
    RowPairs pairs_;
    std::vector<bool> stays_; ///< whether each row before does
    std::vector<RowDifference> differences_;
};

/// The row of the list after behind which the row before stands again: kNoRow for the front. One that only
/// changed stays where it is.
int PlaceBehind(const RowPairs& pairs, const RowDifference& difference) {
    if (difference.kind == RowDifference::Kind::Changed && !difference.isMoved) {
        return difference.after;
    }
    for (int row = difference.before - 1; row >= 0; --row) {
        const int place = pairs.AfterOf(row);
        if (place != kNoRow && place != difference.after) {
            return place;
        }
    }
    return kNoRow;
}

} // namespace

std::vector<RowDifference> CompareRows(const RowTexts& before, const RowTexts& after, const RowKey& key) {
    return Comparison(before, after, key).Differences();
}

RowTexts RevertDifference(const RowTexts& before, const RowTexts& after, const RowPairs& pairs,
                          const RowDifference& difference) {
    const int behind = PlaceBehind(pairs, difference);
    const bool comes = difference.kind != RowDifference::Kind::Added;
    const bool onlyMoves = difference.kind == RowDifference::Kind::Moved;
    const auto& source = onlyMoves ? after : before;
    const int row = onlyMoves ? difference.after : difference.before;
    RowTexts reverted(after.Columns());
    for (int place = kNoRow; place < after.Rows(); ++place) {
        if (place != kNoRow && place != difference.after) {
            reverted.AddRows(after, place, 1);
        }
        if (comes && place == behind) {
            reverted.AddRows(source, row, 1);
        }
    }
    return reverted;
}

} // namespace zy
