#include "rules/StandardRules.h"

#include <array>
#include <unordered_set>

#include "basics/Text.h"
#include "rules/RulePicture.h"

namespace zy {
namespace {

constexpr std::string_view kNoLineAtOne = "there is no zone at 1 SD";
constexpr std::string_view kAlternating = "no rule can ask for points that go up and down by turns";
constexpr std::string_view kBothSides = "a rule counts the points on one side of one line";

// A set numbers its rules from 1, whichever of them can be inserted.

constexpr std::array<StandardRule, 4> kWesternElectric{
    {{"1 point beyond 3 SD", "W1", "1", "1", Against::ControlLimit},
     {"2 of 3 points beyond 2 SD on one side", "W2", "2", "3", Against::WarningLimit},
     {.says = "4 of 5 points beyond 1 SD on one side", .whyNot = kNoLineAtOne},
     {"8 points on one side of the average", "W4", "8", "8", Against::Average}}};

constexpr std::array<StandardRule, 8> kNelson{
    {{"1 point beyond 3 SD", "N1", "1", "1", Against::ControlLimit},
     {"9 points on one side of the average", "N2", "9", "9", Against::Average},
     {"6 points, each above the one before it, or each below", "N3", "6", "6", Against::PointBefore},
     {.says = "14 points, alternately up and down", .whyNot = kAlternating},
     {"2 of 3 points beyond 2 SD on one side", "N5", "2", "3", Against::WarningLimit},
     {.says = "4 of 5 points beyond 1 SD on one side", .whyNot = kNoLineAtOne},
     {.says = "15 points within 1 SD of the average", .whyNot = kNoLineAtOne},
     {.says = "8 points beyond 1 SD on either side", .whyNot = kNoLineAtOne}}};

constexpr std::array<StandardRule, 8> kAiag{
    {{"1 point beyond 3 SD", "A1", "1", "1", Against::ControlLimit},
     {"7 points on one side of the average", "A2", "7", "7", Against::Average},
     {"6 points, each above the one before it, or each below", "A3", "6", "6", Against::PointBefore},
     {.says = "14 points, alternately up and down", .whyNot = kAlternating},
     {"2 of 3 points beyond 2 SD on one side", "A5", "2", "3", Against::WarningLimit},
     {.says = "4 of 5 points beyond 1 SD on one side", .whyNot = kNoLineAtOne},
     {.says = "15 points within 1 SD of the average", .whyNot = kNoLineAtOne},
     {.says = "8 points beyond 1 SD on either side", .whyNot = kNoLineAtOne}}};

constexpr std::array<StandardRule, 8> kMontgomery{
    {{"1 point beyond 3 SD", "M1", "1", "1", Against::ControlLimit},
     {"2 of 3 points beyond 2 SD on one side", "M2", "2", "3", Against::WarningLimit},
     {.says = "4 of 5 points beyond 1 SD on one side", .whyNot = kNoLineAtOne},
     {"8 points on one side of the average", "M4", "8", "8", Against::Average},
     {"6 points, each above the one before it, or each below", "M5", "6", "6", Against::PointBefore},
     {.says = "15 points within 1 SD of the average", .whyNot = kNoLineAtOne},
     {.says = "14 points, alternately up and down", .whyNot = kAlternating},
     {.says = "8 points beyond 1 SD on either side", .whyNot = kNoLineAtOne}}};

constexpr std::array<StandardRule, 6> kWestgard{
    {{"1-2s: 1 point beyond 2 SD, a warning", "G1", "1", "1", Against::WarningLimit},
     {"1-3s: 1 point beyond 3 SD", "G2", "1", "1", Against::ControlLimit},
     {"2-2s: 2 points beyond 2 SD on one side", "G3", "2", "2", Against::WarningLimit},
     {.says = "R-4s: 2 points 4 SD apart, one above and one below", .whyNot = kBothSides},
     {.says = "4-1s: 4 points beyond 1 SD on one side", .whyNot = kNoLineAtOne},
     {"10x: 10 points on one side of the average", "G6", "10", "10", Against::Average}}};

constexpr std::array<StandardRule, 7> kWestgardVariants{
    {{"2of3-2s: 2 of 3 points beyond 2 SD on one side", "V1", "2", "3", Against::WarningLimit},
     {.says = "3-1s: 3 points beyond 1 SD on one side", .whyNot = kNoLineAtOne},
     {"6x: 6 points on one side of the average", "V3", "6", "6", Against::Average},
     {"8x: 8 points on one side of the average", "V4", "8", "8", Against::Average},
     {"9x: 9 points on one side of the average", "V5", "9", "9", Against::Average},
     {"12x: 12 points on one side of the average", "V6", "12", "12", Against::Average},
     {"7T: 7 points, each above the one before it, or each below", "V7", "7", "7", Against::PointBefore}}};

constexpr std::array<StandardRule, 5> kGrantLeavenworth{
    {{"7 points on one side of the average", "L1", "7", "7", Against::Average},
     {"10 of 11 points on one side of the average", "L2", "10", "11", Against::Average},
     {"12 of 14 points on one side of the average", "L3", "12", "14", Against::Average},
     {"14 of 17 points on one side of the average", "L4", "14", "17", Against::Average},
     {"16 of 20 points on one side of the average", "L5", "16", "20", Against::Average}}};

constexpr std::array<StandardSet, 7> kSets{
    {{"Western Electric", "Statistical Quality Control Handbook, Western Electric 1956", kWesternElectric},
     {"Nelson", "L. S. Nelson, Journal of Quality Technology 16(4), 1984, 237-239", kNelson},
     {"AIAG", "Statistical Process Control, AIAG, 2nd edition, 2005", kAiag},
     {"Montgomery", "D. C. Montgomery, Introduction to Statistical Quality Control", kMontgomery},
     {"Westgard", "J. O. Westgard and others, Clinical Chemistry 27(3), 1981, 493-501", kWestgard},
     {"Westgard, variants", "J. O. Westgard, Basic QC Practices", kWestgardVariants},
     {"Grant and Leavenworth", "E. L. Grant, R. S. Leavenworth, Statistical Quality Control",
      kGrantLeavenworth}}};

/// The zones of the two sides.
struct Zones {
    std::string_view upper;
    std::string_view lower;
};

Zones ZonesOf(Against against) {
    switch (against) {
    case Against::ControlLimit:
        return {"UCL", "LCL"};
    case Against::WarningLimit:
        return {"UWL", "LWL"};
    case Against::Average:
        return {"AVG", "AVG"};
    case Against::PointBefore:
        return {"PREV", "PREV"};
    case Against::Nothing:
        break;
    }
    return {};
}

/// What the rule's picture says, without the zone's code behind it.
std::string DescriptionOf(const RunRule& rule) {
    const auto sentence = PictureOf(rule, '.').sentence;
    return sentence.substr(0, sentence.rfind(" ("));
}

RunRule RuleOf(const StandardRule& standard, char side, std::string_view cond, std::string_view zone) {
    RunRule rule{.Code = std::string(standard.code) + side,
                 .Min = std::string(standard.count),
                 .Max = std::string(standard.of),
                 .Cond = std::string(cond),
                 .Zone = std::string(zone),
                 .Description = {},
                 .Desc2 = {},
                 .Desc3 = {}};
    rule.Description = DescriptionOf(rule);
    return rule;
}

OfferedRule GreyRuleOf(const StandardRule& standard) {
    OfferedRule offered;
    offered.rule.Description = std::string(standard.says) + ": " + std::string(standard.whyNot);
    offered.whyNot = standard.whyNot;
    return offered;
}

} // namespace

std::span<const StandardSet> StandardSets() {
    return kSets;
}

std::string FreeCode(const std::string& wanted, const std::function<bool(const std::string& code)>& isTaken) {
    constexpr std::string_view kDigits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    if (!isTaken(wanted)) {
        return wanted;
    }
    std::string firsts(1, wanted.front());
    firsts += kDigits;
    for (const char first : firsts) {
        for (const char second : kDigits) {
            for (const char third : kDigits) {
                std::string code{first, second, third};
                if (!isTaken(code)) {
                    return code;
                }
            }
        }
    }
    return wanted; // a list holds no more rules than there are codes
}

std::vector<OfferedRule> RulesOf(const StandardSet& set, const RuleList& list, const CodePage& codePage) {
    const auto compared = [&codePage](std::string_view code) { return codePage.UCase(Trim(code)); };
    std::unordered_set<std::string> taken;
    for (int i = 1; i <= list.UBound(); ++i) {
        taken.insert(compared(list(i).Code));
    }
    std::vector<OfferedRule> offered;
    const auto offer = [&](RunRule rule) {
        rule.Code =
            FreeCode(rule.Code, [&](const std::string& code) { return taken.contains(compared(code)); });
        taken.insert(compared(rule.Code));
        offered.push_back({std::move(rule), {}});
    };
    for (const auto& standard : set.rules) {
        if (standard.against == Against::Nothing) {
            offered.push_back(GreyRuleOf(standard));
            continue;
        }
        const auto zones = ZonesOf(standard.against);
        offer(RuleOf(standard, 'U', ">", zones.upper));
        offer(RuleOf(standard, 'L', "<", zones.lower));
    }
    return offered;
}

} // namespace zy
