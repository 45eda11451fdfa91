#include <array>
#include <deque>
#include <string>

#include "Targets.h"
#include "basics/Text.h"
#include "platform/BytesFile.h"
#include "rules/RuleList.h"
#include "rules/RulesFileText.h"
#include "rules/RulesReader.h"

namespace zy::fuzz {
namespace {

/// What a load and a save without any edit make of a file.
struct Run {
    std::deque<RunRule> rules;
    std::size_t skippedLines = 0;
    std::string saved;
};

/// As the editor does on loading.
std::string JoinedPieces(const RunRule& rule) {
    return std::string(Trim(rule.Description)) + ' ' + std::string(Trim(rule.Desc2)) + ' ' +
           std::string(Trim(rule.Desc3));
}

Run LoadAndSave(std::string_view bytes) {
    Run run;
    BytesFile file(bytes);
    const auto report = ReadRules(file, run.rules);
    Require(report.complete, "every byte is read");
    run.skippedLines = report.skippedLines;
    RuleList list;
    for (auto& rule : run.rules) {
        rule.Description = JoinedPieces(rule);
        list.Append(rule);
    }
    run.saved = RulesFileText(list);
    return run;
}

void RequireSameRule(const RunRule& before, const RunRule& after) {
    for (const auto property :
         std::array{&RunRule::Code, &RunRule::Min, &RunRule::Max, &RunRule::Cond, &RunRule::Zone}) {
        Require(before.*property == after.*property, "a save keeps every property");
    }
    Require(after.Description == std::string(Trim(before.Description)) + "  ",
            "a save keeps the description, and loading ends it with two blanks");
    Require(after.Desc2.empty() && after.Desc3.empty(), "a save leaves one piece of description");
}

} // namespace

void RulesFile(std::string_view input) {
    const auto first = LoadAndSave(input);
    const auto second = LoadAndSave(first.saved);
    Require(second.skippedLines == 0, "every line of a saved file belongs to a rule");
    Require(first.rules.size() == second.rules.size(), "a save keeps every rule");
    for (std::size_t i = 0; i < first.rules.size(); ++i) {
        RequireSameRule(first.rules[i], second.rules[i]);
    }
    Require(LoadAndSave(second.saved).saved == second.saved, "a file saved twice no longer changes");
}

} // namespace zy::fuzz
