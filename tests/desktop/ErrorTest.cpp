#include <wx/frame.h>

#include <stdexcept>

#include "RulesWindow.h"
#include "basics/RuntimeError.h"

namespace zy::test {
namespace {

using ::testing::IsEmpty;
using ::testing::Optional;

constexpr auto kOverflow = "Run-time error '6':\n\nOverflow";

class ErrorWindow : public RulesWindow {
  protected:
    /// Whether the program was told that it ends, and which boxes it had shown by then.
    std::optional<std::vector<std::string>> boxesBeforeTheEnd;
    void ListenForTheEnd() {
        program->window.ending.Connect([this] { boxesBeforeTheEnd = boxes.Seen(); });
    }
};

TEST_F(ErrorWindow, ARunTimeErrorAtStartUpIsShownAndEndsTheProgramWithStatusOne) {
    PutRules(ManyRules(32768));
    const int status = PlayFromTheStart([&] {
        ExpectBox(kOverflow, "ZY Setup");
        Press(WXK_RETURN);
    });
    EXPECT_EQ(status, 1);
}

TEST_F(ErrorWindow, ARunTimeErrorInAHandlerDoesTheSame) {
    PutRules(ThreeRules());
    const int status = Play([&] {
        InWindow([&] { page().cmdAddList.click.Connect([] { RaiseOverflow(); }); });
        Click(page().cmdAddList);
        ExpectBox(kOverflow, "ZY Setup");
        Press(WXK_RETURN);
    });
    EXPECT_EQ(status, 1);
    EXPECT_EQ(File(), FileOf(ThreeRules()));
}

TEST_F(ErrorWindow, WhatBelongsOnTheDiskIsBroughtThereBeforeTheErrorIsShown) {
    PutRules(ThreeRules());
    Play([&] {
        InWindow([&] {
            ListenForTheEnd();
            page().cmdAddList.click.Connect([] { RaiseOverflow(); });
        });
        Click(page().cmdAddList);
        ExpectBox(kOverflow, "ZY Setup");
        Press(WXK_RETURN);
    });
    EXPECT_THAT(boxesBeforeTheEnd, Optional(IsEmpty()));
}

TEST_F(ErrorWindow, AnyOtherErrorIsShownByItsMessage) {
    PutRules(ThreeRules());
    const int status = Play([&] {
        InWindow(
            [&] { page().cmdSaveRules.click.Connect([] { throw std::runtime_error("No such thing"); }); });
        Click(page().cmdSaveRules);
        ExpectBox("No such thing", "ZY Setup");
        Press(WXK_RETURN);
    });
    EXPECT_EQ(status, 1);
}

TEST_F(ErrorWindow, AnErrorWhileABoxIsOpenEndsWhatTheBoxBelongsTo) {
    PutRules(ThreeRules());
    const int status = Play([&] {
        Click(page().cmdDeleteList);
        ExpectBox("Are you Sure you want to Delete this Rule", "Confirm Delete");
        InWindow([&] {
            program->form.resize.Connect([] { throw std::runtime_error("No such size"); });
            RealFrame().SetSize(RealFrame().GetSize() + wxSize(50, 50));
        });
        WaitUntil("the window has its new size", [&] { return program->form.InnerSize().width > 0; });
        PressInBox(WXK_RETURN); // Yes, but nothing is deleted any more
        ExpectBox("No such size", "ZY Setup");
        EXPECT_EQ(InWindow([&] { return page().lstRulesList.Count(); }), 3);
        Press(WXK_RETURN);
    });
    EXPECT_EQ(status, 1);
}

} // namespace
} // namespace zy::test
