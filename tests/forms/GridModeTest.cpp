#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// The second view of the rules, which the page carries and nothing in the program shows.
class GridMode : public RulesForm {
  protected:
    std::vector<std::string> GridRows() {
        std::vector<std::string> rows;
        for (int row = 0; row < page().grdRules.Rows(); ++row) {
            std::string text(page().grdRules.Text(row, 0));
            for (int column = 1; column < page().grdRules.Columns(); ++column) {
                text += "|" + std::string(page().grdRules.Text(row, column));
            }
            rows.push_back(text);
        }
        return rows;
    }
};

TEST_F(GridMode, ShowsOneRowForEveryRuleBelowTheHeaders) {
    StartWithCodes({"A", "B"});
    handlers().ShowGridMode();
    EXPECT_THAT(GridRows(), ElementsAre("Code|Min|Max|Cond.|Zone|Description", "A|1|2|>|UCL|text  ",
                                        "B|1|2|>|UCL|text  "));
}

TEST_F(GridMode, HidesTheListAndTheDetailForm) {
    StartWithCodes({"A"});
    handlers().ShowGridMode();
    EXPECT_FALSE(page().fraRulesList.Visible());
    EXPECT_FALSE(page().FraRuleDetails.Visible());
    EXPECT_TRUE(page().fraGridMode.Visible());
    handlers().ShowListMode();
    EXPECT_TRUE(page().fraRulesList.Visible());
    EXPECT_TRUE(page().FraRuleDetails.Visible());
    EXPECT_FALSE(page().fraGridMode.Visible());
}

TEST_F(GridMode, ShowsTheRulesOfTheMomentEveryTime) {
    StartWithCodes({"A", "B", "C"});
    handlers().ShowGridMode();
    rules().Delete_Rule(1);
    rules().gaRules(1).Code = "X";
    handlers().ShowGridMode();
    EXPECT_THAT(GridRows(), ElementsAre("Code|Min|Max|Cond.|Zone|Description", "X|1|2|>|UCL|text  ",
                                        "C|1|2|>|UCL|text  "));
}

TEST_F(GridMode, ShowsTheHeadersAloneWithoutRules) {
    StartWithCodes({});
    handlers().ShowGridMode();
    EXPECT_EQ(page().grdRules.Rows(), 1);
}

TEST_F(GridMode, ChangesNoRuleAndSetsNoMark) {
    StartWithCodes({"A"});
    handlers().ShowGridMode();
    handlers().ShowListMode();
    ExpectInHand(1);
    ExpectMarks(false, false);
}

} // namespace
} // namespace zy::test
