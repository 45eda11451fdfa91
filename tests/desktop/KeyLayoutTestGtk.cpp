#include <cstdlib>
#include <stdexcept>
#include <string>

#include "UnitsWindow.h"

namespace zy::test {
namespace {

/// A keyboard that types its digits with Shift, while a test lasts.
class Layout {
  public:
    explicit Layout(const std::string& name) { Run("setxkbmap " + name); }
    ~Layout() { std::system("setxkbmap us"); }
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

    /// Presses the key at a place of the keyboard together with Ctrl.
    static void PressWithControl(int key) { Run("xdotool key ctrl+" + std::to_string(key)); }

  private:
    static void Run(const std::string& command) {
        if (std::system(command.c_str()) != 0) {
            throw std::runtime_error("failed: " + command);
        }
    }
};

class KeyboardLayout : public UnitsWindow, public ::testing::WithParamInterface<const char*> {
  protected:
    KeyboardLayout() { PutUnits(ThreeUnits()); }
};

TEST_P(KeyboardLayout, ControlWithADigitTypesItsSpecialCharacter) {
    constexpr int kKeyOf0 = 19;
    constexpr int kKeyOf2 = 11;
    constexpr int kKeyOf3 = 12;
    Play([&] {
        OpenEditor(3, 0);
        Press(WXK_END);
        const Layout layout(GetParam());
        for (const int key : {kKeyOf0, kKeyOf2, kKeyOf3}) {
            Layout::PressWithControl(key);
        }
        WaitForEditor("s°²³");
    });
}

INSTANTIATE_TEST_SUITE_P(OfAllKinds, KeyboardLayout, ::testing::Values("us", "fr", "cz"),
                         [](const auto& layout) { return std::string(layout.param); });

} // namespace
} // namespace zy::test
