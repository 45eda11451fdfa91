#include "NativeLook.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

constexpr auto kSure = "Are you Sure you want to Delete this Rule";

class AddAndDeleteWindow : public RulesWindow {
  protected:
    /// Where Escape closes no question, that is answered by No.
    void PressEscapeInBox() {
        if (InWindow([&] { return CanBeCancelled(*boxes.Active()); })) {
            PressInBox(WXK_ESCAPE);
        } else {
            PressWhereItDoesNothing(WXK_ESCAPE);
            ClickInBox(wxID_NO);
        }
    }
};

TEST_F(AddAndDeleteWindow, AddPutsANewRuleAtTheEndAndShowsIt) {
    PutRules(ThreeRules());
    Play([&] {
        Click(page().cmdAddList);
        WaitForSelection(4);
        EXPECT_THAT(Row(4), ElementsAre("NEW", "1", "2", "=", "USL", "New"));
        EXPECT_EQ(TextIn(page().txtCode), "NEW");
        EXPECT_EQ(ItemIn(page().cboCondition), "= - Equal to");
        EXPECT_TRUE(IsRowVisible(4));
        EXPECT_EQ(Status(), "4 rules");
    });
}

TEST_F(AddAndDeleteWindow, AddLeavesTheKeyboardInTheRuleIdWithItsTextSelected) {
    PutRules(ThreeRules());
    Play([&] {
        Click(page().cmdAddList);
        WaitForFocus(page().txtCode);
        Type("A7"); // in place of what is selected
        WaitUntil("the new name is taken", [&] { return page().txtCode.Text() == "A7"; });
    });
}

TEST_F(AddAndDeleteWindow, AddScrollsALongListToItsEnd) {
    PutRules(ManyRules(500));
    Play([&] {
        Click(page().cmdAddList);
        WaitForSelection(501);
        EXPECT_TRUE(IsRowVisible(501));
        EXPECT_EQ(Row(501).front(), "NEW");
    });
}

TEST_F(AddAndDeleteWindow, TheFirstRuleOfAnEmptyListCanBeAddedAndEdited) {
    Play([&] {
        Click(page().cmdAddList);
        WaitForSelection(1);
        Fill(page().txtCode, "A1");
        Fill(page().txtDescription, "The only one");
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
        EXPECT_EQ(Row(1).front(), "A1");
    });
    EXPECT_EQ(File(), FileOf({"A1|1|2|=|USL|The only one"}));
}

TEST_F(AddAndDeleteWindow, DeleteAsksAndYesDeletes) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(3);
        WaitForSelection(3);
        Click(page().cmdDeleteList);
        ExpectBox(kSure, "Confirm Delete");
        EXPECT_TRUE(InWindow([&] { return IsDefault(*boxes.Active(), wxID_YES); }));
        ClickInBox(wxID_YES);
        WaitForSelection(2);
        WaitForStatus("2 rules");
        EXPECT_EQ(TextIn(page().txtCode), "R2");
        WaitForFocus(page().cmdDeleteList);
    });
}

TEST_F(AddAndDeleteWindow, NoLeavesTheRule) {
    PutRules(ThreeRules());
    Play([&] {
        Click(page().cmdDeleteList);
        ExpectBox(kSure, "Confirm Delete");
        ClickInBox(wxID_NO);
        WaitForFocus(page().cmdDeleteList);
        EXPECT_EQ(Status(), "3 rules");
        EXPECT_EQ(SelectedRow(), 1);
    });
}

TEST_F(AddAndDeleteWindow, EscapeIsNoAndEnterIsYes) {
    PutRules(ThreeRules());
    Play([&] {
        Click(page().cmdDeleteList);
        ExpectBox(kSure, "Confirm Delete");
        PressEscapeInBox();
        WaitForFocus(page().cmdDeleteList);
        EXPECT_EQ(Status(), "3 rules");
        Press(WXK_SPACE);
        ExpectBox(kSure, "Confirm Delete");
        PressInBox(WXK_RETURN);
        WaitForStatus("2 rules");
    });
}

TEST_F(AddAndDeleteWindow, TheDeleteKeyOnTheListDeletesAsTheButtonDoes) {
    PutRules(ThreeRules());
    Play([&] {
        ClickRow(1);
        WaitForFocus(page().lstRulesList);
        Press(WXK_DELETE);
        ExpectBox(kSure, "Confirm Delete");
        PressInBox(WXK_RETURN);
        WaitForStatus("2 rules");
        EXPECT_EQ(Row(1).front(), "R2");
        WaitForSelection(1);
        WaitForFocus(page().lstRulesList);
        Press(WXK_DOWN);
        WaitForSelection(2);
    });
}

TEST_F(AddAndDeleteWindow, DeletingTheOnlyRuleLeavesAnEmptyFormAndTheFocusOnAButton) {
    PutRules({"R1|1|2|>|UCL|First rule"});
    Play([&] {
        Click(page().cmdDeleteList);
        ExpectBox(kSure, "Confirm Delete");
        PressInBox(WXK_RETURN);
        WaitForStatus("0 rules");
        EXPECT_EQ(TextIn(page().txtCode), "");
        EXPECT_EQ(ItemIn(page().cboCondition), "");
        EXPECT_EQ(ItemIn(page().cboZone), "");
        EXPECT_FALSE(IsEnabled(page().txtCode));
        WaitForFocus(page().cmdSaveRules);
        Press(WXK_SPACE);
        WaitForStatus("Saved");
    });
    EXPECT_EQ(File(), "");
}

} // namespace
} // namespace zy::test
