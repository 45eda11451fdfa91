#include "rules/RulePicture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace zy::test {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::array<const char*, 5> kAllRelations{">", ">=", "<", "<=", "="};
constexpr std::array<const char*, 15> kAllZones{"USL", "UCL", "UWL",  "TARG", "LWL",  "LCL", "LSL", "PREV",
                                                "+4S", "+3S", "+15S", "AVG",  "-15S", "-3S", "-4S"};

RunRule RuleOf(const std::string& min, const std::string& max, const std::string& cond,
               const std::string& zone) {
    RunRule rule;
    rule.Min = min;
    rule.Max = max;
    rule.Cond = cond;
    rule.Zone = zone;
    return rule;
}

RulePicture PictureOf(const std::string& min, const std::string& max, const std::string& cond,
                      const std::string& zone) {
    return zy::PictureOf(RuleOf(min, max, cond, zone), '.');
}

std::string SentenceOf(const std::string& min, const std::string& max, const std::string& cond,
                       const std::string& zone) {
    return PictureOf(min, max, cond, zone).sentence;
}

/// What the charts do with a rule: they look at each point with those before it, and find the rule broken
/// where of the last `of` points at least `count` stand in the relation to the line.
class Evaluator {
  public:
    Evaluator(int count, int of, std::string_view cond, std::string_view zone, const RulePicture& picture)
        : count_(count), of_(static_cast<std::size_t>(of)), isAbove_(cond.front() == '>'),
          isBelow_(cond.front() == '<'), isOn_(cond.back() == '='), comparesPoints_(zone == "PREV") {
        for (const auto& line : picture.lines) {
            line_ = line.zone == zone ? line.height : line_;
        }
    }

    /// The first point that has another one to be compared with.
    std::size_t First() const { return comparesPoints_ ? 1 : 0; }
    double Line() const { return line_; }

    bool Counts(const std::vector<double>& points, std::size_t at) const {
        const double against = comparesPoints_ ? points[at - 1] : line_;
        return (isAbove_ && points[at] > against) || (isBelow_ && points[at] < against) ||
               (isOn_ && points[at] == against);
    }
    /// The point with which the rule is found broken; nothing when it is not.
    std::optional<std::size_t> BrokenAt(const std::vector<double>& points) const {
        int counting = 0;
        for (std::size_t at = First(); at < points.size(); ++at) {
            counting += Counts(points, at) ? 1 : 0;
            counting -= at >= First() + of_ && Counts(points, at - of_) ? 1 : 0;
            if (counting >= count_) {
                return at;
            }
        }
        return std::nullopt;
    }

    /// The points with one of them moved so that it does not count any more. Where points are compared with
    /// one another the later ones go with it, or the next one would count in its place.
    std::vector<double> TakenBack(std::vector<double> points, std::size_t at) const {
        const double against = comparesPoints_ ? points[at - 1] : line_;
        const double away = isBelow_ ? 1 : -1;
        const double shift = against + away - points[at];
        for (std::size_t moved = at; moved < (comparesPoints_ ? points.size() : at + 1); ++moved) {
            points[moved] += shift;
        }
        return points;
    }

  private:
    int count_;
    std::size_t of_;
    bool isAbove_;
    bool isBelow_;
    bool isOn_;
    bool comparesPoints_;
    double line_ = 0;
};

/// What is wrong with the picture of a rule; empty when nothing is.
std::string Fault(int count, int of, const std::string& cond, const std::string& zone) {
    const auto picture = PictureOf(std::to_string(count), std::to_string(of), cond, zone);
    const Evaluator evaluator(count, of, cond, zone, picture);
    const auto& points = picture.points;
    if (points.size() != static_cast<std::size_t>(of) + evaluator.First()) {
        return "it has not the points that the rule looks at";
    }
    std::vector<std::size_t> counting;
    for (std::size_t at = evaluator.First(); at < points.size(); ++at) {
        if (evaluator.Counts(points, at)) {
            counting.push_back(at);
        }
    }
    const auto& marked = picture.marked;
    if (counting != marked || marked.size() != static_cast<std::size_t>(count)) {
        return "the marked points are not those that count";
    }
    if (evaluator.BrokenAt(points) != points.size() - 1) {
        return "the rule is not broken by the last point";
    }
    for (const std::size_t at : {marked.front(), marked[marked.size() / 2], marked.back()}) {
        if (evaluator.BrokenAt(evaluator.TakenBack(points, at))) {
            return "the rule is broken without point " + std::to_string(at) + " too";
        }
    }
    const auto isOutside = [&](double height) { return height <= picture.bottom || height >= picture.top; };
    if (std::any_of(points.begin(), points.end(), isOutside)) {
        return "a point lies outside of the chart";
    }
    return "";
}

TEST(PictureOfARule, BreaksTheRuleInEveryRelationToEveryLineAndDoesNotWithOnePointLess) {
    constexpr int kMost = 100;
    for (const auto* cond : kAllRelations) {
        for (const auto* zone : kAllZones) {
            for (int of = 1; of <= kMost; ++of) {
                for (int count = 1; count <= of; ++count) {
                    ASSERT_EQ(Fault(count, of, cond, zone), "") << count << " of " << of << cond << zone;
                }
            }
        }
    }
}

TEST(PictureOfARule, HasNoPointBeyondALineThatTheRuleDoesNotSpeakOf) {
    for (const auto* zone : kAllZones) {
        for (const auto* cond : kAllRelations) {
            const auto picture = PictureOf("7", "13", cond, zone);
            const Evaluator evaluator(7, 13, cond, zone, picture);
            for (const double point : picture.points) {
                for (const auto& line : picture.lines) {
                    const bool crossed = (point - line.height) * (evaluator.Line() - line.height) < 0;
                    EXPECT_FALSE(crossed) << cond << zone << " at " << line.zone;
                }
            }
        }
    }
}

TEST(PictureOfARule, HasTheLinesThatMatterFromTheTopDown) {
    const auto linesOf = [](const char* zone) {
        std::vector<std::string_view> zones;
        const auto picture = PictureOf("1", "1", ">", zone);
        for (const auto& line : picture.lines) {
            zones.push_back(line.zone);
        }
        EXPECT_TRUE(
            std::is_sorted(picture.lines.begin(), picture.lines.end(),
                           [](const auto& one, const auto& other) { return one.height > other.height; }));
        EXPECT_EQ(picture.zone, zone);
        return zones;
    };
    EXPECT_THAT(linesOf("USL"), ElementsAre("USL", "TARG", "LSL"));
    EXPECT_THAT(linesOf("TARG"), ElementsAre("USL", "TARG", "LSL"));
    EXPECT_THAT(linesOf("LSL"), ElementsAre("USL", "TARG", "LSL"));
    EXPECT_THAT(linesOf("UCL"), ElementsAre("UCL", "AVG", "LCL"));
    EXPECT_THAT(linesOf("AVG"), ElementsAre("UCL", "AVG", "LCL"));
    EXPECT_THAT(linesOf("LCL"), ElementsAre("UCL", "AVG", "LCL"));
    EXPECT_THAT(linesOf("UWL"), ElementsAre("UCL", "UWL", "AVG"));
    EXPECT_THAT(linesOf("LWL"), ElementsAre("AVG", "LWL", "LCL"));
    EXPECT_THAT(linesOf("+4S"), ElementsAre("+4S", "AVG"));
    EXPECT_THAT(linesOf("-3S"), ElementsAre("AVG", "-3S"));
    EXPECT_THAT(linesOf("PREV"), IsEmpty());
}

TEST(PictureOfARule, HasALineAtFifteenDeviationsWhereTheListSaysSo) {
    EXPECT_THAT(PictureOf("1", "1", ">", "+15S").lines.front().height, DoubleEq(15));
    EXPECT_THAT(PictureOf("1", "1", ">", "-15S").lines.back().height, DoubleEq(-15));
}

TEST(PictureOfARule, ShowsSixRisesAsSevenPoints) {
    const auto picture = PictureOf("6", "6", ">", "PREV");
    EXPECT_THAT(picture.points, SizeIs(7));
    EXPECT_THAT(picture.marked, ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_TRUE(std::is_sorted(picture.points.begin(), picture.points.end()));
}

TEST(PictureOfARule, MarksTheFirstAndTheLastPointAndSpreadsTheOthers) {
    EXPECT_THAT(PictureOf("2", "3", ">", "UWL").marked, ElementsAre(0, 2));
    EXPECT_THAT(PictureOf("1", "4", ">", "UWL").marked, ElementsAre(3));
    EXPECT_THAT(PictureOf("3", "9", "<", "AVG").marked, ElementsAre(0, 4, 8));
}

TEST(PictureOfARule, ShowsAPointOnTheLineWhereThatCountsToo) {
    const auto picture = PictureOf("3", "3", ">=", "UCL");
    EXPECT_THAT(picture.points[0], DoubleEq(3));
    EXPECT_GT(picture.points[1], 3);
    EXPECT_GT(picture.points[2], 3);
    EXPECT_GT(PictureOf("1", "1", ">=", "UCL").points[0], 3);
}

TEST(PictureOfARule, LooksTheSameEachTime) {
    EXPECT_EQ(PictureOf("4", "5", ">", "UWL").points, PictureOf("4", "5", ">", "UWL").points);
}

TEST(PictureOfARule, SaysWhatItShows) {
    EXPECT_EQ(SentenceOf("2", "3", ">", "UWL"), "2 of 3 points in a row above the upper warning limit (UWL)");
    EXPECT_EQ(SentenceOf("1", "1", "<", "LCL"), "1 point below the lower control limit (LCL)");
    EXPECT_EQ(SentenceOf("8", "8", ">=", "AVG"), "8 points in a row on or above the average (AVG)");
    EXPECT_EQ(SentenceOf("1", "2", "<=", "-3S"),
              "1 of 2 points in a row on or below the average - 3 SD (-3S)");
    EXPECT_EQ(SentenceOf("2", "2", "=", "TARG"), "2 points in a row on the target (TARG)");
    EXPECT_EQ(SentenceOf("1", "1", ">", "+15S"), "1 point above the average + 15 SD (+15S)");
    EXPECT_EQ(SentenceOf("6", "6", ">", "PREV"), "6 points in a row, each above the one before it (PREV)");
    EXPECT_EQ(SentenceOf("5", "6", "<=", "PREV"),
              "5 of 6 points in a row, each equal to or below the one before it (PREV)");
    EXPECT_EQ(SentenceOf("1", "1", "=", "PREV"), "1 point equal to the one before it (PREV)");
}

TEST(PictureOfARule, SaysSomethingElseOfEveryRule) {
    std::set<std::string> sentences;
    for (const auto* zone : kAllZones) {
        for (const auto* cond : kAllRelations) {
            sentences.insert(SentenceOf("2", "3", cond, zone));
            sentences.insert(SentenceOf("3", "3", cond, zone));
        }
    }
    EXPECT_THAT(sentences, SizeIs(kAllZones.size() * kAllRelations.size() * 2));
}

TEST(PictureOfARule, ReadsTheFieldsAsTheirChecksDo) {
    EXPECT_EQ(SentenceOf(" 2 ", "1e1", ">", "UCL"), SentenceOf("2", "10", ">", "UCL"));
    EXPECT_EQ(SentenceOf("2.0", "+3", ">", "UCL"), SentenceOf("2", "3", ">", "UCL"));
    EXPECT_EQ(SentenceOf("2", "3", ">", "TARG "), SentenceOf("2", "3", ">", "TARG"));
    EXPECT_EQ(SentenceOf("2", "3", ">", "Avg "), SentenceOf("2", "3", ">", "AVG"));
    EXPECT_EQ(zy::PictureOf(RuleOf("2,0", "3", ">", "UCL"), ',').sentence, SentenceOf("2", "3", ">", "UCL"));
}

TEST(PictureOfARule, IsNotDrawnWhereAFieldHasNoValueAndSaysWhichOneIsTheFirst) {
    const auto expectNone = [](const char* min, const char* max, const char* cond, const char* zone,
                               const char* why) {
        const auto picture = PictureOf(min, max, cond, zone);
        EXPECT_EQ(picture.sentence, std::string("No picture: ") + why);
        EXPECT_FALSE(picture.IsDrawn());
        EXPECT_THAT(picture.lines, IsEmpty());
        EXPECT_THAT(picture.marked, IsEmpty());
    };
    expectNone("", "", "", "", "Minimum is no number from 1 to 100");
    expectNone("x", "3", ">", "UCL", "Minimum is no number from 1 to 100");
    expectNone("0", "3", ">", "UCL", "Minimum is no number from 1 to 100");
    expectNone("101", "3", ">", "UCL", "Minimum is no number from 1 to 100");
    expectNone("1.5", "3", ">", "UCL", "Minimum is no whole number");
    expectNone("1", "", ">", "UCL", "Maximum is no number from 1 to 100");
    expectNone("1", "1e9", ">", "UCL", "Maximum is no number from 1 to 100");
    expectNone("1", "2.5", ">", "UCL", "Maximum is no whole number");
    expectNone("4", "3", ">", "UCL", "Minimum is above Maximum");
    expectNone("1", "3", "", "UCL", "no condition is chosen");
    expectNone("1", "3", "<>", "UCL", "no condition is chosen");
    expectNone("1", "3", ">", "", "no zone is chosen");
    expectNone("1", "3", ">", "NONE", "no zone is chosen");
}

} // namespace
} // namespace zy::test
