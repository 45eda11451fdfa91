#include "RulesForm.h"
#include "shell/frmStandardRules.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::SizeIs;

/// Standard rules on their way into the list.
class InsertStandardRules : public RulesForm {
  protected:
    using User = std::function<void(frmStandardRules& dialog)>;

    void Insert(const User& user) {
        world.dialogs.ExpectForm([user](Form& form) { user(dynamic_cast<frmStandardRules&>(form)); });
        window().menu.mnuStandardRules.Click();
    }
    static User SetNumber(int set) {
        return [set](frmStandardRules& dialog) {
            dialog.lstSets.Pick(set);
            dialog.cmdInsertSet.Click();
        };
    }
    const std::string& Undo() { return window().menu.mnuUndo.Caption(); }
};

TEST_F(InsertStandardRules, AppendsThoseOfTheSetAndShowsTheFirst) {
    StartWithCodes({"A", "B"});
    Insert(SetNumber(1));
    EXPECT_THAT(Codes(), ElementsAre("A", "B", "W1U", "W1L", "W2U", "W2L", "W4U", "W4L"));
    EXPECT_EQ(Rows()[4], "W2U|2|3|>|UWL|2 of 3 points in a row above the upper warning limit");
    ExpectInHand(3);
    EXPECT_EQ(form().ChangeFlag, true);
    EXPECT_EQ(Status(), "8 rules   -   6 rules inserted");
}

TEST_F(InsertStandardRules, IsOneStepThatUndoTakesBackAndRedoDoesAgain) {
    StartWithCodes({"A", "B"});
    Insert(SetNumber(2));
    EXPECT_EQ(Undo(), "&Undo Insert Standard Rules");
    window().menu.mnuUndo.Click();
    EXPECT_THAT(Codes(), ElementsAre("A", "B"));
    EXPECT_EQ(form().ChangeFlag, false);
    window().menu.mnuRedo.Click();
    EXPECT_THAT(Codes(), SizeIs(10));
}

TEST_F(InsertStandardRules, InsertsRulesThatPassTheChecksAndAreReadBackAsTheyAre) {
    StartWithCodes({"W1U", "N1U"});
    const int sets = static_cast<int>(StandardSets().size());
    for (int set = 1; set <= sets; ++set) {
        Insert(SetNumber(set));
    }
    for (int item = 1; item <= list().Count(); ++item) {
        list().Pick(item);
        EXPECT_TRUE(handlers().detailChecks.Validate_Rule()) << Codes()[static_cast<std::size_t>(item) - 1];
    }
    const auto rows = Rows();
    ChooseSave();
    StartOver(*File());
    ASSERT_THAT(Rows(), SizeIs(rows.size()));
    EXPECT_EQ(Rows()[2], rows[2] + "  ") << "loading leaves two blanks";
}

TEST_F(InsertStandardRules, CanTakeASingleOne) {
    StartWithCodes({"A"});
    Insert([](frmStandardRules& dialog) {
        dialog.lstSets.Pick(7);
        dialog.lstSetRules.Pick(4);
        dialog.cmdInsertRule.Click();
    });
    EXPECT_EQ(Rows().back(), "L2L|10|11|<|AVG|10 of 11 points in a row below the average");
    EXPECT_THAT(Codes(), SizeIs(2));
    EXPECT_THAT(Status(), EndsWith("1 rule inserted"));
}

TEST_F(InsertStandardRules, ChangesNothingWhenTheUserThinksBetterOfIt) {
    StartWithCodes({"A"});
    page().txtMax.Enter("7");
    Insert([](frmStandardRules& dialog) { dialog.cmdCancel.Click(); });
    EXPECT_THAT(Codes(), ElementsAre("A"));
    EXPECT_EQ(page().txtMax.Text(), "7");
    EXPECT_EQ(Undo(), "&Undo Edit Maximum");
}

TEST_F(InsertStandardRules, OffersEachSetWithItsSourceItsRulesAndTheirPictures) {
    StartWithCodes({"A"});
    Insert([](frmStandardRules& dialog) {
        EXPECT_EQ(dialog.Caption(), "ZY Setup - Standard Rules");
        EXPECT_EQ(dialog.lstSets.Count(), 7);
        dialog.lstSets.Pick(2);
        EXPECT_EQ(dialog.lblSource.Caption(),
                  "Source: L. S. Nelson, Journal of Quality Technology 16(4), 1984, 237-239");
        EXPECT_EQ(LinesOf(dialog.lstSetRules).front(), "N1U|1|1|>|UCL|1 point above the upper control limit");
        EXPECT_EQ(dialog.picRule.Description(), "1 point above the upper control limit (UCL)");
        dialog.lstSetRules.Pick(5);
        EXPECT_EQ(dialog.picRule.Description(), "6 points in a row, each above the one before it (PREV)");
        EXPECT_FALSE(dialog.lstSetRules.isGrey(5));
        EXPECT_TRUE(dialog.cmdInsertRule.Enabled());
    });
}

TEST_F(InsertStandardRules, ShowsGreyWhatOurFieldsCannotSayAndWhy) {
    StartWithCodes({"A"});
    Insert([](frmStandardRules& dialog) {
        dialog.lstSetRules.Pick(5);
        EXPECT_TRUE(dialog.lstSetRules.isGrey(5));
        EXPECT_EQ(LinesOf(dialog.lstSetRules)[4],
                  "|||||4 of 5 points beyond 1 SD on one side: there is no zone at 1 SD");
        EXPECT_EQ(dialog.picRule.Description(),
                  "4 of 5 points beyond 1 SD on one side: there is no zone at 1 SD");
        EXPECT_FALSE(dialog.cmdInsertRule.Enabled());
        dialog.lstSets.Pick(2);
        EXPECT_TRUE(dialog.cmdInsertRule.Enabled());
    });
}

TEST_F(InsertStandardRules, SaysThatTypedTextWasDroppedAndUndoBringsItBack) {
    StartWithCodes({"A"});
    page().txtMax.Enter("7");
    Insert(SetNumber(1));
    EXPECT_THAT(Status(), EndsWith("Changes of A dropped; Edit > Undo brings them back"));
    window().menu.mnuUndo.Click();
    EXPECT_THAT(Codes(), ElementsAre("A"));
    EXPECT_EQ(page().txtMax.Text(), "7");
}

TEST_F(InsertStandardRules, IsOfferedByTheMenuOfTheListToo) {
    StartWithCodes({});
    int opened = 0;
    window().menu.mnuListPopMenu.popUp.Connect([&] { ++opened; });
    list().AskForMenu();
    EXPECT_EQ(opened, 1);
    world.dialogs.ExpectForm([](Form& form) { dynamic_cast<frmStandardRules&>(form).cmdInsertSet.Click(); });
    window().menu.mnuStandardRulesOfList.Click();
    EXPECT_THAT(Codes(), SizeIs(6));
}

TEST_F(InsertStandardRules, IsRefusedWhereTheListWouldGetLongerThanItCanBe) {
    std::string text;
    for (int i = 0; i < kMaxItems - 5; ++i) {
        text += "[RULE]\r\n";
    }
    StartOver(text);
    Insert(SetNumber(1));
    EXPECT_THAT(Status(), EndsWith("   -   Not added: the list is as long as it can be"));
    EXPECT_EQ(list().Count(), kMaxItems - 5);
    ExpectMarks(false, false);
}

TEST_F(InsertStandardRules, IsNoEntryOfTheOtherEditors) {
    ASSERT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_FALSE(window().menu.mnuStandardRules.Enabled());
    window().menu.mnuStandardRules.Click();
}

} // namespace
} // namespace zy::test
