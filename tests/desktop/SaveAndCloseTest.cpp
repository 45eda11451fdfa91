#include "NativeLook.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kWishToSave = "Do you Wish to Save your Changes?";
constexpr auto kSaveChanges = "Save Changes?";

class SaveAndCloseWindow : public RulesWindow {
  protected:
    SaveAndCloseWindow() { PutRules(ThreeRules()); }

    void EditTheDescription() {
        Fill(page().txtDescription, "Edited");
        WaitForStatus("3 rules   -   R1 edited; File > Save stores it");
    }
    /// Presses a key that gives no answer to the box: a box that it closes will be back.
    void PressInVain(int key, int modifiers = wxMOD_NONE) {
        if (InWindow([&] { return CanBeCancelled(*boxes.Active()); })) {
            PressInBox(key, modifiers);
            ++timesAsked;
        } else {
            PressWhereItDoesNothing(key, modifiers);
        }
    }
    std::size_t timesAsked = 1;

    static std::string FileWithFirst(const std::string& first) {
        return FileOf({first, "R2|3|4|<=|LWL|Second rule  ", "R3|5|6|=|-3S|Third rule  "});
    }
};

TEST_F(SaveAndCloseWindow, ControlSStoresTheFormAndWritesTheFile) {
    Play([&] {
        Fill(page().txtCode, "R9");
        Fill(page().txtMin, "1.5");
        Fill(page().txtMax, "7");
        PickItem(page().cboCondition, 4);
        PickItem(page().cboZone, 8);
        Fill(page().txtDescription, "Edited");
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
        EXPECT_THAT(Row(1), ElementsAre("R9", "1.5", "7", "=", "+4S", "Edited"));
        EXPECT_EQ(SelectedRow(), 1);
        WaitForFocus(page().txtDescription);
    });
    EXPECT_EQ(File(), FileWithFirst("R9|1.5|7|=|+4S|Edited"));
}

TEST_F(SaveAndCloseWindow, FileSaveDoesTheSame) {
    Play([&] {
        EditTheDescription();
        ChooseSave();
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), FileWithFirst("R1|1|2|>|UCL|Edited"));
}

TEST_F(SaveAndCloseWindow, TheSaveButtonWritesTheRulesWithoutTheFormsEdits) {
    Play([&] {
        EditTheDescription();
        Click(page().cmdSaveRules);
        WaitForStatus("Saved   -   R1 differs from its fields; change one, then File > Save stores them");
        EXPECT_EQ(TextIn(page().txtDescription), "Edited");
    });
    EXPECT_EQ(File(), FileWithFirst("R1|1|2|>|UCL|First rule  "));
}

TEST_F(SaveAndCloseWindow, WhatCouldNotBeWrittenIsToldInTheStatusBar) {
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    const auto before = File();
    Play([&] {
        Click(page().cmdAddList);
        WaitForSelection(4);
        Press('S', wxMOD_CONTROL);
        WaitUntil("the status bar tells",
                  [&] { return program->form.zyStatusBar.Text().starts_with("Not saved"); });
        EXPECT_TRUE(Status().starts_with("Not saved")) << Status();
    });
    EXPECT_EQ(File(), before);
}

TEST_F(SaveAndCloseWindow, ClosesWithoutAQuestionWhenNothingChanged) {
    EXPECT_EQ(Play([&] { CloseWindow(); }), 0);
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_FALSE(program->form.Visible());
}

TEST_F(SaveAndCloseWindow, ExitClosesToo) {
    EXPECT_EQ(Play([&] { ChooseExit(); }), 0);
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(SaveAndCloseWindow, TheClosingQuestionHasToBeAnswered) {
    const auto before = File();
    Play([&] {
        Click(page().cmdAddList);
        WaitForSelection(4);
        CloseWindow();
        ExpectBox(kWishToSave, kSaveChanges);
        PressInVain(WXK_ESCAPE);
        ExpectBox(kWishToSave, kSaveChanges);
        PressInVain(WXK_F4, wxMOD_ALT); // its own close box
        ExpectBox(kWishToSave, kSaveChanges);
        ClickInLastBox(wxID_NO);
    });
    EXPECT_EQ(boxes.Seen().size(), timesAsked);
    EXPECT_EQ(File(), before);
}

TEST_F(SaveAndCloseWindow, YesWritesTheRulesAsTheyAreHeld) {
    Play([&] {
        EditTheDescription();
        CloseWindow();
        ExpectBox(kWishToSave, kSaveChanges);
        Press(WXK_RETURN);
    });
    EXPECT_EQ(File(), FileWithFirst("R1|1|2|>|UCL|First rule  "));
}

TEST_F(SaveAndCloseWindow, ClosingAsksNothingOfAFieldThatIsWrong) {
    Play([&] {
        Enter(page().txtCode);
        Press('A', wxMOD_CONTROL);
        Press(WXK_DELETE);
        WaitUntil("the code is empty", [&] { return page().txtCode.Text().empty(); });
        CloseWindow();
        ExpectBox(kWishToSave, kSaveChanges);
        ClickInLastBox(wxID_NO);
    });
    EXPECT_THAT(boxes.Seen(), ElementsAre(kWishToSave));
}

} // namespace
} // namespace zy::test
