#include <deque>
#include <string>

#include "platform/BytesFile.h"
#include "rules/RulesReader.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

// A file whose size, asked for before it is read, is not what is read then: another program is writing it.

const std::string kRule = "[RULE]\r\nCODE= A\r\n";

TEST(AChangingRulesFile, ThatGrowsWhileItIsReadIsReadWhole) {
    std::deque<RunRule> rules;
    const auto grown = kRule + kRule;
    BytesFile file(grown, {.size = kRule.size()});
    EXPECT_TRUE(ReadRules(file, rules).complete);
    EXPECT_EQ(rules.size(), 2U);
}

TEST(AChangingRulesFile, ThatShrinksWhileItIsReadIsNotReadWhole) {
    for (const auto size : {kRule.size() + 1, 2 * kRule.size()}) {
        std::deque<RunRule> rules;
        BytesFile file(kRule, {.size = size});
        EXPECT_FALSE(ReadRules(file, rules).complete);
        EXPECT_EQ(rules.size(), 1U);
    }
}

} // namespace
} // namespace zy::test
