#include "RulesForm.h"

namespace zy::test {
namespace {

/// What the status bar says in the course of the work.
class StatusTexts : public RulesForm {};

TEST_F(StatusTexts, TellTheNumberOfRules) {
    StartWithCodes({"A", "B", "C"});
    EXPECT_EQ(Status(), "3 rules");
    StartWithCodes({"A"});
    EXPECT_EQ(Status(), "1 rule");
    StartWithCodes({});
    EXPECT_EQ(Status(), "0 rules");
}

TEST_F(StatusTexts, FollowAddingAndDeleting) {
    StartWithCodes({"A"});
    page().cmdAddList.Click();
    EXPECT_EQ(Status(), "2 rules");
    Delete(Answer::Yes);
    EXPECT_EQ(Status(), "1 rule");
    Delete(Answer::Yes);
    EXPECT_EQ(Status(), "0 rules");
}

TEST_F(StatusTexts, TellOfLinesThatASaveWouldDrop) {
    StartOver("; one\r\n" + Text({RuleOf("A")}));
    EXPECT_EQ(Status(), "1 rule; 1 line of the file not understood, saving drops them");
    StartOver("; one\r\n; two\r\n");
    EXPECT_EQ(Status(), "0 rules; 2 lines of the file not understood, saving drops them");
}

TEST_F(StatusTexts, TellOfThoseLinesNoMoreAfterASave) {
    StartOver("; one\r\n" + Text({RuleOf("A")}));
    page().cmdAddList.Click();
    page().cmdSaveRules.Click();
    EXPECT_EQ(Status(), "Saved");
    list().Pick(1);
    EXPECT_EQ(Status(), "2 rules");
}

TEST_F(StatusTexts, TellThatTheFormDiffersFromTheRuleInHand) {
    StartWithCodes({"A", "B"});
    page().txtDescription.Enter("x");
    EXPECT_EQ(Status(), "2 rules   -   A edited; File > Save stores it");
    page().txtDescription.Enter("text  ");
    EXPECT_EQ(Status(), "2 rules");
}

TEST_F(StatusTexts, TellItForEveryField) {
    StartWithCodes({"A"});
    const std::string edited = "1 rule   -   A edited; File > Save stores it";
    const auto expectToggle = [&](const auto& edit, const auto& takeBack) {
        edit();
        EXPECT_EQ(Status(), edited);
        takeBack();
        EXPECT_EQ(Status(), "1 rule");
    };
    for (TextBox* box : {&page().txtCode, &page().txtMin, &page().txtMax, &page().txtDescription}) {
        const std::string before = box->Text();
        expectToggle([&] { box->Enter(before == "2" ? "3" : "2"); }, [&] { box->Enter(before); });
    }
    expectToggle([&] { page().cboCondition.Pick(1); }, [&] { page().cboCondition.Pick(0); });
    expectToggle([&] { page().cboZone.Pick(0); }, [&] { page().cboZone.Pick(1); });
}

TEST_F(StatusTexts, NameTheCodeThatTheRuleHas) {
    StartWithCodes({"A", "B"});
    list().Pick(2);
    page().txtCode.Enter("X");
    EXPECT_EQ(Status(), "2 rules   -   B edited; File > Save stores it");
}

TEST_F(StatusTexts, TellThatAnEditWasDroppedAndForgetItAtTheNextRule) {
    StartWithCodes({"A", "B", "C"});
    page().txtCode.Enter("X");
    list().Pick(2);
    EXPECT_EQ(Status(), "3 rules   -   Changes of A dropped; Edit > Undo brings them back");
    list().Pick(3);
    EXPECT_EQ(Status(), "3 rules");
}

TEST_F(StatusTexts, TellASave) {
    StartWithCodes({"A"});
    page().txtCode.Enter("X");
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(StatusTexts, TellBesideThePagesSaveThatTheFormIsNotInTheFile) {
    StartWithCodes({"A"});
    page().txtCode.Enter("X");
    page().cmdSaveRules.Click();
    EXPECT_EQ(Status(), "Saved   -   A differs from its fields; change one, then File > Save stores them");
    page().txtMin.Enter("2");
    EXPECT_EQ(Status(), "1 rule   -   A edited; File > Save stores it");
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(StatusTexts, TellTheNumberAgainWithTheNextEdit) {
    StartWithCodes({"A"});
    page().txtCode.Enter("X");
    ChooseSave();
    page().txtMin.Enter("2");
    EXPECT_EQ(Status(), "1 rule   -   X edited; File > Save stores it");
}

TEST_F(StatusTexts, TellWhyASaveFailed) {
    StartWithCodes({"A"});
    page().txtCode.Enter("X");
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    ChooseSave();
    EXPECT_EQ(Status(), "Not saved, Rules.tmp could not be created: access is denied; change a rule and save "
                        "again before closing");
}

TEST_F(StatusTexts, TellWhereTheRulesStandWhenTheFileCouldNotBeReplaced) {
    StartWithCodes({"A"});
    page().txtCode.Enter("X");
    world.files.SetHeldOpen(kRulesFile);
    ChooseSave();
    EXPECT_EQ(Status(), "The rules stand in Rules.tmp, ZYRules.sys could not be replaced: "
                        "another program is using it; change a rule and save again before closing");
}

TEST_F(StatusTexts, TellThatARuleCannotBeShownAsItIs) {
    auto rule = RuleOf("A");
    rule.Zone = "Avg ";
    StartWith({rule});
    EXPECT_EQ(Status(), "1 rule   -   A differs from its fields; change one, then File > Save stores them")
        << "the list spells the zone otherwise";
}

} // namespace
} // namespace zy::test
