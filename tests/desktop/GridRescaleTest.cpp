#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/panel.h>
#include <wx/textctrl.h>

#include "UnitsWindow.h"
#include "desktop/GridBinding.h"

namespace zy::test {
namespace {

/// A grid on a screen of another resolution than the one it was made on.
class GridRescale : public UnitsWindow {
  protected:
    static wxGrid& GridOf(const GridBinding& binding) {
        return dynamic_cast<wxGrid&>(*binding.Window().GetChildren()[0]);
    }
    static void EnlargeEditor(const wxGrid& grid) {
        for (auto* child : grid.GetGridWindow()->GetChildren()) {
            child->SetFont(child->GetFont().Scale(3));
        }
    }
};

TEST_F(GridRescale, GetsRowsThatAreHighEnoughForTheTextsThere) {
    Play([&] {
        InWindow([&] {
            Form form("frm");
            Grid model(&form, "grd", 1);
            BoundControls controls;
            MenuPlace place;
            const ViewContext context{.codePage = desktop.TextCodePage(),
                                      .gate = desktop.Gate(),
                                      .controls = controls,
                                      .showRefusal = [](std::string_view) {},
                                      .scale = Scale(96),
                                      .menuPlace = place};
            auto panel = std::make_unique<wxPanel>(&RealFrame());
            const Inside inside{.window = panel.get(), .origin = {}};
            GridBinding binding(context, inside, model);
            const auto& real = GridOf(binding);
            const int before = real.GetDefaultRowSize();
            EnlargeEditor(real);
            binding.Rescale();
            EXPECT_GT(real.GetDefaultRowSize(), before * 3 / 2);
            EXPECT_GT(real.GetColLabelSize(), before * 3 / 2);
            panel.reset(); // before what it shows
        });
    });
}

} // namespace
} // namespace zy::test
