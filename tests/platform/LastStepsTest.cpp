#include "platform/LastSteps.h"

#include <string>

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(LastSteps, AreNoneAtFirst) {
    EXPECT_EQ(LastSteps().Count(), 0U);
}

TEST(LastSteps, AreTheLatestFromTheEarliestOn) {
    LastSteps steps;
    constexpr std::size_t kTooMany = LastSteps::kCount + 5;
    for (std::size_t step = 0; step < kTooMany; ++step) {
        steps.Note("module", std::to_string(step));
    }
    ASSERT_EQ(steps.Count(), LastSteps::kCount);
    EXPECT_EQ(steps[0], "module 5");
    EXPECT_EQ(steps[LastSteps::kCount - 1], "module " + std::to_string(kTooMany - 1));
}

TEST(LastSteps, AreCutWhereTheyAreTooLong) {
    LastSteps steps;
    const std::string module(LastSteps::kLongest - 3, 'm');
    steps.Note(module, "procedure");
    steps.Note(std::string(1000, 'x'), "procedure");
    steps.Note("m", "p");
    EXPECT_EQ(steps[0], module + " pr");
    EXPECT_EQ(steps[1], std::string(LastSteps::kLongest, 'x'));
    EXPECT_EQ(steps[2], "m p");
}

} // namespace
} // namespace zy::test
