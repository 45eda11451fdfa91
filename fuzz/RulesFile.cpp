#include <array>
#include <string>
#include <vector>

#include "Targets.h"
#include "basics/Text.h"
#include "platform/memory/MemoryWorld.h"
#include "rules/mRules.h"

namespace zy::fuzz {
namespace {

constexpr std::string_view kRulesFile = R"(C:\SYS\ZYRules.sys)";

/// A run of the rules editor over a file: what it held, and what a save without any edit leaves.
struct Run {
    std::vector<RunRule> rules;
    std::size_t skippedLines = 0;
    std::string saved;
};

Run LoadAndSave(std::string_view bytes) {
    MemoryWorld world;
    world.files.Put(kRulesFile, bytes);
    TraceChannel trace(world.traceServers, "fuzz");
    mRules rules(world.Get(), trace);
    rules.Build_Rules_Array();
    Run run{.rules = {}, .skippedLines = rules.SkippedLines(), .saved = {}};
    for (int i = 1; i <= rules.gaRules.UBound(); ++i) {
        run.rules.push_back(rules.gaRules(i));
    }
    rules.Write_Rules_File();
    run.saved = world.files.Get(kRulesFile).value_or("nothing was saved");
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
