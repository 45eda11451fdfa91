#include "rules/RulesFileText.h"

#include <array>
#include <cstring>
#include <string_view>
#include <utility>

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
    static std::size_t Size(const RunRule& rule) { return SizeOf(rule, KeyLines()); }

    void Append(const RunRule& rule, std::string& text) const {
        const auto start = text.size();
        text.resize(start + Size(rule));
        char* at = Put(kRuleHeader, text.data() + start);
        at = PutLines(rule, at, KeyLines());
        Put(kLineEnd, at);
    }

  private:
    // The table's lines are taken one by one at compile time: that halves the instructions a line, and a file
    // has very many of them.
    using KeyLines = std::make_index_sequence<kRuleKeys.size()>;

    template <std::size_t... Lines>
    static std::size_t SizeOf(const RunRule& rule, std::index_sequence<Lines...> /*all*/) {
        return ((kRuleHeader.size() + kLineEnd.size()) + ... + (sizeof(Front) + ValueSize<Lines>(rule)));
    }

    template <std::size_t Line>
    static std::size_t ValueSize(const RunRule& rule) {
        return kRuleKeys[Line].hasValue ? (rule.*kRuleKeys[Line].property).size() : 0;
    }

    template <std::size_t... Lines>
    char* PutLines(const RunRule& rule, char* at, std::index_sequence<Lines...> /*all*/) const {
        ((at = PutLine<Lines>(rule, at)), ...);
        return at;
    }

    template <std::size_t Line>
    char* PutLine(const RunRule& rule, char* at) const {
        std::memcpy(at, fronts_[Line].data(), sizeof(Front));
        at += sizeof(Front);
        if constexpr (kRuleKeys[Line].hasValue) {
            at = Put(rule.*kRuleKeys[Line].property, at);
        }
        return at;
    }

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
