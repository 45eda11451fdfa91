#include "rules/RulesFileText.h"

#include <array>

#include "rules/mRules.h"

namespace zy {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

constexpr std::array kValues{&RunRule::Code, &RunRule::Min,  &RunRule::Max,
                             &RunRule::Cond, &RunRule::Zone, &RunRule::Description};

/// What stands in front of each value of a rule and behind the last one. The whole description stands behind
/// DESC1; DESC2 and DESC3 are there for the files' readers and always empty.
std::array<std::string, kValues.size() + 1> FixedTexts() {
    const auto between = [](std::string_view key) { return std::string(kLineEnd) + FormatRuleLine(key, ""); };
    return {"[RULE]" + between("CODE"),
            between("MIN"),
            between("MAX"),
            between("COND"),
            between("ZONE"),
            between("DESC1"),
            between("DESC2") + between("DESC3") + std::string(kLineEnd)};
}

std::size_t TextSize(const RuleList& rules, std::size_t fixedSize) {
    std::size_t size = 0;
    for (int i = 1; i <= rules.UBound(); ++i) {
        size += fixedSize;
        for (const auto value : kValues) {
            size += (rules(i).*value).size();
        }
    }
    return size;
}

} // namespace

std::string RulesFileText(const RuleList& rules) {
    const auto fixed = FixedTexts();
    std::size_t fixedSize = 0;
    for (const auto& text : fixed) {
        fixedSize += text.size();
    }

    std::string text;
    text.reserve(TextSize(rules, fixedSize));
    for (int i = 1; i <= rules.UBound(); ++i) {
        const auto& rule = rules(i);
        for (std::size_t value = 0; value < kValues.size(); ++value) {
            text += fixed[value];
            text += rule.*kValues[value];
        }
        text += fixed.back();
    }
    return text;
}

} // namespace zy
