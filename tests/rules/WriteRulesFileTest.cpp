#include "RulesTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WriteRulesFile : public RulesTest {
  protected:
    void Write() {
        world.files.Plan({});
        rules.Write_Rules_File();
    }

    std::string NewText() {
        std::string text;
        for (int i = 1; i <= rules.gaRules.UBound(); ++i) {
            text += Section(rules.gaRules(i));
        }
        return text;
    }
};

TEST_F(WriteRulesFile, ReplacesTheOldFileOnlyWhenTheNewTextStandsOnTheDisk) {
    PutFile("old");
    AddCode("R1");
    Write();
    EXPECT_THAT(Log(), ElementsAre("Trace mRules Write_Rules_File Start", R"(Exists C:\SYS\Rules.tmp)",
                                   R"(Create C:\SYS\Rules.tmp)", R"(Write C:\SYS\Rules.tmp)",
                                   R"(Flush C:\SYS\Rules.tmp)", R"(Close C:\SYS\Rules.tmp)",
                                   R"(Exists C:\SYS\ZYRules.sys)",
                                   R"(CopyPermissions C:\SYS\ZYRules.sys -> C:\SYS\Rules.tmp)",
                                   R"(Delete C:\SYS\ZYRules.sys)",
                                   R"(Rename C:\SYS\Rules.tmp -> C:\SYS\ZYRules.sys)",
                                   "Trace mRules Write_Rules_File Finished"));
}

TEST_F(WriteRulesFile, DeletesNoFileWhereThereIsNone) {
    AddCode("R1");
    Write();
    EXPECT_THAT(Log(), ElementsAre("Trace mRules Write_Rules_File Start", R"(Exists C:\SYS\Rules.tmp)",
                                   R"(Create C:\SYS\Rules.tmp)", R"(Write C:\SYS\Rules.tmp)",
                                   R"(Flush C:\SYS\Rules.tmp)", R"(Close C:\SYS\Rules.tmp)",
                                   R"(Exists C:\SYS\ZYRules.sys)",
                                   R"(Rename C:\SYS\Rules.tmp -> C:\SYS\ZYRules.sys)",
                                   "Trace mRules Write_Rules_File Finished"));
    EXPECT_EQ(File(), NewText());
}

TEST_F(WriteRulesFile, DeletesALeftoverTemporaryFileFirst) {
    world.files.Put(kTemporary, "left over, and longer than what is written now");
    Write();
    EXPECT_EQ(Log().at(1), R"(Exists C:\SYS\Rules.tmp)");
    EXPECT_EQ(Log().at(2), R"(Delete C:\SYS\Rules.tmp)");
    EXPECT_EQ(Log().at(3), R"(Create C:\SYS\Rules.tmp)");
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(Temporary());
}

TEST_F(WriteRulesFile, LeavesOneFileOfTheRightNameAndNothingElse) {
    world.files.Put(kTemporary, "left over");
    world.files.Put(R"(C:\SYS\ZYUNITS.SYS)", "units");
    PutFile("old");
    AddCode("R1");
    Write();
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYRules.sys", "ZYUNITS.SYS"));
    EXPECT_EQ(File(), NewText());
    EXPECT_EQ(world.files.Get(R"(C:\SYS\ZYUNITS.SYS)"), "units");
}

TEST_F(WriteRulesFile, GivesAFileOfAnotherCaseItsOwnName) {
    world.files.Put(R"(C:\SYS\ZYRULES.SYS)", "old");
    Write();
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), ElementsAre("ZYRules.sys"));
}

TEST_F(WriteRulesFile, FindsNoTemporaryFileAtASecondSave) {
    AddCode("R1");
    Write();
    AddCode("R2");
    Write();
    EXPECT_THAT(Log(), ::testing::Not(::testing::Contains(R"(Delete C:\SYS\Rules.tmp)")));
    EXPECT_EQ(File(), NewText());
}

TEST_F(WriteRulesFile, KeepsThePermissionsOfTheOldFile) {
    PutFile("old");
    world.files.SetPermissions(kRulesFile, 0640);
    Write();
    EXPECT_EQ(world.files.Permissions(kRulesFile), 0640U);
}

TEST_F(WriteRulesFile, GivesAFirstFileThePermissionsOfNewFiles) {
    Write();
    EXPECT_EQ(world.files.Permissions(kRulesFile), MemoryFileSystem::kNewFilePermissions);
}

TEST_F(WriteRulesFile, WritesIntoTheSystemDirectoryOfTheMoment) {
    world.files.AddFolder(R"(D:\OTHER)");
    world.system.SetSystemDirectory(R"(D:\OTHER)");
    Write();
    EXPECT_EQ(world.files.Get(R"(D:\OTHER\ZYRules.sys)"), "");
    EXPECT_FALSE(File());
}

TEST_F(WriteRulesFile, WritesTheRulesThatWereLoadedAfterAnEdit) {
    Load("[RULE]\r\nCODE= R1\r\n");
    rules.gaRules(1).Code = "X";
    Write();
    EXPECT_EQ(File(), NewText());
    EXPECT_THAT(*File(), ::testing::HasSubstr("   CODE         = X\r\n"));
}

TEST_F(WriteRulesFile, ClearsTheMarkOfTheRuleListAndReportsTheSave) {
    rules.gbRulesChanged = true;
    Write();
    EXPECT_FALSE(rules.gbRulesChanged);
    EXPECT_THAT(reports, ElementsAre("Saved"));
}

TEST_F(WriteRulesFile, ForgetsTheLinesThatItDidNotWriteBack) {
    Load("; a comment\r\n[RULE]\r\n");
    ASSERT_EQ(rules.SkippedLines(), 1U);
    Write();
    EXPECT_EQ(rules.SkippedLines(), 0U);
}

TEST_F(WriteRulesFile, LeavesTheOtherStateAlone) {
    AddCode("R1");
    rules.giCurRule = 1;
    rules.gbNewRule = true;
    Write();
    EXPECT_EQ(rules.giCurRule, 1);
    EXPECT_TRUE(rules.gbNewRule);
    EXPECT_THAT(Codes(), ElementsAre("R1"));
}

} // namespace
} // namespace zy::test
