#include "rules/RuleDrawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

namespace zy::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr int kLetter = 100;
constexpr int kHeight = 240;
constexpr Size kRoom{6000, 1700};

/// Letters that are all as wide as each other.
Lettering Letters() {
    return {kHeight, [](std::string_view text) { return kLetter * static_cast<int>(text.size()); }};
}

RulePicture PictureOf(const std::string& min, const std::string& max, const std::string& cond,
                      const std::string& zone) {
    RunRule rule;
    rule.Min = min;
    rule.Max = max;
    rule.Cond = cond;
    rule.Zone = zone;
    return zy::PictureOf(rule, '.');
}

Drawing DrawingOf(const std::string& min, const std::string& max, const std::string& cond,
                  const std::string& zone, const Size& room = kRoom) {
    return zy::DrawingOf(PictureOf(min, max, cond, zone), room, Letters());
}

std::vector<std::string> TextsIn(const Drawing& drawing) {
    std::vector<std::string> texts;
    for (const auto& text : drawing.texts) {
        texts.push_back(text.text);
    }
    return texts;
}

/// What keeps a drawing from standing whole in its room, with no text in the way of another one.
std::string Fault(const Drawing& drawing, const Size& room) {
    const auto isInside = [&](double x, double y) {
        return x >= 0 && y >= 0 && x <= room.width && y <= room.height;
    };
    for (const auto& line : drawing.lines) {
        if (!isInside(line.from.x, line.from.y) || !isInside(line.to.x, line.to.y)) {
            return "a line leads outside";
        }
    }
    for (const auto& [centre, radius, ink, shape] : drawing.marks) {
        if (!isInside(centre.x - radius, centre.y - radius) ||
            !isInside(centre.x + radius, centre.y + radius)) {
            return "a mark stands outside";
        }
    }
    double free = 0;
    for (const auto& [leftTop, text] : drawing.texts) {
        const double right = leftTop.x + Letters().width(text);
        if (!isInside(leftTop.x, leftTop.y) || !isInside(right, leftTop.y + kHeight)) {
            return "\"" + text + "\" stands outside";
        }
        if (leftTop.y < free) {
            return "\"" + text + "\" stands in another text's way";
        }
        free = leftTop.y + kHeight;
    }
    return "";
}

TEST(DrawingOfARule, StandsWholeInItsRoomWithoutOneTextInAnothersWay) {
    for (const auto* zone : {"USL", "UCL", "UWL", "TARG", "LWL", "LCL", "LSL", "PREV", "+4S", "+3S", "+15S",
                             "AVG", "-15S", "-3S", "-4S"}) {
        for (const auto* cond : {">", ">=", "<", "<=", "="}) {
            for (const auto* max : {"1", "3", "20", "100"}) {
                for (const Size room : {Size{4000, 1400}, Size{6000, 1700}, Size{40000, 9000}}) {
                    ASSERT_EQ(Fault(DrawingOf("1", max, cond, zone, room), room), "")
                        << max << cond << zone << " in " << room.width;
                }
            }
        }
    }
}

TEST(DrawingOfARule, HasTheLinesInTheColoursOfTheListEachBrokenUpInAnotherWay) {
    const auto lookOf = [](const char* zone) {
        const auto line = DrawingOf("1", "1", "<", zone).lines;
        const auto found = std::max_element(line.begin(), line.end(), [](const auto& one, const auto& other) {
            return one.width < other.width; // the line of the rule is the thickest
        });
        return std::pair(found->ink, found->stroke);
    };
    EXPECT_EQ(lookOf("USL"), std::pair(Ink::White, Stroke::DashDotted));
    EXPECT_EQ(lookOf("LSL"), std::pair(Ink::White, Stroke::DashDotted));
    EXPECT_EQ(lookOf("UCL"), std::pair(Ink::Red, Stroke::Dashed));
    EXPECT_EQ(lookOf("LCL"), std::pair(Ink::Red, Stroke::Dashed));
    EXPECT_EQ(lookOf("UWL"), std::pair(Ink::Yellow, Stroke::Dotted));
    EXPECT_EQ(lookOf("LWL"), std::pair(Ink::Yellow, Stroke::Dotted));
    EXPECT_EQ(lookOf("TARG"), std::pair(Ink::Green, Stroke::Solid));
    EXPECT_EQ(lookOf("AVG"), std::pair(Ink::Text, Stroke::Solid));
    EXPECT_EQ(lookOf("+15S"), std::pair(Ink::Text, Stroke::LongDashed));
}

TEST(DrawingOfARule, HasTheCodeOfEachLineInFrontOfIt) {
    const auto drawing = DrawingOf("1", "1", ">", "UCL");
    EXPECT_THAT(TextsIn(drawing),
                ElementsAre("UCL", "AVG", "LCL", "1 point above the upper control limit (UCL)"));
    for (std::size_t line = 0; line < 3; ++line) {
        EXPECT_DOUBLE_EQ(drawing.texts[line].leftTop.y + kHeight / 2.0, drawing.lines[line].from.y);
        EXPECT_LT(drawing.texts[line].leftTop.x + 3 * kLetter, drawing.lines[line].from.x);
    }
}

TEST(DrawingOfARule, HasDiamondsForThePointsThatBreakTheRuleAndRingsForTheOthers) {
    std::vector<DrawnMark::Shape> shapes;
    const auto drawing = DrawingOf("2", "3", ">", "UWL");
    for (const auto& mark : drawing.marks) {
        shapes.push_back(mark.shape);
    }
    EXPECT_THAT(shapes,
                ElementsAre(DrawnMark::Shape::Diamond, DrawnMark::Shape::Ring, DrawnMark::Shape::Diamond));
    const double line = drawing.lines[1].from.y;
    EXPECT_LT(drawing.marks[0].centre.y, line);
    EXPECT_GT(drawing.marks[1].centre.y, line);
    EXPECT_LT(drawing.marks[2].centre.y, line);
}

TEST(DrawingOfARule, JoinsThePointsInTheOrderOfTime) {
    const auto drawing = DrawingOf("3", "3", "<", "PREV");
    ASSERT_THAT(drawing.lines, SizeIs(3));
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(drawing.lines[i].from.x, drawing.marks[i].centre.x);
        EXPECT_EQ(drawing.lines[i].to.y, drawing.marks[i + 1].centre.y);
        EXPECT_LT(drawing.marks[i].centre.x, drawing.marks[i + 1].centre.x);
        EXPECT_LT(drawing.marks[i].centre.y, drawing.marks[i + 1].centre.y) << "they fall";
    }
}

TEST(DrawingOfARule, BreaksALongSentenceBetweenTwoWords) {
    const auto texts = TextsIn(DrawingOf("2", "3", ">", "UWL", {4000, 1700}));
    ASSERT_THAT(texts, SizeIs(5));
    EXPECT_EQ(texts[3] + " " + texts[4], "2 of 3 points in a row above the upper warning limit (UWL)");
}

TEST(DrawingOfARule, CutsASentenceThatTwoLinesCannotHold) {
    const auto texts = TextsIn(DrawingOf("2", "3", ">", "UWL", {2000, 1700}));
    ASSERT_THAT(texts, SizeIs(5));
    EXPECT_THAT(texts[4], EndsWith("..."));
    EXPECT_THAT("2 of 3 points in a row above the upper warning limit (UWL)", StartsWith(texts[3]));
    EXPECT_LE(texts[4].size() * kLetter, 2000U);
}

TEST(DrawingOfARule, SaysAloneInTheMiddleWhyThereIsNothingToBeDrawn) {
    const auto drawing = DrawingOf("", "3", ">", "UWL");
    EXPECT_THAT(drawing.lines, IsEmpty());
    EXPECT_THAT(drawing.marks, IsEmpty());
    EXPECT_THAT(TextsIn(drawing), ElementsAre("No picture: Minimum is no number from 1 to 100"));
    EXPECT_DOUBLE_EQ(drawing.texts[0].leftTop.y, (kRoom.height - kHeight) / 2.0);
}

TEST(DrawingOfARule, ComesToAnEndWhereThereIsNoRoomAtAll) {
    const auto drawing = DrawingOf("2", "3", ">", "UWL", {0, 0});
    EXPECT_THAT(drawing.marks, SizeIs(3));
}

} // namespace
} // namespace zy::test
