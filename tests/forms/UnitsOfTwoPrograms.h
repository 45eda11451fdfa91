#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/ProgramTest.h"
#include "units/UnitsFileText.h"

namespace zy::test {

/// The units editor, beside another program that writes to its file.
class UnitsOfTwoPrograms : public ProgramTest {
  protected:
    static constexpr auto kUnitsFile = R"(C:\SYS\ZYUNITS.SYS)";
    static constexpr auto kBefore = "A,a\r\nB,b\r\nC,c\r\n";

    UnitsOfTwoPrograms() {
        WriteFile(kBefore);
        Start("@UNITS");
    }

    void WriteFile(std::string_view bytes) { world.files.Put(kUnitsFile, bytes); }
    std::string File() const { return world.files.Get(kUnitsFile).value_or("none"); }
    std::string Status() { return form().zyStatusBar.Text(); }
    Grid& grid() { return program().unitsPage.controls.grdUnits; }
    void Edit(int row, int column, std::string_view text) {
        grid().Pick(row, column);
        grid().TypeOver(text);
        grid().editor.Commit();
    }
    void Save() { window().menu.mnuSave.Click(); }
    void Undo() { window().menu.mnuUndo.Click(); }
    void ComeToTheWindow() { window().activated.Raise(); }
    std::vector<std::string> Units() {
        std::vector<std::string> units;
        for (int row = 1; row < grid().cells.Rows(); ++row) {
            units.push_back(std::string(grid().cells.Text(row, kUnitDescription)) + "," +
                            std::string(grid().cells.Text(row, kUnit)));
        }
        return units;
    }

    /// The next dialog is this one, and the user does that in it.
    template <typename Dialog>
    void ExpectDialog(std::function<void(Dialog&)> user) {
        world.dialogs.ExpectForm([user = std::move(user)](Form& form) { user(dynamic_cast<Dialog&>(form)); });
    }
};

/// The lines of a list on the screen, their cells separated by "|".
inline std::vector<std::string> LinesOf(const ListView& list) {
    std::vector<std::string> lines;
    for (int item = 1; item <= list.Count(); ++item) {
        std::string line;
        for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
            line.append(column == 0 ? "" : "|").append(list.CellText(item, column));
        }
        lines.push_back(line);
    }
    return lines;
}

} // namespace zy::test
