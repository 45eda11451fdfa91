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
    Sheet OneSheet() { return SheetOf(rules.gaRules, '.', SvgLettering()); }
    static double TopOf(const Sheet& sheet, const std::string& front) {
        const auto& texts = sheet.drawing.texts;
        const auto found = std::find_if(texts.begin(), texts.end(),
                                        [&](const DrawnText& text) { return text.text.starts_with(front); });
        return found == texts.end() ? -1 : found->leftTop.y;
    }
};

TEST_F(SheetOfRules, HasEachRuleWithItsDescriptionAboveItsPicture) {
    AddCode("A");
    AddCode("B");
    const auto sheet = OneSheet();
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
    const auto sheet = OneSheet();
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
    const auto sheet = OneSheet();
    EXPECT_GT(TopOf(sheet, "No picture: Maximum"), TopOf(sheet, "A: text"));
    EXPECT_THAT(sheet.drawing.marks, IsEmpty());
}

TEST_F(SheetOfRules, CutsADescriptionThatIsTooLong) {
    AddCode("A").Description = std::string(60000, 'w');
    const auto heading = OneSheet().drawing.texts.front().text;
    EXPECT_THAT(heading, StartsWith("A: www"));
    EXPECT_THAT(heading, EndsWith("w..."));
    EXPECT_LT(SvgLettering().width(heading), OneSheet().size.width);
}

TEST_F(SheetOfRules, IsEmptyWithoutRules) {
    EXPECT_THAT(OneSheet().drawing.texts, IsEmpty());
    EXPECT_GT(OneSheet().size.height, 0);
}

class PagesOfRules : public SheetOfRules {
  protected:
    static constexpr Size kPaper{11906, 16838};

    Pages AllPages(const Size& page = kPaper) {
        return PagesOf(rules.gaRules, '.', SvgLettering(), page, "heading");
    }
    /// The beginnings of the rules on a page.
    static std::vector<std::string> CodesOn(const Drawing& page) {
        std::vector<std::string> codes;
        for (const auto& [leftTop, text] : page.texts) {
            if (const auto colon = text.find(": text"); colon != std::string::npos) {
                codes.push_back(text.substr(0, colon));
            }
        }
        return codes;
    }
};

TEST_F(PagesOfRules, HoldEveryRuleOnceInTheirOrder) {
    std::vector<std::string> codes;
    for (int i = 1; i <= 14; ++i) {
        codes.push_back(std::to_string(i));
        AddCode(codes.back());
    }
    const auto pages = AllPages();
    EXPECT_EQ(pages.count, 3);
    std::vector<std::string> seen;
    for (int page = 1; page <= pages.count; ++page) {
        const auto on = CodesOn(pages.make(page));
        EXPECT_LE(on.size(), 6U);
        seen.insert(seen.end(), on.begin(), on.end());
    }
    EXPECT_EQ(seen, codes);
}

TEST_F(PagesOfRules, HoldAllThatIsOnThemAboveTheirFoot) {
    for (int i = 1; i <= 14; ++i) {
        AddCode(std::to_string(i));
    }
    const auto page = AllPages().make(1);
    const auto foot = TopOf({page, {}}, "heading");
    EXPECT_EQ(TopOf({page, {}}, "Page 1 of 3"), foot);
    EXPECT_LT(foot + SvgLettering().height, kPaper.height);
    for (const auto& line : page.lines) {
        EXPECT_LT(std::max(line.from.y, line.to.y), foot);
        EXPECT_GT(std::min(line.from.x, line.to.x), 0);
        EXPECT_LT(std::max(line.from.x, line.to.x), kPaper.width);
    }
    for (const auto& [leftTop, text] : page.texts) {
        EXPECT_LE(leftTop.y, foot) << text;
        EXPECT_LT(leftTop.x + SvgLettering().width(text), kPaper.width) << text;
    }
}

TEST_F(PagesOfRules, AreOneWithoutRules) {
    EXPECT_EQ(AllPages().count, 1);
    EXPECT_THAT(CodesOn(AllPages().make(1)), IsEmpty());
}

TEST_F(PagesOfRules, HoldOneRuleEachWhereThereIsNoRoomForIt) {
    AddCode("A");
    AddCode("B");
    const auto pages = AllPages({1000, 500});
    EXPECT_EQ(pages.count, 2);
    EXPECT_EQ(CodesOn(pages.make(2)), std::vector<std::string>{"B"});
}

} // namespace
} // namespace zy::test
