#include <array>

#include "BigFile.h"
#include "rules/RulesFormat.h"

namespace zy::bench {
namespace {

struct Kind {
    const char* min;
    const char* max;
    const char* cond;
    const char* zone;
    const char* description;
};

constexpr std::array<Kind, 7> kKinds{{{"1", "1", ">", "UCL", "1 point above the upper control limit"},
                                      {"2", "3", "<", "LWL", "2 of 3 points below the lower warning limit"},
                                      {"8", "8", ">", "AVG", "8 points in a row above the average"},
                                      {"10", "11", "<=", "AVG", "10 of 11 points not above the average"},
                                      {"6", "6", ">", "PREV", "6 points in a row, each above the one before"},
                                      {"1", "1", "<", "-3S", "1 point more than 3 SD below the average"},
                                      {"1", "1", ">=", "USL", "1 point at the upper specification limit"}}};

std::string Code(int rule) {
    constexpr std::string_view kDigits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    constexpr int kBase = static_cast<int>(kDigits.size());
    const auto digit = [&](int value) { return kDigits[static_cast<std::size_t>(value % kBase)]; };
    return {digit(rule / kBase / kBase), digit(rule / kBase), digit(rule)};
}

void AppendRule(std::string& text, const std::string& header, int number) {
    const auto& kind = kKinds[static_cast<std::size_t>(number) % kKinds.size()];
    const auto append = [&](const std::string& line) { text += line + "\r\n"; };
    append(header);
    append(FormatRuleLine("CODE", Code(number)));
    append(FormatRuleLine("MIN", kind.min));
    append(FormatRuleLine("MAX", kind.max));
    append(FormatRuleLine("COND", kind.cond));
    append(FormatRuleLine("ZONE", kind.zone));
    append(FormatRuleLine("DESC1", std::string(kind.description) + "  "));
    append(FormatRuleLine("DESC2", ""));
    append(FormatRuleLine("DESC3", ""));
}

} // namespace

std::string RulesFileOf(int rules) {
    std::string text;
    for (int number = 1; number <= rules; ++number) {
        AppendRule(text, "[RULE]", number);
    }
    return text;
}

std::string RulesKeyFileOf(int rules) {
    std::string text;
    for (int number = 1; number <= rules; ++number) {
        AppendRule(text, "[RULE" + std::to_string(number) + "]", number);
    }
    return text;
}

} // namespace zy::bench
