#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/memory/MemoryWorld.h"

namespace zy::test {

/// Fails the test when a message box came that was not expected, or one that was expected did not come.
inline void ExpectScriptPlayed(ScriptedDialogs& dialogs) {
    EXPECT_THAT(dialogs.Failures(), ::testing::IsEmpty());
}

/// A test in a memory world of its own, whose message boxes are all answered by the script.
///
/// A fixture that overrides TearDown calls this one.
class WorldTest : public ::testing::Test {
  protected:
    void TearDown() override { ExpectScriptPlayed(world.dialogs); }

    /// The records that came to the trace viewer since the last call, as "module procedure message".
    std::vector<std::string> Traces() {
        std::vector<std::string> lines;
        for (const auto& record : world.traceServers.Records()) {
            lines.push_back(record.module + " " + record.procedure + " " + record.message);
        }
        world.traceServers.Clear();
        return lines;
    }

    /// What the question before changes are lost will be answered. It ignores Escape, for No loses them.
    void ExpectWishToSave(Answer answer) {
        world.dialogs.ExpectYesNo("Do you Wish to Save your Changes?", "Save Changes?", answer,
                                  Escape::IsIgnored);
    }

    MemoryWorld world;
};

} // namespace zy::test
