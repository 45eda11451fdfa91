#pragma once

#include <optional>

#include "GridWindow.h"

namespace zy::test {

/// The units editor in its real window.
class UnitsWindow : public GridWindow {
  protected:
    UnitsWindow() : GridWindow("@UNITS") {}

    /// Puts a units file on the disk, given as its lines.
    void PutUnits(const std::vector<std::string>& lines);
    static std::vector<std::string> ThreeUnits() { return {"Kilograms,kg", "Metres,m", "Seconds,s"}; }
    static std::vector<std::string> ManyUnits(int count);
    std::optional<std::string> File() const { return world.files.Get(R"(C:\SYS\ZYUNITS.SYS)"); }

    // What the user does.
    void ClickUp() { WindowTest::ClickUp(page().UpDownUnits); }
    void ClickDown() { WindowTest::ClickDown(page().UpDownUnits); }

    UnitsControls& page() { return program->unitsPage.controls; }
    Grid& grid() override { return page().grdUnits; }
};

} // namespace zy::test
