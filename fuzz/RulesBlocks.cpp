#include <algorithm>
#include <deque>
#include <string>

#include "Targets.h"
#include "platform/BytesFile.h"
#include "rules/RulesReader.h"

namespace zy::fuzz {
namespace {

struct Reading {
    std::deque<RunRule> rules;
    RulesReadReport report;
};

Reading Read(std::string_view text, std::size_t piece) {
    Reading reading;
    BytesFile file(text, {.piece = piece});
    reading.report = ReadRules(file, reading.rules);
    Require(reading.report.complete, "every byte is read");
    return reading;
}

bool AreTheSame(const RunRule& a, const RunRule& b) {
    return a.Code == b.Code && a.Min == b.Min && a.Max == b.Max && a.Cond == b.Cond && a.Zone == b.Zone &&
           a.Description == b.Description && a.Desc2 == b.Desc2 && a.Desc3 == b.Desc3;
}

void RequireSameRules(const Reading& a, const Reading& b) {
    Require(std::ranges::equal(a.rules, b.rules, AreTheSame), "the same rules are read");
}

/// A line that no rule has, as long as wanted.
std::string Comment(std::size_t size) {
    return std::string(size - 1, ';') + '\n';
}

} // namespace

// The first character of an input says where the reader's blocks cut the rest.
void RulesBlocks(std::string_view input) {
    const std::size_t cut = input.empty() ? 0 : static_cast<unsigned char>(input.front());
    const auto text = input.substr(std::min<std::size_t>(1, input.size()));
    const auto whole = Read(text, text.size() + 1);

    const auto pieces = Read(text, cut + 1);
    RequireSameRules(pieces, whole);
    Require(pieces.report.skippedLines == whole.report.skippedLines, "the same lines are skipped");

    constexpr std::size_t kBlockSize = 65536;
    if (!text.starts_with("\xEF")) {
        const auto moved = Comment(kBlockSize - cut) + std::string(text);
        RequireSameRules(Read(moved, moved.size()), whole);
    }
}

} // namespace zy::fuzz
