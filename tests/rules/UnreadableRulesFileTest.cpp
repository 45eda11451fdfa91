#include "RulesTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A rules file that is there but cannot be read whole. Taking what came for the whole list would let the
/// next save destroy the rest.
class UnreadableRulesFile : public RulesTest {
  protected:
    /// The box text of the error that loading ends with; empty when it loads.
    std::string LoadError() {
        try {
            rules.Build_Rules_Array();
        } catch (const RuntimeError& error) {
            return error.BoxText();
        }
        return {};
    }

    /// A file of half a megabyte.
    static std::string ManyRules() {
        std::string text;
        for (int rule = 0; rule < 32767; ++rule) {
            text += "[RULE]\r\nCODE=A\r\n";
        }
        return text;
    }

    /// The number of the operation that reads first: a search and an opening stand before it.
    static constexpr std::size_t kFirstRead = 3;

    static constexpr const char* kNotToItsEnd =
        "Run-time error '57':\n\nDevice I/O error: C:\\SYS\\ZYRules.sys could not be read to its end";
};

TEST_F(UnreadableRulesFile, IsNamedAsPeopleNameIt) {
    PutFile("[RULE]\r\n");
    world.files.SetDisplayed(R"(C:\SYS)", "/home/u");
    world.files.Plan({.operation = kFirstRead});
    EXPECT_EQ(LoadError(),
              "Run-time error '57':\n\nDevice I/O error: /home/u/ZYRules.sys could not be read to its end");
    world.files.Plan({});
    world.files.SetUnreadable(kRulesFile);
    EXPECT_EQ(LoadError(),
              "Run-time error '75':\n\nPath/File access error: /home/u/ZYRules.sys, access is denied");
}

TEST_F(UnreadableRulesFile, RaisesPathFileAccessErrorWhenAccessIsDenied) {
    PutFile("[RULE]\r\n");
    world.files.SetUnreadable(kRulesFile);
    EXPECT_EQ(LoadError(),
              "Run-time error '75':\n\nPath/File access error: C:\\SYS\\ZYRules.sys, access is denied");
    EXPECT_EQ(rules.gaRules.UBound(), 0);
}

TEST_F(UnreadableRulesFile, RaisesPathFileAccessErrorWhenAnotherProgramHoldsIt) {
    PutFile("[RULE]\r\n");
    world.files.SetHeldOpen(kRulesFile);
    EXPECT_EQ(
        LoadError(),
        "Run-time error '75':\n\nPath/File access error: C:\\SYS\\ZYRules.sys, another program is using it");
}

TEST_F(UnreadableRulesFile, RaisesDeviceErrorWhereverReadingStopsHalfWay) {
    const auto bytes = ManyRules();
    PutFile(bytes);
    ASSERT_EQ(LoadError(), "");
    world.files.Plan({});
    rules.Build_Rules_Array();
    const auto last = world.files.Operations().Count();
    ASSERT_GT(last, kFirstRead + 1) << "the file is read by more than one operation";
    for (auto read = kFirstRead; read < last; ++read) {
        for (const bool lasting : {false, true}) {
            rules.gaRules.Reset(0);
            world.files.Plan({.operation = read, .lasting = lasting});
            EXPECT_EQ(LoadError(), kNotToItsEnd) << "operation " << read;
            EXPECT_EQ(rules.gaRules.UBound(), 0);
        }
    }
    EXPECT_EQ(File(), bytes);
}

TEST_F(UnreadableRulesFile, RaisesDeviceErrorWhenNothingCouldBeRead) {
    PutFile("[RULE]\r\n");
    world.files.Plan({.operation = kFirstRead});
    EXPECT_EQ(LoadError(), kNotToItsEnd);
}

TEST_F(UnreadableRulesFile, IsLoadedWhenOnlyTheLookBehindItsEndFails) {
    PutFile("[RULE]\r\nCODE= A\r\n");
    world.files.Plan({.operation = kFirstRead + 1});
    EXPECT_EQ(LoadError(), "");
    EXPECT_THAT(Codes(), ElementsAre("A"));
}

TEST_F(UnreadableRulesFile, CountsAsMissingWhenTheSearchForItFails) {
    PutFile("[RULE]\r\n");
    world.files.Plan({.operation = 1});
    EXPECT_EQ(LoadError(), "");
    EXPECT_THAT(Codes(), IsEmpty());
}

TEST_F(UnreadableRulesFile, IsToldToBeThereWhenTheSearchForItHasFailed) {
    PutFile("[RULE]\r\n");
    world.files.Plan({.operation = 1});
    EXPECT_EQ(LoadError(), "");
    rules.LookForDangers();
    EXPECT_EQ(rules.Dangers(), "ZYRules.sys could not be read: the disk reported an error; saving replaces "
                               "all that it holds");
}

TEST_F(UnreadableRulesFile, IsLoadedOnceItCanBeReadAgain) {
    PutFile("[RULE]\r\nCODE= A\r\n");
    world.files.SetUnreadable(kRulesFile);
    EXPECT_NE(LoadError(), "");
    world.files.SetUnreadable(kRulesFile, false);
    EXPECT_EQ(LoadError(), "");
    EXPECT_THAT(Codes(), ElementsAre("A"));
}

TEST_F(UnreadableRulesFile, IsNoFileWhenAFolderHasItsName) {
    world.files.AddFolder(kRulesFile);
    EXPECT_EQ(LoadError(), "");
    EXPECT_THAT(Codes(), IsEmpty());
}

} // namespace
} // namespace zy::test
