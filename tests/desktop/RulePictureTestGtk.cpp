#include <atk/atk.h>
#include <wx/frame.h>

#include "ImagePoints.h"
#include "RulesWindow.h"
#include "ScreenPicture.h"
#include "desktop/GtkFunctions.h"

namespace zy::test {
namespace {

/// The picture of a rule in the real window.
class PictureOfARuleWindow : public RulesWindow {
  protected:
    PictureOfARuleWindow() { PutRules({"R1|1|1|>|UCL|One", "R2|2|3|<|LWL|Two"}); }

    /// The window is as large as the picture needs it to be.
    void MakeRoom() {
        Resize({1000, 800});
        WaitUntil("there is room for the picture", [&] { return Real(page().picRule).IsShownOnScreen(); });
    }
    AtkObject* Object() { return gtk_widget_get_accessible(Real(page().picRule).GetHandle()); }
    void WaitForDescription(const std::string& text) {
        WaitUntil("the picture is described as \"" + text + "\"", [&] {
            const char* description = atk_object_get_description(Object());
            return description != nullptr && text == description;
        });
    }
    /// How many points on the screen have the red of a mark or a limit.
    int RedPoints() {
        return CountPoints(PictureOnScreen(Real(page().picRule).GetScreenRect()),
                           [](int red, int green, int blue) { return red > 150 && green < 90 && blue < 90; });
    }
};

TEST_F(PictureOfARuleWindow, IsAPictureToAScreenReaderWithTheSentenceAsItsDescription) {
    Play([&] {
        MakeRoom();
        WaitForDescription("1 point above the upper control limit (UCL)");
        InWindow([&] {
            EXPECT_EQ(atk_object_get_role(Object()), ATK_ROLE_IMAGE);
            EXPECT_STREQ(atk_object_get_name(Object()), "Picture of the rule");
        });
        ClickRow(2);
        WaitForDescription("2 of 3 points in a row below the lower warning limit (LWL)");
    });
}

TEST_F(PictureOfARuleWindow, StandsBesideTheFieldsInAWindowOfTheUsualSize) {
    Play([&] { EXPECT_TRUE(InWindow([&] { return Real(page().picRule).IsShownOnScreen(); })); });
}

TEST_F(PictureOfARuleWindow, IsPaintedAndFollowsWhatIsTyped) {
    Play([&] {
        MakeRoom();
        WaitUntil("the picture is painted", [&] { return RedPoints() > 0; });
        Fill(page().txtMax, "");
        WaitForDescription("No picture: Maximum is no number from 1 to 100");
        WaitUntil("the picture is gone", [&] { return RedPoints() == 0; });
        Type("1");
        WaitUntil("the picture has come back", [&] { return RedPoints() > 0; });
    });
}

} // namespace
} // namespace zy::test
