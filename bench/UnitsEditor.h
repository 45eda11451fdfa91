#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "BigFile.h"
#include "FileWorld.h"
#include "units/UnitsPage.h"

namespace zy::bench {

/// The units page without a window.
struct Units {
    Units(FileWorld& world, const std::string& file)
        : page(form, state, world.Trace(), world.Get().files, world.Get().dialogs) {
        state.gsUnitsFile = file;
        form.SetVisible(true);
        form.FraUnits.SetVisible(true);
        page.units.LoadUnitsData();
    }

    SettingsForm form;
    SharedState state;
    UnitsPage page;
};

/// The units editor over a folder of the real system. What it loads must not outlive it.
class UnitsEditor {
  public:
    static constexpr const BigFile& kFile = kUnitsFile;

    /// The folder's path inside the program.
    explicit UnitsEditor(std::string_view folder)
        : world_(folder), file_(std::string(folder) + '\\' + kFile.name) {}

    std::unique_ptr<Units> Load() { return std::make_unique<Units>(world_, file_); }
    static int Count(const Units& units) { return units.page.controls.grdUnits.cells.Rows() - 1; }
    static void Save(Units& units) { units.page.units.Write_Units(); }

  private:
    FileWorld world_;
    std::string file_;
};

} // namespace zy::bench
