#include "rules/RulesFormat.h"

namespace zy {

std::string FormatRuleLine(std::string_view key, std::string_view value) {
    std::string line(kRuleIndent);
    line += key;
    line.append(key.size() < kRuleKeyWidth ? kRuleKeyWidth - key.size() : 0, ' ');
    line += kRuleEquals;
    line += value;
    return line;
}

} // namespace zy
