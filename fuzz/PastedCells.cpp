#include <algorithm>
#include <string>
#include <vector>

#include "Targets.h"
#include "controls/Form.h"
#include "controls/Grid.h"

namespace zy::fuzz {
namespace {

constexpr int kColumns = 3;
constexpr int kListColumn = 1;

/// An empty grid that grows, one column of which takes the items of a list alone.
struct Sheet {
    Sheet() {
        form.SetVisible(true);
        grid.block.SetGrowsByPaste(true);
        grid.columns.SetList(kListColumn, CellList("A|I"));
        grid.block.pasted.Connect([this](const PasteReport& paste) { report = paste; });
    }

    std::vector<std::string> Cells() const {
        std::vector<std::string> cells;
        for (int row = 1; row < grid.cells.Rows(); ++row) {
            for (int column = 0; column < kColumns; ++column) {
                cells.emplace_back(grid.cells.Text(row, column));
            }
        }
        return cells;
    }

    Form form{"frmSheet"};
    Grid grid{&form, "grdSheet", kColumns};
    PasteReport report;
};

void RequirePlainCells(const Grid& grid) {
    for (int row = 1; row < grid.cells.Rows(); ++row) {
        for (int column = 0; column < kColumns; ++column) {
            Require(grid.cells.Text(row, column).find_first_of("\t\n\r") == std::string_view::npos,
                    "a cell is one line without TAB");
        }
        const auto choice = grid.cells.Text(row, kListColumn);
        Require(choice.empty() || choice == "A" || choice == "I", "a list's cell holds an item or nothing");
    }
}

void RequireSaneReport(const Sheet& sheet, std::string_view input) {
    const auto& report = sheet.report;
    Require(report.rowsLeftOut == 0 && report.columnsLeftOut >= 0, "a grid that grows takes every row");
    Require(report.tooLong == (!input.empty() && sheet.grid.cells.Rows() == 1), "all is pasted or nothing");
    Require((report.cellsRefused == 0) == report.textRefused.empty(), "a refused text is named");
}

} // namespace

void PastedCells(std::string_view input) {
    Sheet first;
    first.grid.Paste(input);
    RequirePlainCells(first.grid);
    RequireSaneReport(first, input);

    first.grid.SelectAll();
    Sheet second;
    second.grid.Paste(first.grid.block.Copy());
    Require(second.Cells() == first.Cells(), "what is copied is pasted as it was");
    Require(second.report.cellsRefused == 0 && second.report.columnsLeftOut == 0, "and nothing is left out");
}

} // namespace zy::fuzz
