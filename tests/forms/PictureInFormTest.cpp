#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

/// The picture beside the fields of a rule.
class PictureInForm : public RulesForm {
  protected:
    const std::string& Words() { return page().picRule.Description(); }
    Drawing Drawn() {
        return page().picRule.DrawingIn(
            {6000, 1700}, {200, [](std::string_view text) { return 100 * static_cast<int>(text.size()); }});
    }
    static RunRule Rule(const char* code, const char* min, const char* max, const char* cond,
                        const char* zone) {
        auto rule = RuleOf(code);
        rule.Min = min;
        rule.Max = max;
        rule.Cond = cond;
        rule.Zone = zone;
        return rule;
    }
};

TEST_F(PictureInForm, ShowsTheRuleThatIsSelected) {
    StartWith({Rule("A", "1", "1", ">", "UCL"), Rule("B", "6", "6", "<", "PREV")});
    EXPECT_EQ(Words(), "1 point above the upper control limit (UCL)");
    EXPECT_THAT(Drawn().marks, SizeIs(1));
    list().Pick(2);
    EXPECT_EQ(Words(), "6 points in a row, each below the one before it (PREV)");
    EXPECT_THAT(Drawn().marks, SizeIs(7));
}

TEST_F(PictureInForm, FollowsEachKeyInTheCountsAndEachChoice) {
    StartWith({Rule("A", "1", "1", ">", "UCL")});
    page().txtMax.Enter("12");
    EXPECT_EQ(Words(), "1 of 12 points in a row above the upper control limit (UCL)");
    page().txtMin.Enter("");
    EXPECT_EQ(Words(), "No picture: Minimum is no number from 1 to 100");
    EXPECT_THAT(Drawn().marks, IsEmpty());
    page().txtMin.Enter("13");
    EXPECT_EQ(Words(), "No picture: Minimum is above Maximum");
    page().txtMin.Enter("11");
    page().cboCondition.Pick(3);
    page().cboZone.Pick(11);
    EXPECT_EQ(Words(), "11 of 12 points in a row on or below the average (AVG)");
    EXPECT_THAT(Drawn().marks, SizeIs(12));
}

TEST_F(PictureInForm, TellsTheViewOfEachChangeAndOfNoOther) {
    StartWith({Rule("A", "1", "1", ">", "UCL"), Rule("B", "1", "1", ">", "UCL")});
    int changes = 0;
    page().picRule.changed.Connect([&] { ++changes; });
    page().cmdUpDown.PressDown();
    EXPECT_EQ(changes, 0) << "the same rule, moved";
    list().Pick(1);
    EXPECT_EQ(changes, 0) << "another rule that says the same";
    page().txtDescription.Enter("a");
    page().txtCode.Enter("C");
    EXPECT_EQ(changes, 0) << "the picture says neither";
    page().txtMax.Enter("3");
    EXPECT_EQ(changes, 1);
    list().Pick(1);
    EXPECT_EQ(changes, 1);
}

TEST_F(PictureInForm, FollowsUndoAndRedo) {
    StartWith({Rule("A", "1", "1", ">", "UCL")});
    page().txtMax.Enter("3");
    window().menu.mnuUndo.Click();
    EXPECT_EQ(Words(), "1 point above the upper control limit (UCL)");
    window().menu.mnuRedo.Click();
    EXPECT_EQ(Words(), "1 of 3 points in a row above the upper control limit (UCL)");
}

TEST_F(PictureInForm, IsEmptyWithoutARule) {
    StartWith({Rule("A", "1", "1", ">", "UCL")});
    Delete(Answer::Yes);
    EXPECT_EQ(Words(), "");
    EXPECT_THAT(Drawn().texts, IsEmpty());
    page().cmdAddList.Click();
    EXPECT_EQ(Words(), "1 of 2 points in a row on the upper specification limit (USL)");
}

TEST_F(PictureInForm, SaysThatNoZoneIsChosenWhereTheListOfZonesHasNone) {
    StartWith({Rule("A", "1", "1", ">", "NONE")});
    EXPECT_EQ(Words(), "No picture: no zone is chosen");
}

TEST_F(PictureInForm, ReadsTheCountsInTheUsersOwnNumbers) {
    world.system.SetDecimalSeparator(',');
    StartWith({Rule("A", "2,0", "3,0", ">", "UWL")});
    EXPECT_EQ(Words(), "2 of 3 points in a row above the upper warning limit (UWL)");
}

TEST_F(PictureInForm, IsToldInWordsOfEveryRuleOfTheList) {
    StartWith({Rule("A", "1", "1", ">", "UCL"), Rule("B", "3", "2", "<", "PREV")});
    EXPECT_EQ(list().hint(1), "1 point above the upper control limit (UCL)");
    EXPECT_EQ(list().hint(2), "") << "there is no picture of it";
}

TEST_F(PictureInForm, StandsRightOfTheFieldsWhereThereIsRoomAndIsHiddenElsewhere) {
    StartWithCodes({"A"});
    form().SetInnerSize({8600, 8000});
    const auto placesOf = [this] {
        std::vector<Rect> places;
        for (const auto* control : page().FraRuleDetails.Children()) {
            if (control != &page().picRule && control != &page().txtDescription) {
                places.push_back(control->Bounds());
            }
        }
        return places;
    };
    const auto places = placesOf();
    page().cboZone.SetPreferred({5000, 300});
    form().SetInnerSize({8601, 8000});
    EXPECT_FALSE(page().picRule.Visible());
    page().cboZone.SetPreferred({});
    form().SetInnerSize({13000, 8000});
    ASSERT_TRUE(page().picRule.Visible());
    EXPECT_EQ(placesOf(), places);
    const auto& place = page().picRule.Bounds();
    EXPECT_GT(place.left, page().cboZone.Bounds().Right());
    EXPECT_GT(place.left, page().txtMax.Bounds().Right());
    EXPECT_EQ(place.Right(), page().txtDescription.Bounds().Right());
    EXPECT_LT(place.Bottom(), page().txtDescription.Bounds().top);
}

TEST_F(PictureInForm, IsHiddenWhereItsLettersNeedMoreRoom) {
    StartWithCodes({"A"});
    form().SetInnerSize({13000, 8000});
    ASSERT_TRUE(page().picRule.Visible());
    page().picRule.SetPreferred({20000, 900});
    form().SetInnerSize({13001, 8000});
    EXPECT_FALSE(page().picRule.Visible());
}

} // namespace
} // namespace zy::test
