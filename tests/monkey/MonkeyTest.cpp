#include <cstdlib>
#include <iostream>

#include "Session.h"

namespace zy::test {
namespace {

/// A number that somebody asks for, as storm/monkey does, or the usual one.
std::uint64_t Wanted(const char* variable, std::uint64_t usual) {
    const char* wanted = std::getenv(variable);
    return wanted == nullptr ? usual : std::stoull(wanted);
}

class MonkeyOnModels : public ::testing::TestWithParam<MonkeyEditor> {};

TEST_P(MonkeyOnModels, WhateverHappensLeavesTheEditorSound) {
    constexpr int kEventsOfASession = 300;
    const auto events = Wanted("ZY_MONKEY_EVENTS", 20'000);
    MonkeyCounts counts;
    for (auto seed = Wanted("ZY_MONKEY_SEED", 1); counts.events < events; ++seed) {
        MonkeySession session(GetParam(), seed, counts);
        session.Do(kEventsOfASession);
        session.GoBackAndForth();
        ASSERT_FALSE(HasFailure()) << "ZY_MONKEY_SEED=" << seed << "; last:\n" << session.LastEvents();
    }
    std::cout << counts.events << " events, " << counts.starts << " starts, " << counts.saves << " saves, "
              << counts.steps << " steps back and forth" << std::endl;
    for (const auto& [error, times] : counts.errors) {
        std::cout << times << " times run-time error " << error << std::endl;
    }
    EXPECT_GT(counts.saves, 0U);
    EXPECT_GT(counts.steps, 0U);
}

INSTANTIATE_TEST_SUITE_P(Editors, MonkeyOnModels, ::testing::ValuesIn(kMonkeyEditors),
                         [](const auto& each) { return std::string(each.param.argument).substr(1); });

} // namespace
} // namespace zy::test
