#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Program.h"
#include "support/RaisedError.h"
#include "support/RawBool16.h"
#include "support/WorldTest.h"
#include "units/UnitsFileText.h"

namespace zy::test {

inline constexpr std::string_view kUnitsFile = R"(C:\SYS\ZYUNITS.SYS)";

/// The units page in its window, over a disk in memory, driven as a person does it.
class UnitsTest : public WorldTest {
  protected:
    UnitsTest() {
        world.traceServers.SetRunning(true);
        state.gbUnitsMode = true;
        state.gsSystemDir = R"(C:\SYS\)";
        state.gsUnitsFile = kUnitsFile;
    }

    /// Opens the page as start-up does, over the disk as it is.
    void Open() {
        window.ShowUnits();
        window.Show();
    }
    void OpenOver(std::string_view bytes) {
        world.files.Put(kUnitsFile, bytes);
        Open();
    }
    /// Opens the page over the units "a", "b" and "c", described as "A", "B" and "C".
    void OpenThreeUnits() { OpenOver("A,a\r\nB,b\r\nC,c\r\n"); }

    std::optional<std::string> File() const { return world.files.Get(kUnitsFile); }
    const std::string& Status() const { return form.zyStatusBar.Text(); }
    /// The data rows, each as "unit|description".
    std::vector<std::string> Units() const {
        std::vector<std::string> units;
        for (int row = 1; row < grid.cells.Rows(); ++row) {
            units.push_back(std::string(grid.cells.Text(row, kUnit)) + "|" +
                            std::string(grid.cells.Text(row, kUnitDescription)));
        }
        return units;
    }

    void Add() { controls.cmdAddUNit.Click(); }
    void Save() { controls.cmdSaveUnits.Click(); }
    void ChooseSave() { window.menu.mnuSave.Click(); }
    void Delete(Answer answer) {
        world.dialogs.ExpectYesNo("Are you sure you wish to delete this Unit of Measure?", "Confirm Delete",
                                  answer, Escape::AnswersNo);
        controls.cmdDeleteUnit.Click();
    }
    /// Opens a cell's editor and changes its text, but does not leave it.
    void BeginEdit(int row, int column, std::string_view text) {
        grid.Pick(row, column);
        grid.OpenEditor();
        grid.editor.Enter(text, text.size(), 0);
    }
    void Edit(int row, int column, std::string_view text) {
        BeginEdit(row, column, text);
        grid.Press({Key::Enter});
    }
    /// Adds a unit at the end, its cells filled in as a person does it.
    void AddUnit(std::string_view unit, std::string_view description) {
        Add();
        grid.editor.Enter(unit, unit.size(), 0);
        grid.Press({Key::Tab});
        grid.TypeOver(description);
        grid.Press({Key::Enter});
    }
    void ExpectInvalid(std::string_view message) { world.dialogs.ExpectMessage(message, "Invalid Unit"); }

    /// There are changes to be saved, or none.
    void ExpectChanged(bool changed) {
        EXPECT_EQ(ValueOf(form.ChangeFlag), changed ? -1 : 0);
        EXPECT_EQ(controls.cmdSaveUnits.Enabled(), changed);
        EXPECT_FALSE(state.gbChanged) << "the mark of the other editors";
    }
    void ExpectCurrent(int row, int column) {
        EXPECT_EQ(grid.selection.Row(), row);
        EXPECT_EQ(grid.selection.Column(), column);
    }

    Program program{world.Get()};
    SettingsForm& form = program.form;
    SharedState& state = program.state;
    UnitsPage& page = program.unitsPage;
    frmGlobalSettings& window = program.window;
    UnitsControls& controls = page.controls;
    Grid& grid = page.controls.grdUnits;
};

} // namespace zy::test
