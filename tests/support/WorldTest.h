#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

    MemoryWorld world;
};

} // namespace zy::test
