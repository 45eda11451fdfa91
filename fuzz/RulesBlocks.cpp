#include <algorithm>
#include <deque>
#include <string_view>

#include "Targets.h"
#include "platform/BytesFile.h"
#include "rules/RulesReader.h"

namespace zy::fuzz {
namespace {

struct Reading {
    std::deque<RunRule> rules;
    RulesReadReport report;
};

Reading Read(std::string_view text, const ReadingOddities& oddities = {}) {
    Reading reading;
    BytesFile file(text, oddities);
    reading.report = ReadRules(file, reading.rules);
    Require(reading.report.complete, "every byte is read");
    return reading;
}

bool AreTheSame(const RunRule& a, const RunRule& b) {
    return a.Code == b.Code && a.Min == b.Min && a.Max == b.Max && a.Cond == b.Cond && a.Zone == b.Zone &&
           a.Description == b.Description && a.Desc2 == b.Desc2 && a.Desc3 == b.Desc3;
}

void RequireSame(const Reading& a, const Reading& b) {
    Require(std::ranges::equal(a.rules, b.rules, AreTheSame), "the same rules are read");
    Require(a.report.skippedLines == b.report.skippedLines, "the same lines are skipped");
}

} // namespace

// The first character of an input says where the rest is cut: by what the medium hands out at a time, and by
// the blocks of the reader, which takes no longer ones than the file seems to have bytes.
void RulesBlocks(std::string_view input) {
    const std::size_t cut = input.empty() ? 0 : static_cast<unsigned char>(input.front());
    const auto text = input.substr(std::min<std::size_t>(1, input.size()));
    const auto whole = Read(text);
    RequireSame(Read(text, {.piece = cut + 1}), whole);
    RequireSame(Read(text, {.size = std::min(cut, text.size())}), whole);
}

} // namespace zy::fuzz
