#include "Peers.h"
#include "UsersEditor.h"
#include "Workplace.h"
#include "basics/Int16.h"

// users_bench: loading and checking the users. The table engine itself is measured by dbase_bench.

namespace zy::bench {
namespace {

using UsersPlace = Workplace<UsersEditor>;

void AddLoad(UsersPlace& many, UsersPlace& tenth) {
    Add(Against({"load " + tenth.Records(), tenth.Load()},
                {.work = "load " + many.Records() + " into the grid's model",
                 .goal = std::nullopt,
                 .rounds = 41,
                 .ours = many.Load()}));
}

/// Checking takes a time that grows as the list does, although each name is compared with all others.
void AddCheck(UsersPlace& many, UsersPlace& tenth) {
    const auto check = [](UsersPlace& place) {
        return Working([users = place.Loaded()] { return users->page.users.Validate_Security(); });
    };
    Add(Against({"check " + tenth.Records(), check(tenth)},
                {.work = "check " + many.Records(), .goal = 10.5, .rounds = 101, .ours = check(many)}));
}

int Run(int argumentCount, char** arguments) {
    constexpr int kTenth = kMaxItems / 10;
    UsersPlace many(Disk(), 10 * kTenth);
    UsersPlace tenth(Disk(), kTenth);
    AddLoad(many, tenth);
    AddCheck(many, tenth);
    return RunDuels(argumentCount, arguments);
}

} // namespace
} // namespace zy::bench

int main(int argumentCount, char** arguments) {
    return zy::bench::Run(argumentCount, arguments);
}
