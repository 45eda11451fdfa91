#pragma once

#include <string>
#include <string_view>

#include "rules/RunRule.h"
#include "support/RaisedError.h"

namespace zy::test {

inline constexpr std::string_view kRulesFile = R"(C:\SYS\ZYRules.sys)";
inline constexpr std::string_view kTemporary = R"(C:\SYS\Rules.tmp)";

/// A rule's properties in one line, in the order in which a file holds them.
inline std::string Shown(const RunRule& rule) {
    return rule.Code + "|" + rule.Min + "|" + rule.Max + "|" + rule.Cond + "|" + rule.Zone + "|" +
           rule.Description + "|" + rule.Desc2 + "|" + rule.Desc3;
}

/// The nine lines of a rule, spelled out, so that nothing of the program's own formatting is in them.
inline std::string Section(const RunRule& rule) {
    return "[RULE]\r\n"
           "   CODE         = " +
           rule.Code + "\r\n   MIN          = " + rule.Min + "\r\n   MAX          = " + rule.Max +
           "\r\n   COND         = " + rule.Cond + "\r\n   ZONE         = " + rule.Zone +
           "\r\n   DESC1        = " + rule.Description + "\r\n   DESC2        = \r\n   DESC3        = \r\n";
}

} // namespace zy::test
