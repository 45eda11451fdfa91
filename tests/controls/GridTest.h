#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basics/RuntimeError.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Grid.h"
#include "support/RaisedError.h"

namespace zy::test {

/// A grid of three columns and two rows, and a list of what it announced.
class GridTest : public ::testing::Test {
  protected:
    GridTest() {
        form.SetVisible(true);
        grid.cells.AddItem("a\tb\tc");
        grid.cells.AddItem("d\te\tf");
        const auto note = [this](const char* what) {
            return [this, what](int row, int column) {
                notes.push_back(std::string(what) + " " + std::to_string(row) + "," + std::to_string(column));
            };
        };
        grid.cells.cellChanged.Connect(note("changed"));
        grid.editor.beforeEdit.Connect(note("before"));
        grid.editor.afterEdit.Connect(note("after"));
        grid.block.pasted.Connect([this](const PasteReport& paste) { pasted.push_back(paste); });
        grid.selection.currentCellChanged.Connect([this] { notes.emplace_back("current"); });
    }

    std::vector<std::string> Row(int row) const {
        std::vector<std::string> texts;
        for (int column = 0; column < grid.cells.Columns(); ++column) {
            texts.emplace_back(grid.cells.Text(row, column));
        }
        return texts;
    }
    void TypeInEditor(const std::string& text) { grid.editor.Enter(text, text.size(), 0); }
    void Edit(int row, int column, const std::string& text) {
        grid.Pick(row, column);
        grid.OpenEditor();
        TypeInEditor(text);
    }
    /// The last paste left out so much.
    void ExpectLeftOut(int rows, int columns, int cells = 0) {
        ASSERT_FALSE(pasted.empty());
        EXPECT_EQ(pasted.back().rowsLeftOut, rows);
        EXPECT_EQ(pasted.back().columnsLeftOut, columns);
        EXPECT_EQ(pasted.back().cellsRefused, cells);
        EXPECT_FALSE(pasted.back().tooLong);
    }
    void ExpectCurrent(int row, int column) {
        EXPECT_EQ(grid.selection.Row(), row);
        EXPECT_EQ(grid.selection.Column(), column);
    }

    Form form{"frm"};
    Grid grid{&form, "grd", 3};
    CommandButton button{&form, "cmd", "Press"};
    std::vector<std::string> notes;
    std::vector<PasteReport> pasted;
};

} // namespace zy::test
