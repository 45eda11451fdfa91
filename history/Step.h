#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "history/RowList.h"
#include "history/RowTexts.h"

namespace zy {

/// Where in a list somebody works. What rows and columns stand for is the editor's to say.
struct StepPlace {
    int row = 0;
    int column = 0;

    friend bool operator==(const StepPlace&, const StepPlace&) = default;
};

/// Rows of a list, and those that stand in their place afterwards.
struct RowChange {
    int first = 0;
    RowTexts before;
    RowTexts after;

    bool ChangesNothing() const { return before == after; }
};

/// The fewest rows side by side whose change makes a list of the other one. Both begin at `first`, and have
/// as many columns.
RowChange ChangeBetween(int first, const RowTexts& before, const RowTexts& after);

/// One thing that somebody did to a list.
struct Step {
    std::string name; ///< as the menu has it behind "Undo": "Delete Rule 2U"
    std::string
        key; ///< steps of one key that go on where the last one ended are one step; none of an empty one
    StepPlace before;               ///< where to go when it is taken back
    StepPlace after;                ///< where to go when it is done again
    std::vector<RowChange> changes; ///< in the order in which they were made

    bool ChangesNothing() const;
    std::size_t Bytes() const;
    /// Appends what was done next, and makes one change of two that overlap or touch each other.
    void GoOn(Step next);

    void Undo(RowList& rows) const;
    void Redo(RowList& rows) const;
};

} // namespace zy
