#include <wx/app.h>
#include <wx/frame.h>
#include <wx/grid.h>

#include <algorithm>
#include <array>
#include <initializer_list>

#include "GridWindow.h"

namespace zy::test {
namespace {

constexpr int kManyRows = 40;

/// Where a grid has rows, but none of their cells is current.
constexpr Cell kNoCell{0, 0};

struct Stroke {
    int key = WXK_NONE;
    bool ctrl = false;
    bool shift = false;

    int Modifiers() const { return (ctrl ? wxMOD_CONTROL : 0) | (shift ? wxMOD_SHIFT : 0); }
    std::string Name() const {
        return (ctrl ? "Ctrl+" : "") + std::string(shift ? "Shift+" : "") + std::to_string(key);
    }
};

constexpr std::array<int, 8> kMovingKeys{WXK_UP,   WXK_DOWN, WXK_LEFT,   WXK_RIGHT,
                                         WXK_HOME, WXK_END,  WXK_PAGEUP, WXK_PAGEDOWN};

bool Moves(const Stroke& stroke) {
    return std::find(kMovingKeys.begin(), kMovingKeys.end(), stroke.key) != kMovingKeys.end();
}

/// All keys that the toolkit's grid knows, with Ctrl, Shift, both and neither, and some others.
std::vector<Stroke> EveryStroke() {
    std::vector<int> toolkits(kMovingKeys.begin(), kMovingKeys.end());
    toolkits.insert(toolkits.end(), {WXK_SPACE, WXK_RETURN, WXK_TAB, WXK_ESCAPE});
    std::vector<Stroke> strokes;
    for (const int key : toolkits) {
        for (const bool ctrl : {false, true}) {
            strokes.push_back({.key = key, .ctrl = ctrl, .shift = false});
            strokes.push_back({.key = key, .ctrl = ctrl, .shift = true});
        }
    }
    for (const int key : std::initializer_list<int>{WXK_F2, WXK_DELETE, WXK_BACK, 'A'}) {
        strokes.push_back({.key = key});
    }
    return strokes;
}

/// Space with Ctrl or Shift selects whole rows and columns, and Tab goes round the grid.
bool LeadsFurther(const Stroke& stroke) {
    return stroke.key == WXK_SPACE ? stroke.ctrl || stroke.shift : stroke.key == WXK_TAB && !stroke.ctrl;
}

/// Opens the editor of a cell.
bool Opens(const Stroke& stroke) {
    return stroke.key == WXK_F2 || stroke.key == WXK_BACK || stroke.key == 'A' ||
           (stroke.key == WXK_SPACE && !LeadsFurther(stroke));
}

bool IsPage(const Stroke& stroke) {
    return stroke.key == WXK_PAGEUP || stroke.key == WXK_PAGEDOWN;
}

/// Where any other key leads in a grid that is full of texts.
Cell TargetOf(const Stroke& stroke, const Cell& start, const Cell& last) {
    if (stroke.shift) {
        return start;
    }
    switch (stroke.key) {
    case WXK_UP:
        return {stroke.ctrl ? 1 : std::max(start.row - 1, 1), start.column};
    case WXK_DOWN:
        return {stroke.ctrl ? last.row : std::min(start.row + 1, last.row), start.column};
    case WXK_RETURN:
        return {stroke.ctrl ? start.row : std::min(start.row + 1, last.row), start.column};
    case WXK_LEFT:
        return {start.row, stroke.ctrl ? 0 : std::max(start.column - 1, 0)};
    case WXK_RIGHT:
        return {start.row, stroke.ctrl ? last.column : std::min(start.column + 1, last.column)};
    case WXK_HOME:
        return {stroke.ctrl ? 1 : start.row, 0};
    case WXK_END:
        return {stroke.ctrl ? last.row : start.row, last.column};
    default:
        return start;
    }
}

/// The grid of an editor, which is named by its argument, under every key.
class GridKeys : public GridWindow, public ::testing::WithParamInterface<std::string> {
  protected:
    GridKeys() : GridWindow(GetParam()) {}

    Grid& grid() override {
        return GetParam() == "@RULES"   ? program->rulesPage.controls.grdRules
               : GetParam() == "@UNITS" ? program->unitsPage.controls.grdUnits
                                        : program->securityPage.controls.grdSecurity;
    }
    /// Presses every key, each time from this cell of a grid with so many rows on, and looks at the grid.
    /// Returns the program's exit status.
    int PressEveryKey(const Cell& start, int rows, const std::function<void(const Stroke&)>& look) {
        return Play([&] {
            ShowGrid();
            for (const auto& stroke : EveryStroke()) {
                PressFrom(start, rows, stroke);
                InWindow([&] {
                    SCOPED_TRACE(stroke.Name());
                    look(stroke);
                });
            }
        });
    }
    Cell Current() { return grid().selection.Current(); }
    /// A key that was pressed on this cell has led to a cell of the grid that is current for the toolkit too.
    void ExpectSensible(const Stroke& stroke, const Cell& start) {
        const Cell cell = Current();
        EXPECT_TRUE(IsInside(cell)) << cell.row << ',' << cell.column;
        EXPECT_TRUE(IsInside(grid().selection.BlockEnd()));
        EXPECT_EQ(RealGrid().GetGridCursorCoords(), wxGridCellCoords(cell.row - 1, cell.column));
        EXPECT_EQ(grid().editor.IsOpen(), Opens(stroke));
        if (IsPage(stroke) && !stroke.ctrl && !stroke.shift) {
            ExpectAnotherPage(stroke, start);
        } else if (!LeadsFurther(stroke)) {
            EXPECT_EQ(cell, TargetOf(stroke, start, Last()));
        }
    }

  private:
    Cell Last() { return {grid().cells.Rows() - 1, grid().cells.Columns() - 1}; }
    bool IsInside(const Cell& cell) {
        return cell.row >= 1 && cell.row <= Last().row && cell.column >= 0 && cell.column <= Last().column;
    }
    /// How many rows a page has depends on the window.
    void ExpectAnotherPage(const Stroke& stroke, const Cell& start) {
        EXPECT_EQ(grid().selection.Row() < start.row, stroke.key == WXK_PAGEUP && start.row > 1);
        EXPECT_EQ(grid().selection.Row() > start.row, stroke.key == WXK_PAGEDOWN && start.row < Last().row);
        EXPECT_EQ(grid().selection.Column(), start.column);
    }
    void ShowGrid() {
        wxTheApp->CallAfter([this] {
            RealFrame().Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
                event.Skip();
                pressed_ = event.GetKeyCode();
            });
            if (GetParam() == "@RULES") {
                desktop.Gate().Act([this] { program->rulesPage.ShowGridMode(); });
            }
        });
        WaitUntil("the grid is shown", [&] { return RealGrid().IsShownOnScreen(); });
    }
    /// Waits until the window is done with the key.
    void PressFrom(const Cell& start, int rows, const Stroke& stroke) {
        InWindow([&] { desktop.Gate().Act([&] { Prepare(start, rows); }); });
        WaitUntil("the grid has the keyboard", [&] { return RealGrid().GetGridWindow()->HasFocus(); });
        Press(stroke.key, stroke.Modifiers());
        WaitUntil(stroke.Name() + " has come", [&] { return pressed_ == stroke.key; });
    }
    void Prepare(const Cell& start, int rows) {
        pressed_ = WXK_NONE;
        grid().editor.Cancel();
        grid().cells.SetRows(1);
        grid().cells.SetRows(rows + 1);
        for (int row = 1; row <= rows; ++row) {
            for (int column = 0; column < grid().cells.Columns(); ++column) {
                grid().cells.SetText(row, column, "1");
            }
        }
        grid().SetFocus();
        if (start != kNoCell) {
            grid().selection.Select(start.row, start.column);
        }
    }

    int pressed_ = WXK_NONE;
};

TEST_P(GridKeys, DoNothingInAnEmptyGrid) {
    EXPECT_EQ(PressEveryKey(kNoCell, 0,
                            [&](const Stroke&) {
                                EXPECT_LT(grid().selection.Row(), 1);
                                EXPECT_EQ(grid().cells.Rows(), 1);
                                EXPECT_FALSE(grid().editor.IsOpen());
                            }),
              0);
}

TEST_P(GridKeys, LeadToTheFirstCellWhereNoneIsCurrent) {
    EXPECT_EQ(PressEveryKey(kNoCell, kManyRows,
                            [&](const Stroke& stroke) {
                                if (Moves(stroke)) {
                                    EXPECT_EQ(Current(), (Cell{1, 0}));
                                } else {
                                    EXPECT_TRUE(grid().selection.Row() < 1 || Current() == (Cell{1, 0}));
                                }
                                EXPECT_FALSE(grid().editor.IsOpen());
                            }),
              0);
}

TEST_P(GridKeys, StayInTheOnlyRow) {
    const Cell start{1, 1};
    EXPECT_EQ(PressEveryKey(start, 1, [&](const Stroke& stroke) { ExpectSensible(stroke, start); }), 0);
}

TEST_P(GridKeys, LeadToWhereTheyPointAmongManyRows) {
    const Cell start{kManyRows / 2, 1};
    EXPECT_EQ(PressEveryKey(start, kManyRows, [&](const Stroke& stroke) { ExpectSensible(stroke, start); }),
              0);
}

INSTANTIATE_TEST_SUITE_P(Editors, GridKeys, ::testing::Values("@RULES", "@SECURITY", "@UNITS"),
                         [](const auto& editor) { return editor.param.substr(1); });

} // namespace
} // namespace zy::test
