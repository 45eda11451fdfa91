#include "rules/RulesFileText.h"

#include <array>
#include <string_view>

#include "basics/Text.h"
#include "rules/RulesFormat.h"

namespace zy {
namespace {

/// What stands in front of a value: the end of the line before, and the key. It is as long for every key, and
/// a size that the compiler knows makes copying it a matter of a few instructions.
using Front = std::array<char, kLineEnd.size() + kRuleFrontSize>;

std::array<Front, kRuleKeys.size()> AllFronts() {
    std::array<Front, kRuleKeys.size()> fronts{};
    for (std::size_t i = 0; i < fronts.size(); ++i) {
        (std::string(kLineEnd) + FormatRuleLine(kRuleKeys[i].key, "")).copy(fronts[i].data(), sizeof(Front));
    }
    return fronts;
}

/// Lays rules out as the lines of the file.
class RuleLayout {
  public:
    static std::size_t Size(const RunRule& rule) {
        auto size = kRuleHeader.size() + kRuleKeys.size() * sizeof(Front) + kLineEnd.size();
        for (const auto& line : kRuleKeys) {
            size += line.hasValue ? (rule.*line.property).size() : 0;
        }
        return size;
    }

    void Append(const RunRule& rule, std::string& text) const {
        const auto start = text.size();
        text.resize(start + Size(rule));
        char* at = Put(kRuleHeader, text.data() + start);
        for (std::size_t i = 0; i < kRuleKeys.size(); ++i) {
            at = Put(fronts_[i], at);
            if (kRuleKeys[i].hasValue) {
                at = Put(rule.*kRuleKeys[i].property, at);
            }
        }
        Put(kLineEnd, at);
    }

  private:
    const std::array<Front, kRuleKeys.size()> fronts_ = AllFronts();
};

} // namespace

std::string RulesFileText(const RuleList& rules) {
    const int count = rules.UBound();
    std::size_t size = 0;
    for (int i = 1; i <= count; ++i) {
        size += RuleLayout::Size(rules(i));
    }

    const RuleLayout layout;
    std::string text;
    text.reserve(size);
    for (int i = 1; i <= count; ++i) {
        layout.Append(rules(i), text);
    }
    return text;
}

} // namespace zy
