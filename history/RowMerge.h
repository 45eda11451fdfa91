#pragma once

#include <vector>

#include "history/RowPairs.h"
#include "history/RowTexts.h"

namespace zy {

/// Two lists that were made of a third one, and the list that holds the work of both: what one side changed
/// is taken from it, and where both changed the same row, somebody has to choose. Rows are taken whole,
/// whichever of their texts differ. Order is a thing of its own beside the rows.
///
/// All three lists have as many columns, and live as long as the merge.
class RowMerge {
  public:
    /// Who made of the base what it is not. Both are in conflict unless they made the same of it.
    enum class Change { None, Mine, Theirs, BothAlike, Conflict };
    /// Whose version the result has.
    enum class Choice { Undecided, Mine, Theirs };

    /// One row, as it stands in each of the lists: kNoRow where it does not.
    struct Row {
        int base = kNoRow;
        int mine = kNoRow;
        int theirs = kNoRow;
        Change change = Change::None;
        Choice choice = Choice::Mine; ///< Undecided in a conflict alone

        /// Where it stands in the list it is taken from: in theirs when that is the choice, else in mine.
        /// kNoRow when the result does not have it.
        int Taken() const { return choice == Choice::Theirs ? theirs : mine; }
    };

    RowMerge(const RowTexts& base, const RowTexts& mine, const RowTexts& theirs, const RowKey& key);

    /// How many rows are not the same in all three lists.
    int Differences() const { return static_cast<int>(differences_.size()); }
    /// One of them. They stand in the order of mine; a row that is not there comes behind the one that it
    /// follows in theirs, or if it is not there either, in the base.
    const Row& Difference(int index) const { return At(differences_[static_cast<std::size_t>(index)]); }
    /// Settles a conflict, or leaves it open again. What is none stays as it is.
    void Choose(int difference, Choice choice);

    /// Who changed the order of the rows that both still have. Both are in conflict also when they put rows
    /// that both added in different orders.
    Change OrderChange() const { return order_.change; }
    Choice OrderChoice() const { return order_.choice; }
    /// Settles the conflict about the order, or leaves it open again. Without one the order stays as it is.
    void ChooseOrder(Choice choice);

    /// Whether no conflict is open.
    bool IsDecided() const;

    /// The list that comes of it, with mine where nothing is decided yet. Its rows stand in the order of the
    /// side whose order is taken; those that this side does not have stand directly behind the row that they
    /// follow on the other side, or the nearest one in front of that which the result still has. Where nobody
    /// changed the order, the order of each side is kept, and what one put in place of a row stands there.
    RowTexts Result() const { return Result(mine_, theirs_); }
    /// The same of the whole rows, where the lists that were compared have a part of their texts alone.
    RowTexts Result(const RowTexts& mineWhole, const RowTexts& theirsWhole) const;

  private:
    /// Rows by their places in rows_.
    using Order = std::vector<int>;
    struct OrderDecision {
        Change change = Change::None;
        Choice choice = Choice::Mine;
    };

    const Row& At(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    Order OrderOfResult() const;
    void AddRowsOfBase(const RowPairs& mine, const RowPairs& theirs);
    void AddNewRows(const std::vector<int>& mine, const std::vector<int>& theirs, const RowKey& key);
    void DecideRows();
    void DecideOrder();
    void CollectDifferences();

    Change ChangeOf(const Row& row) const;
    Change ChangeOfOrder() const;
    /// The order of a list, as the member has it.
    Order OrderOf(const RowTexts& list, int Row::*place) const;
    bool KeepsOrderOfBase(const Order& order) const;
    template <typename Condition>
    Order Those(const Order& order, Condition condition) const;

    const RowTexts& base_;
    const RowTexts& mine_;
    const RowTexts& theirs_;
    std::vector<Row> rows_; ///< those of the base in its order, then those that somebody added
    Order mineOrder_;
    Order theirsOrder_;
    OrderDecision order_;
    std::vector<int> differences_;
};

} // namespace zy
