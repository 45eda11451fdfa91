#include "history/RowMerge.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace zy {
namespace {

using Change = RowMerge::Change;
using Choice = RowMerge::Choice;

/// The rows of a list that had no row before.
std::vector<int> NewRows(const RowPairs& pairs) {
    std::vector<int> rows;
    for (int row = 0; row < pairs.RowsAfter(); ++row) {
        if (pairs.BeforeOf(row) == kNoRow) {
            rows.push_back(row);
        }
    }
    return rows;
}

RowTexts TextsOf(const RowTexts& list, const std::vector<int>& rows) {
    RowTexts texts(list.Columns());
    for (const int row : rows) {
        texts.AddRows(list, row, 1);
    }
    return texts;
}

/// Whether a row is the same in two lists, or is in none of them.
bool IsSame(const RowTexts& list, int row, const RowTexts& otherList, int other) {
    if (row == kNoRow || other == kNoRow) {
        return row == other;
    }
    return HaveSameTexts(list, row, otherList, other);
}

Choice ChoiceFor(Change change) {
    switch (change) {
    case Change::Conflict:
        return Choice::Undecided;
    case Change::Theirs:
        return Choice::Theirs;
    default:
        return Choice::Mine;
    }
}

Change ChangeBy(bool mineIsBase, bool theirsIsBase, bool areAlike) {
    if (mineIsBase != theirsIsBase) {
        return mineIsBase ? Change::Theirs : Change::Mine;
    }
    if (!areAlike) {
        return Change::Conflict;
    }
    return mineIsBase ? Change::None : Change::BothAlike;
}

/// Of others those that are not in an order, by the number of the one that they follow there: first those
/// that follow none, then behind the row 0, and so on. All numbers are below `end`.
std::vector<std::vector<int>> Followers(const std::vector<int>& order, const std::vector<int>& others,
                                        std::size_t end) {
    std::vector<bool> isInOrder(end, false);
    for (const int row : order) {
        isInOrder[static_cast<std::size_t>(row)] = true;
    }
    std::vector<std::vector<int>> followers(end + 1);
    std::size_t place = 0;
    for (const int row : others) {
        if (isInOrder[static_cast<std::size_t>(row)]) {
            place = static_cast<std::size_t>(row) + 1;
        } else {
            followers[place].push_back(row);
        }
    }
    return followers;
}

/// An order with all others in it, each behind the one that it follows among the others.
std::vector<int> Woven(const std::vector<int>& order, const std::vector<int>& others, std::size_t end) {
    const auto followers = Followers(order, others, end);
    auto woven = followers.front();
    for (const int row : order) {
        const auto& behind = followers[static_cast<std::size_t>(row) + 1];
        woven.push_back(row);
        woven.insert(woven.end(), behind.begin(), behind.end());
    }
    return woven;
}

/// The same, each in front of the one that follows it.
std::vector<int> WovenInFront(std::vector<int> order, std::vector<int> others, std::size_t end) {
    std::reverse(order.begin(), order.end());
    std::reverse(others.begin(), others.end());
    auto woven = Woven(order, others, end);
    std::reverse(woven.begin(), woven.end());
    return woven;
}

} // namespace

RowMerge::RowMerge(const RowTexts& base, const RowTexts& mine, const RowTexts& theirs, const RowKey& key)
    : base_(base), mine_(mine), theirs_(theirs) {
    const auto pairsOfMine = PairRows(base, mine, key);
    const auto pairsOfTheirs = PairRows(base, theirs, key);
    AddRowsOfBase(pairsOfMine, pairsOfTheirs);
    AddNewRows(NewRows(pairsOfMine), NewRows(pairsOfTheirs), key);
    mineOrder_ = OrderOf(mine_, &Row::mine);
    theirsOrder_ = OrderOf(theirs_, &Row::theirs);
    DecideRows();
    DecideOrder();
    CollectDifferences();
}

void RowMerge::Choose(int difference, Choice choice) {
    auto& row = rows_[static_cast<std::size_t>(differences_[static_cast<std::size_t>(difference)])];
    if (row.change == Change::Conflict) {
        row.choice = choice;
    }
}

void RowMerge::ChooseOrder(Choice choice) {
    if (order_.change == Change::Conflict) {
        order_.choice = choice;
    }
}

bool RowMerge::IsDecided() const {
    return order_.choice != Choice::Undecided && std::none_of(rows_.begin(), rows_.end(), [](const Row& row) {
               return row.choice == Choice::Undecided;
           });
}

RowTexts RowMerge::Result(const RowTexts& mineWhole, const RowTexts& theirsWhole) const {
    RowTexts result(mineWhole.Columns());
    for (const int row : OrderOfResult()) {
        result.AddRows(At(row).choice == Choice::Theirs ? theirsWhole : mineWhole, At(row).Taken(), 1);
    }
    return result;
}

RowMerge::Order RowMerge::OrderOfResult() const {
    const auto isTaken = [](const Row& row) { return row.Taken() != kNoRow; };
    if (order_.change == Change::None && KeepsOrderOfBase(mineOrder_) && KeepsOrderOfBase(theirsOrder_)) {
        // With the rows that are gone, each where it was: what was put in its place follows it.
        const auto whole = WovenInFront(mineOrder_, OrderOf(base_, &Row::base), rows_.size());
        return Those(Woven(whole, theirsOrder_, rows_.size()), isTaken);
    }
    const auto mine = Those(mineOrder_, isTaken);
    const auto theirs = Those(theirsOrder_, isTaken);
    return order_.choice == Choice::Theirs ? Woven(theirs, mine, rows_.size())
                                           : Woven(mine, theirs, rows_.size());
}

void RowMerge::AddRowsOfBase(const RowPairs& mine, const RowPairs& theirs) {
    for (int row = 0; row < base_.Rows(); ++row) {
        rows_.push_back({.base = row, .mine = mine.AfterOf(row), .theirs = theirs.AfterOf(row)});
    }
}

void RowMerge::AddNewRows(const std::vector<int>& mine, const std::vector<int>& theirs, const RowKey& key) {
    const auto pairs = PairRows(TextsOf(mine_, mine), TextsOf(theirs_, theirs), key);
    const auto theirRow = [&](int place) {
        return place == kNoRow ? kNoRow : theirs[static_cast<std::size_t>(place)];
    };
    for (std::size_t i = 0; i < mine.size(); ++i) {
        rows_.push_back({.mine = mine[i], .theirs = theirRow(pairs.AfterOf(static_cast<int>(i)))});
    }
    for (const int place : NewRows(pairs)) {
        rows_.push_back({.theirs = theirRow(place)});
    }
}

void RowMerge::DecideRows() {
    for (auto& row : rows_) {
        row.change = ChangeOf(row);
        row.choice = ChoiceFor(row.change);
    }
}

void RowMerge::DecideOrder() {
    order_.change = ChangeOfOrder();
    order_.choice = ChoiceFor(order_.change);
}

void RowMerge::CollectDifferences() {
    Order base(static_cast<std::size_t>(base_.Rows()));
    std::iota(base.begin(), base.end(), 0);
    const auto all = Woven(Woven(mineOrder_, theirsOrder_, rows_.size()), base, rows_.size());
    differences_ = Those(all, [](const Row& row) { return row.change != Change::None; });
}

RowMerge::Change RowMerge::ChangeOf(const Row& row) const {
    return ChangeBy(IsSame(base_, row.base, mine_, row.mine), IsSame(base_, row.base, theirs_, row.theirs),
                    IsSame(mine_, row.mine, theirs_, row.theirs));
}

RowMerge::Change RowMerge::ChangeOfOrder() const {
    const auto isShared = [](const Row& row) { return row.mine != kNoRow && row.theirs != kNoRow; };
    const auto mine = Those(mineOrder_, isShared);
    const auto theirs = Those(theirsOrder_, isShared);
    return ChangeBy(KeepsOrderOfBase(mine), KeepsOrderOfBase(theirs), mine == theirs);
}

RowMerge::Order RowMerge::OrderOf(const RowTexts& list, int Row::*place) const {
    Order order(static_cast<std::size_t>(list.Rows()));
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].*place != kNoRow) {
            order[static_cast<std::size_t>(rows_[row].*place)] = static_cast<int>(row);
        }
    }
    return order;
}

bool RowMerge::KeepsOrderOfBase(const Order& order) const {
    const auto ofBase = Those(order, [](const Row& row) { return row.base != kNoRow; });
    return std::is_sorted(ofBase.begin(), ofBase.end());
}

template <typename Condition>
RowMerge::Order RowMerge::Those(const Order& order, Condition condition) const {
    Order those;
    std::copy_if(order.begin(), order.end(), std::back_inserter(those),
                 [&](int row) { return condition(At(row)); });
    return those;
}

} // namespace zy
