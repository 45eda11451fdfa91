#include "shell/GridSteps.h"

#include <algorithm>
#include <utility>

#include "controls/Form.h"

namespace zy {
namespace {

/// The column that was changed first in a row that stayed; 0 for rows that came or went.
int ChangedColumn(const RowChange& change) {
    const bool stayed = change.before.Rows() > 0 && change.after.Rows() > 0;
    int column = 0;
    while (stayed && column + 1 < change.before.Columns() &&
           change.before.Text(0, column) == change.after.Text(0, column)) {
        ++column;
    }
    return column;
}

/// A place among the rows that were changed: where somebody was, if that is one of them.
StepPlace Among(const RowChange& change, const RowTexts& rows, const StepPlace& was) {
    const bool isAmong = was.row >= change.first && was.row < change.first + rows.Rows();
    return isAmong ? was : StepPlace{change.first, ChangedColumn(change)};
}

} // namespace

GridSteps::GridSteps(std::string noun, Grid& grid) : grid_(grid), noun_(std::move(noun)) {
    Connect();
}

void GridSteps::Connect() {
    auto& cells = grid_.cells;
    cells.deedBegun.Connect([this](std::string_view deed, GridCells::Repeats repeats) {
        ToRecord().Begin(deed, repeats == GridCells::Repeats::Yes ? deed : std::string_view());
    });
    cells.deedEnded.Connect([this] { ToRecord().End(); });
    cells.changing.Connect(
        [this](int first, int removed, int added) { ToRecord().Changing(first, removed, added); });
    cells.changed.Connect([this] { ToRecord().Changed(); });
    grid_.Window().focusChanged.Connect([this] { Steps().Seal(); });
    grid_.editor.openChanged.Connect([this] { changed.Raise(); });
    grid_.editor.typingChanged.Connect([this] { changed.Raise(); });
}

void GridSteps::ReplaceRows(int first, int count, const RowTexts& rows) {
    grid_.cells.ReplaceRows(first, count, rows.Rows(),
                            [&rows](int row, int column) { return rows.Text(row, column); });
}

StepPlace GridSteps::Here() const {
    return {grid_.selection.Row(), grid_.selection.Column()};
}

void GridSteps::Describe(Step& step) const {
    const auto& first = step.changes.front();
    step.before = Among(first, first.before, step.before);
    step.after = Among(step.changes.back(), step.changes.back().after, step.after);
    if (step.name.empty()) {
        step.name = NameOf(first);
    }
}

std::string GridSteps::NameOf(const RowChange& change) const {
    if (change.before.Rows() < change.after.Rows()) {
        return "Add " + noun_;
    }
    if (change.before.Rows() > change.after.Rows()) {
        return "Delete " + noun_ + " " + std::string(change.before.Text(0, 0));
    }
    return "Edit " + std::string(grid_.cells.Text(0, ChangedColumn(change)));
}

void GridSteps::Show(const StepPlace& place) {
    if (grid_.cells.Rows() > 1) {
        grid_.selection.Select(std::clamp(place.row, 1, grid_.cells.Rows() - 1), std::max(place.column, 0));
        grid_.selection.Reveal();
    }
    grid_.SetFocus();
}

} // namespace zy
