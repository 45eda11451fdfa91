#pragma once

#include <array>
#include <string>
#include <string_view>

#include "rules/RunRule.h"

namespace zy {

// How a rule stands in the rules file: what its reader and its writer have to agree on.

inline constexpr std::string_view kRulesFileName = "ZYRules.sys";
/// The file beside it that a save writes first.
inline constexpr std::string_view kRulesTemporaryName = "Rules.tmp";

/// The line that begins a rule.
inline constexpr std::string_view kRuleHeader = "[RULE]";

/// A key line of a rule.
struct RuleKey {
    std::string_view key;
    std::string RunRule::*property;
    bool hasValue = true; ///< false: written empty, whatever the property holds
};

/// The key lines of a rule in the order of the file. The whole description stands behind DESC1; the charts'
/// reader expects the two lines behind it, and older files hold text there.
inline constexpr std::array<RuleKey, 8> kRuleKeys{
    {{.key = "CODE", .property = &RunRule::Code},
     {.key = "MIN", .property = &RunRule::Min},
     {.key = "MAX", .property = &RunRule::Max},
     {.key = "COND", .property = &RunRule::Cond},
     {.key = "ZONE", .property = &RunRule::Zone},
     {.key = "DESC1", .property = &RunRule::Description},
     {.key = "DESC2", .property = &RunRule::Desc2, .hasValue = false},
     {.key = "DESC3", .property = &RunRule::Desc3, .hasValue = false}}};

inline constexpr std::string_view kRuleIndent = "   ";
inline constexpr std::size_t kRuleKeyWidth = 13;
inline constexpr std::string_view kRuleEquals = "= ";

/// What stands in front of the value in a line of the file, which is as long for every key of it.
inline constexpr std::size_t kRuleFrontSize = kRuleIndent.size() + kRuleKeyWidth + kRuleEquals.size();

/// A key line, without its line end: the key in a field of 13 characters behind three blanks, then "= " and
/// the value as it is. A longer key is not cut.
inline std::string FormatRuleLine(std::string_view key, std::string_view value) {
    std::string line(kRuleIndent);
    line += key;
    line.append(key.size() < kRuleKeyWidth ? kRuleKeyWidth - key.size() : 0, ' ');
    line += kRuleEquals;
    line += value;
    return line;
}

} // namespace zy
