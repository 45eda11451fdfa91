#include "history/Step.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zy {
namespace {

bool KeepsCount(const RowChange& change) {
    return change.before.Rows() == change.after.Rows();
}

int EndOf(const RowChange& change) {
    return change.first + change.before.Rows();
}

/// The rows of both, each from `preferred` where that has it. The ranges overlap or touch.
RowTexts Union(int firstPreferred, const RowTexts& preferred, int firstOther, const RowTexts& other) {
    RowTexts all(preferred.Columns());
    const int preferredEnd = firstPreferred + preferred.Rows();
    all.AddRows(other, 0, std::clamp(firstPreferred - firstOther, 0, other.Rows()));
    all.AddRows(preferred, 0, preferred.Rows());
    const int behind = std::clamp(preferredEnd - firstOther, 0, other.Rows());
    all.AddRows(other, behind, other.Rows() - behind);
    return all;
}

/// False when the two have to stay apart.
bool Join(RowChange& change, const RowChange& next) {
    const bool apart = next.first > EndOf(change) || change.first > EndOf(next);
    if (apart || !KeepsCount(change) || !KeepsCount(next)) {
        return false;
    }
    change.before = Union(change.first, change.before, next.first, next.before);
    change.after = Union(next.first, next.after, change.first, change.after);
    change.first = std::min(change.first, next.first);
    return true;
}

} // namespace

RowChange ChangeBetween(int first, const RowTexts& before, const RowTexts& after) {
    const int most = std::min(before.Rows(), after.Rows());
    int front = 0;
    while (front < most && HaveSameTexts(before, front, after, front)) {
        ++front;
    }
    int back = 0;
    while (back < most - front &&
           HaveSameTexts(before, before.Rows() - 1 - back, after, after.Rows() - 1 - back)) {
        ++back;
    }
    RowChange change{first + front, RowTexts(before.Columns()), RowTexts(before.Columns())};
    change.before.AddRows(before, front, before.Rows() - front - back);
    change.after.AddRows(after, front, after.Rows() - front - back);
    return change;
}

bool Step::ChangesNothing() const {
    return std::all_of(changes.begin(), changes.end(),
                       [](const RowChange& change) { return change.ChangesNothing(); });
}

std::size_t Step::Bytes() const {
    std::size_t bytes = sizeof(Step) + name.capacity() + key.capacity();
    for (const auto& change : changes) {
        bytes += sizeof(RowChange) + change.before.Bytes() + change.after.Bytes();
    }
    return bytes;
}

void Step::GoOn(Step next) {
    auto rest = next.changes.begin();
    if (!changes.empty() && rest != next.changes.end() && Join(changes.back(), *rest)) {
        ++rest;
    }
    changes.insert(changes.end(), std::make_move_iterator(rest), std::make_move_iterator(next.changes.end()));
    after = next.after;
}

void Step::Undo(RowList& rows) const {
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        rows.ReplaceRows(change->first, change->after.Rows(), change->before);
    }
}

void Step::Redo(RowList& rows) const {
    for (const auto& change : changes) {
        rows.ReplaceRows(change.first, change.before.Rows(), change.after);
    }
}

} // namespace zy
