#include "rules/RulesFileText.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "rules/mRules.h"

namespace zy {
namespace {

constexpr std::string_view kHeader = "[RULE]";
constexpr std::string_view kLineEnd = "\r\n";

/// What stands in front of a value: the end of the line before, and the key. It is as long for every key, and
/// a size that the compiler knows makes copying it a matter of a few instructions.
using Front = std::array<char, 20>;

Front FrontOf(std::string_view key) {
    Front front{};
    (std::string(kLineEnd) + FormatRuleLine(key, "")).copy(front.data(), front.size());
    return front;
}

/// Copies a text to where `at` points. Returns the place behind it.
template <typename Text>
char* Put(const Text& text, char* at) {
    return std::copy(text.begin(), text.end(), at);
}

/// Lays rules out as the lines of the file.
class RuleLayout {
  public:
    static std::size_t Size(const RunRule& rule) {
        return kHeader.size() + 8 * sizeof(Front) + kLineEnd.size() + rule.Code.size() + rule.Min.size() +
               rule.Max.size() + rule.Cond.size() + rule.Zone.size() + rule.Description.size();
    }

    /// The whole description stands behind DESC1; DESC2 and DESC3 are there for the file's readers and always
    /// empty.
    void Append(const RunRule& rule, std::string& text) const {
        const auto start = text.size();
        text.resize(start + Size(rule));
        char* at = Put(kHeader, text.data() + start);
        at = PutLine(code_, rule.Code, at);
        at = PutLine(min_, rule.Min, at);
        at = PutLine(max_, rule.Max, at);
        at = PutLine(cond_, rule.Cond, at);
        at = PutLine(zone_, rule.Zone, at);
        at = PutLine(desc1_, rule.Description, at);
        Put(kLineEnd, Put(desc3_, Put(desc2_, at)));
    }

  private:
    static char* PutLine(const Front& front, const std::string& value, char* at) {
        return Put(value, Put(front, at));
    }

    const Front code_ = FrontOf("CODE");
    const Front min_ = FrontOf("MIN");
    const Front max_ = FrontOf("MAX");
    const Front cond_ = FrontOf("COND");
    const Front zone_ = FrontOf("ZONE");
    const Front desc1_ = FrontOf("DESC1");
    const Front desc2_ = FrontOf("DESC2");
    const Front desc3_ = FrontOf("DESC3");
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
