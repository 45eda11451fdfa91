#include "IniEditor.h"
#include "IniPeers.h"
#include "Peers.h"
#include "SaveDuels.h"
#include "Workplace.h"
#include "basics/Int16.h"

// ini_bench: loading and saving an INI file.

namespace zy::bench {
namespace {

using IniPlace = Workplace<IniEditor>;

void AddLoads(IniPlace& many) {
    const auto add = [&](const Peer& peer, double goal) {
        Add(Against(InFreshProcess(peer), {.work = "load " + many.Records(),
                                           .goal = goal,
                                           .rounds = 41,
                                           .ours = InFreshProcess(many.Load())}));
    };
    add(LoadByGlib(many.File()), 0.13);
    add(LoadByInih(many.File()), 0.35);
    add(Scan(many.File()), 6);
}

void AddSmallLoads(IniPlace& few) {
    const auto add = [&](const Peer& peer, double goal) {
        Add(Against(peer,
                    {.work = "load " + few.Records(), .goal = goal, .rounds = 2001, .ours = few.Load()}));
    };
    add(LoadBySimpleIni(few.File()), 0.45);
    add(OpenReadClose(few.File()), 1.6);
}

int Run(int argumentCount, char** arguments) {
    constexpr int kFewLines = 100;
    IniPlace many(Disk(), kManyIniLines);
    IniPlace few(Disk(), kFewLines);
    // More lines than these are not saved.
    IniPlace most(Disk(), kMaxItems);
    IniPlace mostInMemory(MemoryDisk(), kMaxItems);
    const auto keyFile = most.Put("keyfile.ini", IniFileOf(kMaxItems));
    AddLoads(many);
    AddSmallLoads(few);
    AddSettingsSaves(most, keyFile, mostInMemory);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
