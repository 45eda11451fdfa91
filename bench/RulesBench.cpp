#include "Peers.h"
#include "RulesEditor.h"
#include "SaveDuels.h"
#include "Workplace.h"
#include "basics/Int16.h"

// rules_bench: loading and saving the rules file.

namespace zy::bench {
namespace {

using RulesPlace = Workplace<RulesEditor>;

void AddLoads(RulesPlace& many, const std::string& keyFile) {
    const auto work = "load " + many.Records();
    const auto ours = InFreshProcess(many.Load());
    Add(Against(InFreshProcess(LoadByGlib(keyFile)),
                {.work = work, .goal = 0.2, .rounds = 21, .ours = ours}));
    Add(Against(InFreshProcess(Scan(many.File())), {.work = work, .goal = 9, .rounds = 41, .ours = ours}));
}

void AddSmallLoad(RulesPlace& few) {
    Add(Against(
        OpenReadClose(few.File()),
        {.work = "load " + few.Records() + " (99 lines)", .goal = 2.5, .rounds = 2001, .ours = few.Load()}));
}

int Run(int argumentCount, char** arguments) {
    constexpr int kFewRules = 11;
    RulesPlace many(Disk(), kMaxItems);
    RulesPlace few(Disk(), kFewRules);
    RulesPlace inMemory(MemoryDisk(), kMaxItems);
    const auto keyFile = many.Put("keyfile.ini", RulesKeyFileOf(kMaxItems));
    AddLoads(many, keyFile);
    AddSmallLoad(few);
    AddSettingsSaves(many, keyFile, inMemory);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
