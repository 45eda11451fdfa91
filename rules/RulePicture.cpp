#include "rules/RulePicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <variant>

#include "basics/Number.h"
#include "basics/Text.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

using ChartLines = std::array<ChartLine, 3>; // what is not used of it has no code

constexpr ChartLines kSpecification{{{"USL", 3}, {"TARG", 0}, {"LSL", -3}}};
constexpr ChartLines kControl{{{"UCL", 3}, {"AVG", 0}, {"LCL", -3}}};
constexpr ChartLines kUpperWarning{{{"UCL", 3}, {"UWL", 2}, {"AVG", 0}}};
constexpr ChartLines kLowerWarning{{{"AVG", 0}, {"LWL", -2}, {"LCL", -3}}};

struct ZoneInWords {
    std::string_view zone;
    std::string_view words;
    ChartLines lines;
};

constexpr std::string_view kPrevious = "PREV";

constexpr std::array<ZoneInWords, 15> kZones{
    {{"USL", "the upper specification limit", kSpecification},
     {"UCL", "the upper control limit", kControl},
     {"UWL", "the upper warning limit", kUpperWarning},
     {"TARG", "the target", kSpecification},
     {"LWL", "the lower warning limit", kLowerWarning},
     {"LCL", "the lower control limit", kControl},
     {"LSL", "the lower specification limit", kSpecification},
     {kPrevious, "the one before it", {}},
     {"+4S", "the average + 4 SD", {{{"+4S", 4}, {"AVG", 0}, {}}}},
     {"+3S", "the average + 3 SD", {{{"+3S", 3}, {"AVG", 0}, {}}}},
     {"+15S", "the average + 15 SD", {{{"+15S", 15}, {"AVG", 0}, {}}}},
     {"AVG", "the average", kControl},
     {"-15S", "the average - 15 SD", {{{"AVG", 0}, {"-15S", -15}, {}}}},
     {"-3S", "the average - 3 SD", {{{"AVG", 0}, {"-3S", -3}, {}}}},
     {"-4S", "the average - 4 SD", {{{"AVG", 0}, {"-4S", -4}, {}}}}}};

/// Where the points lie that a relation holds for: above the line, below it, or on neither side of it.
enum class Side : signed char { Below = -1, On = 0, Above = 1 };

struct Relation {
    std::string_view cond;
    Side side;
    bool withLine; ///< a point on the line counts as well
    std::string_view words;
    std::string_view wordsOfTwoPoints;
};

constexpr std::array<Relation, 5> kRelations{{{">", Side::Above, false, "above", "above"},
                                              {">=", Side::Above, true, "on or above", "equal to or above"},
                                              {"<", Side::Below, false, "below", "below"},
                                              {"<=", Side::Below, true, "on or below", "equal to or below"},
                                              {"=", Side::On, true, "on", "equal to"}}};

/// A rule whose fields can be drawn.
struct Rule {
    std::size_t count = 0; ///< how many of the points
    std::size_t of = 0;    ///< that many in a row
    const Relation* relation = nullptr;
    const ZoneInWords* zone = nullptr;
};

/// A whole number from 1 to 100, or what keeps the text from being one.
std::variant<std::size_t, std::string_view> CountIn(std::string_view text, char decimalSeparator) {
    constexpr double kMost = 100;
    const auto number = ParseNumber(text, decimalSeparator);
    if (!number || *number < 1 || *number > kMost) {
        return "is no number from 1 to 100";
    }
    if (*number != std::floor(*number)) {
        return "is no whole number";
    }
    return static_cast<std::size_t>(*number);
}

template <typename Table, typename Key>
const typename Table::value_type* Find(const Table& table, Key key, std::string_view text) {
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const auto& each) { return IsSameName(each.*key, text); });
    return found == table.end() ? nullptr : &*found;
}

/// Reads the fields in their order; the text says what is wrong with the first one that cannot be drawn.
std::variant<Rule, std::string> Read(const RunRule& fields, char decimalSeparator) {
    const auto count = CountIn(fields.Min, decimalSeparator);
    const auto of = CountIn(fields.Max, decimalSeparator);
    if (const auto* wrong = std::get_if<std::string_view>(&count)) {
        return "Minimum " + std::string(*wrong);
    }
    if (const auto* wrong = std::get_if<std::string_view>(&of)) {
        return "Maximum " + std::string(*wrong);
    }
    const Rule rule{std::get<std::size_t>(count), std::get<std::size_t>(of),
                    Find(kRelations, &Relation::cond, Trim(fields.Cond)),
                    Find(kZones, &ZoneInWords::zone, Trim(fields.Zone))};
    if (rule.count > rule.of) {
        return std::string("Minimum is above Maximum");
    }
    if (rule.relation == nullptr) {
        return std::string("no condition is chosen");
    }
    if (rule.zone == nullptr) {
        return std::string("no zone is chosen");
    }
    return rule;
}

bool IsOfTwoPoints(const Rule& rule) {
    return rule.zone->zone == kPrevious;
}

std::string SentenceOf(const Rule& rule) {
    std::string sentence = rule.count == rule.of
                               ? Counted(rule.of, "point")
                               : std::to_string(rule.count) + " of " + Counted(rule.of, "point");
    sentence += rule.of > 1 ? " in a row" : "";
    sentence += rule.of > 1 && IsOfTwoPoints(rule) ? ", each " : " ";
    sentence += IsOfTwoPoints(rule) ? rule.relation->wordsOfTwoPoints : rule.relation->words;
    return sentence.append(" ").append(rule.zone->words).append(" (").append(rule.zone->zone).append(")");
}

/// Which of the points in a row are marked: the last one, with which a chart finds the rule broken, the first
/// one, so that no shorter row would do, and others evenly between them.
std::vector<bool> Marks(std::size_t count, std::size_t of) {
    std::vector<bool> marks(of, false);
    marks.back() = true;
    for (std::size_t mark = 0; mark + 1 < count; ++mark) {
        marks[mark * (of - 1) / (count - 1)] = true;
    }
    return marks;
}

/// A share from 0.3 to 0.8 that looks like chance and is the same each time.
double Scatter(std::size_t number) {
    constexpr double kGoldenSection = 0.6180339887498949;
    constexpr double kLeast = 0.3;
    constexpr double kSpread = 0.5;
    const double turned = kGoldenSection * static_cast<double>(number + 1);
    return kLeast + kSpread * (turned - std::floor(turned));
}

/// Gives the chart its lines, and some room beyond them.
void AddLines(RulePicture& picture, const ChartLines& lines) {
    constexpr double kBeyond = 0.35; // of the room between the lines
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(picture.lines),
                 [](const ChartLine& line) { return !line.zone.empty(); });
    const double highest = picture.lines.front().height;
    const double lowest = picture.lines.back().height;
    picture.top = highest + kBeyond * (highest - lowest);
    picture.bottom = lowest - kBeyond * (highest - lowest);
}

/// The room on one side of a line, up to the next one or the chart's edge.
double RoomBeside(const RulePicture& picture, double line, double way) {
    double room = (way > 0 ? picture.top : picture.bottom) - line;
    for (const auto& other : picture.lines) {
        const double apart = other.height - line;
        if (apart * way > 0 && std::abs(apart) < std::abs(room)) {
            room = apart;
        }
    }
    return room;
}

/// Which way the points lie that do not count: beyond the line, seen from those that do. Where these are on
/// it, toward the average, or now above and now below that.
double OtherWay(const Relation& relation, double line, std::size_t number) {
    if (relation.side != Side::On) {
        return -static_cast<double>(relation.side);
    }
    const bool isBelow = line > 0 || (line == 0 && number % 2 == 0);
    return isBelow ? -1 : 1;
}

/// Which way from the line a point lies; 0 for on it. Where a point on the line counts, the first one shows
/// that, if there are others to show the side.
double WayOf(const Rule& rule, bool counts, double line, std::size_t number) {
    const bool showsLine = rule.relation->withLine && number == 0 && rule.count > 1;
    return !counts     ? OtherWay(*rule.relation, line, number)
           : showsLine ? 0
                       : static_cast<double>(rule.relation->side);
}

void AddPoints(RulePicture& picture, const Rule& rule) {
    const auto marks = Marks(rule.count, rule.of);
    const double line = Find(rule.zone->lines, &ChartLine::zone, rule.zone->zone)->height;
    for (std::size_t number = 0; number < marks.size(); ++number) {
        const double way = WayOf(rule, marks[number], line, number);
        const double apart = way == 0 ? 0 : RoomBeside(picture, line, way) * Scatter(number);
        picture.points.push_back(line + apart);
        if (marks[number]) {
            picture.marked.push_back(number);
        }
    }
}

/// The same of points that are compared with one another: a walk, whose steps the rule counts.
void AddWalk(RulePicture& picture, const Rule& rule) {
    constexpr double kBeyond = 0.15; // of the room that the walk takes
    const auto marks = Marks(rule.count, rule.of);
    picture.points.push_back(0);
    for (std::size_t number = 0; number < marks.size(); ++number) {
        const double step = WayOf(rule, marks[number], 0, number) * Scatter(number);
        picture.points.push_back(picture.points.back() + step);
        if (marks[number]) {
            picture.marked.push_back(number + 1);
        }
    }
    const auto [lowest, highest] = std::minmax_element(picture.points.begin(), picture.points.end());
    const double beyond = *highest > *lowest ? kBeyond * (*highest - *lowest) : 1;
    picture.top = *highest + beyond;
    picture.bottom = *lowest - beyond;
}

} // namespace

RulePicture PictureOf(const RunRule& rule, char decimalSeparator) {
    const auto read = Read(rule, decimalSeparator);
    RulePicture picture;
    if (const auto* wrong = std::get_if<std::string>(&read)) {
        picture.sentence = "No picture: " + *wrong;
        return picture;
    }
    const auto& drawn = std::get<Rule>(read);
    picture.sentence = SentenceOf(drawn);
    picture.zone = drawn.zone->zone;
    if (IsOfTwoPoints(drawn)) {
        AddWalk(picture, drawn);
    } else {
        AddLines(picture, drawn.zone->lines);
        AddPoints(picture, drawn);
    }
    return picture;
}

} // namespace zy
