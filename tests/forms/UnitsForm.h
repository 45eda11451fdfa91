#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/ProgramTest.h"
#include "units/UnitsFileText.h"

namespace zy::test {

/// The units page of a running program, driven as a user does it.
class UnitsForm : public ProgramTest {
  protected:
    static constexpr auto kUnitsFile = R"(C:\SYS\ZYUNITS.SYS)";

    const std::string& Status() { return form().zyStatusBar.Text(); }
    Grid& grid() { return program().unitsPage.controls.grdUnits; }
    void Edit(int row, int column, std::string_view text) {
        grid().Pick(row, column);
        grid().TypeOver(text);
        grid().editor.Commit();
    }
    void Save() { window().menu.mnuSave.Click(); }
    void Undo() { window().menu.mnuUndo.Click(); }
    /// The list, each unit as "description,unit".
    std::vector<std::string> Units() {
        std::vector<std::string> units;
        for (int row = 1; row < grid().cells.Rows(); ++row) {
            units.push_back(std::string(grid().cells.Text(row, kUnitDescription)) + "," +
                            std::string(grid().cells.Text(row, kUnit)));
        }
        return units;
    }
};

} // namespace zy::test
