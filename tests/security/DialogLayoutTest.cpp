// The places of the controls on the two dialogs, whatever room their texts need.

#include <array>

#include "UsersTest.h"

namespace zy::test {
namespace {

bool Overlap(const Rect& one, const Rect& other) {
    return one.left < other.Right() && other.left < one.Right() && one.top < other.Bottom() &&
           other.top < one.Bottom();
}

class DialogLayout : public UsersTest {
  protected:
    /// Gives the controls this room, lays the dialog out and looks at where they stand.
    static void LayOut(Form& dialog, const Size& preferred) {
        SCOPED_TRACE(preferred.width);
        for (auto* control : dialog.Children()) {
            control->SetPreferred(preferred);
        }
        dialog.resize.Raise();
        for (const auto* control : dialog.Children()) {
            const auto& place = control->Bounds();
            EXPECT_GE(place.height, preferred.height) << control->Name();
            EXPECT_TRUE(place.left > 0 && place.top > 0) << control->Name();
            EXPECT_LT(place.Right(), dialog.Bounds().width) << control->Name();
            EXPECT_LT(place.Bottom(), dialog.Bounds().height) << control->Name();
            for (const auto* other : dialog.Children()) {
                EXPECT_FALSE(control != other && Overlap(place, other->Bounds()))
                    << control->Name() << " on " << other->Name();
            }
        }
    }
    static constexpr std::array<Size, 3> kSizes{{{300, 200}, {1500, 375}, {4000, 900}}};
};

TEST_F(DialogLayout, OfTheLoginKeepsItsControlsApartAndInside) {
    PutTable({User("ADMIN", "pw")});
    ExpectLogin([](frmLogin& login) {
        for (const auto& size : kSizes) {
            LayOut(login, size);
            EXPECT_GE(login.lblLabels[0].Bounds().width, size.width);
            EXPECT_GE(login.cmdOK.Bounds().width, size.width);
            EXPECT_EQ(login.txtUserName.Bounds().left, login.txtPassword.Bounds().left);
        }
    });
    Start("@SECURITY");
}

TEST_F(DialogLayout, OfTheCalendarKeepsItsControlsApartAndInside) {
    StartOver({User("Ann")});
    ExpectCalendar([](frmDatePicker& picker) {
        for (const auto& size : kSizes) {
            LayOut(picker, size);
            EXPECT_GE(picker.cmdClear.Bounds().width, size.width);
            EXPECT_EQ(picker.cmdClear.Bounds().width, picker.cmdcancel.Bounds().width);
        }
    });
    grid().Pick(1, kExpiryDate);
    grid().OpenEditor();
    grid().editor.PressButton();
}

} // namespace
} // namespace zy::test
