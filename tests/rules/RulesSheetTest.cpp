#include "rules/RulesSheet.h"

#include <algorithm>

#include "RulesTest.h"
#include "rules/SvgText.h"

namespace zy::test {
namespace {

using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class SheetOfRules : public RulesTest {
  protected:
    RulesSheet Sheet() { return SheetOf(rules.gaRules, '.', SvgLettering()); }
    static double TopOf(const RulesSheet& sheet, const std::string& front) {
        const auto& texts = sheet.drawing.texts;
        const auto found = std::find_if(texts.begin(), texts.end(),
                                        [&](const DrawnText& text) { return text.text.starts_with(front); });
        return found == texts.end() ? -1 : found->leftTop.y;
    }
};

TEST_F(SheetOfRules, HasEachRuleWithItsDescriptionAboveItsPicture) {
    AddCode("A");
    AddCode("B");
    const auto sheet = Sheet();
    const auto sentence = std::string("1 of 2 points in a row above");
    EXPECT_GT(TopOf(sheet, "A: text"), 0);
    EXPECT_LT(TopOf(sheet, "A: text"), TopOf(sheet, sentence));
    EXPECT_LT(TopOf(sheet, sentence), TopOf(sheet, "B: text"));
    EXPECT_EQ(sheet.drawing.marks.size(), 4U);
    const double between = TopOf(sheet, "B: text");
    const auto below = [&](const DrawnLine& line) { return line.from.y > between && line.to.y > between; };
    const auto above = [&](const DrawnLine& line) { return line.from.y < between && line.to.y < between; };
    const auto& lines = sheet.drawing.lines;
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(), below), 4);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(), above), 4);
}

TEST_F(SheetOfRules, HoldsAllThatIsOnIt) {
    for (const auto* code : {"A", "B", "C"}) {
        AddCode(code);
    }
    const auto sheet = Sheet();
    const auto isInside = [&](double x, double y) {
        return x >= 0 && y >= 0 && x <= sheet.size.width && y <= sheet.size.height;
    };
    for (const auto& line : sheet.drawing.lines) {
        EXPECT_TRUE(isInside(line.from.x, line.from.y) && isInside(line.to.x, line.to.y));
    }
    for (const auto& [leftTop, text] : sheet.drawing.texts) {
        const auto letters = SvgLettering();
        EXPECT_TRUE(isInside(leftTop.x, leftTop.y)) << text;
        EXPECT_TRUE(isInside(leftTop.x + letters.width(text), leftTop.y + letters.height)) << text;
    }
}

TEST_F(SheetOfRules, SaysOfARuleWithoutAPictureWhyThereIsNone) {
    AddCode("A").Max = "0";
    const auto sheet = Sheet();
    EXPECT_GT(TopOf(sheet, "No picture: Maximum"), TopOf(sheet, "A: text"));
    EXPECT_THAT(sheet.drawing.marks, IsEmpty());
}

TEST_F(SheetOfRules, CutsADescriptionThatIsTooLong) {
    AddCode("A").Description = std::string(60000, 'w');
    const auto heading = Sheet().drawing.texts.front().text;
    EXPECT_THAT(heading, StartsWith("A: www"));
    EXPECT_THAT(heading, EndsWith("w..."));
    EXPECT_LT(SvgLettering().width(heading), Sheet().size.width);
}

TEST_F(SheetOfRules, IsEmptyWithoutRules) {
    EXPECT_THAT(Sheet().drawing.texts, IsEmpty());
    EXPECT_GT(Sheet().size.height, 0);
}

} // namespace
} // namespace zy::test
