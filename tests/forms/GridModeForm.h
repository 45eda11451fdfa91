#pragma once

#include "RulesForm.h"
#include "rules/RunRule.h"

namespace zy::test {

/// The rules page with its grid, which nothing in the program shows.
class GridModeForm : public RulesForm {
  protected:
    /// Starts over these rules and shows the grid, as the program never does.
    void ShowGridOver(std::initializer_list<const char*> codes) {
        StartWithCodes(codes);
        handlers().ShowGridMode();
    }

    Grid& grid() { return page().grdRules; }
    RulesGridMode& mode() { return handlers().gridMode; }
    MainMenu& menu() { return form().menu; }

    /// The grid's rows with the header's, each with its cells joined by "|".
    std::vector<std::string> GridRows() {
        std::vector<std::string> rows;
        for (int row = 0; row < grid().cells.Rows(); ++row) {
            std::string text(grid().cells.Text(row, 0));
            for (int column = 1; column < grid().cells.Columns(); ++column) {
                text += "|" + std::string(grid().cells.Text(row, column));
            }
            rows.push_back(text);
        }
        return rows;
    }
    /// The first column of the grid alone, without the header.
    std::vector<std::string> GridCodes() {
        std::vector<std::string> codes;
        for (int row = 1; row < grid().cells.Rows(); ++row) {
            codes.emplace_back(grid().cells.Text(row, kCodeColumn));
        }
        return codes;
    }
    /// The rules as they are held, each with its fields joined by "|".
    std::vector<std::string> HeldRules() {
        std::vector<std::string> held;
        for (int i = 1; i <= rules().gaRules.UBound(); ++i) {
            const RunRule& rule = rules().gaRules(i);
            held.push_back(rule.Code + "|" + rule.Min + "|" + rule.Max + "|" + rule.Cond + "|" + rule.Zone +
                           "|" + rule.Description);
        }
        return held;
    }

    /// Types over a cell and presses Enter.
    void Fill(int row, int column, std::string_view text) {
        grid().Pick(row, column);
        grid().TypeOver(text);
        grid().Press({.key = Key::Enter});
    }
    /// Presses the right button of the mouse over a row.
    void RightClick(int row) { grid().PressMouse(MouseButton::Right, row, 0); }
    void ExpectWholeRow(int row) {
        EXPECT_EQ(grid().selection.Row(), row);
        EXPECT_EQ(grid().selection.Column(), kCodeColumn);
        EXPECT_EQ(grid().selection.BlockEnd(), (Cell{row, kDescriptionColumn}));
    }
};

} // namespace zy::test
