#pragma once

#include "RulesTest.h"
#include "rules/RuleChecks.h"

namespace zy::test {

/// The message that a check shows; nothing stands for a check that passes.
struct Box {
    const char* message;
    const char* title;
};

/// The checks over a rule list of the test's own.
class ChecksTest : public RulesTest {
  protected:
    /// Runs a check that has to pass without a box, or to fail with this one.
    template <typename Check>
    void Expect(const std::optional<Box>& box, const Check& check) {
        if (box) {
            world.dialogs.ExpectMessage(box->message, box->title);
        }
        EXPECT_EQ(check(), !box.has_value());
        ExpectScriptPlayed(world.dialogs);
    }

    /// What a check traces.
    template <typename Check>
    std::vector<std::string> Traces(const Check& check) {
        world.files.Plan({});
        check();
        return Log();
    }

    RuleChecks checks{rules.gaRules, world.system, world.dialogs, world.codePage, trace};
};

} // namespace zy::test
