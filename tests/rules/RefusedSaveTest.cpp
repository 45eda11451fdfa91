#include "RulesTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kStandInTmp = "The rules stand in Rules.tmp, ZYRules.sys could not be replaced: ";
constexpr auto kNotCreated = "Not saved, Rules.tmp could not be created: ";

/// Saves that the system refuses, each for a reason of its own. No box says so, the report does.
class RefusedSave : public RulesTest {
  protected:
    RefusedSave() {
        PutFile("old");
        newText = Section(AddCode("R1"));
    }

    void Write() {
        reports.clear();
        rules.Write_Rules_File();
        EXPECT_THAT(world.dialogs.Shown(), IsEmpty());
    }

    void ExpectReport(const std::string& report) { EXPECT_THAT(reports, ElementsAre(report)); }

    std::string newText;
};

TEST_F(RefusedSave, OnADiskWithTooLittleRoomLeavesTheOldFileAlone) {
    const auto needed = File()->size() + newText.size();
    for (std::size_t capacity = 0; capacity < needed; ++capacity) {
        SCOPED_TRACE(capacity);
        world.files.SetCapacity(capacity);
        Write();
        EXPECT_EQ(File(), "old");
        EXPECT_FALSE(Temporary());
        ExpectReport("Not saved, Rules.tmp could not be written: the disk is full");
    }
    world.files.SetCapacity(needed);
    Write();
    EXPECT_EQ(File(), newText);
    ExpectReport("Saved");
}

TEST_F(RefusedSave, OnAFullDiskKeepsTheMarkOfTheRuleListAndTracesNoFinish) {
    world.files.SetCapacity(0);
    rules.gbRulesChanged = true;
    world.files.Plan({});
    Write();
    EXPECT_TRUE(rules.gbRulesChanged);
    EXPECT_EQ(Log().front(), "Trace mRules Write_Rules_File Start");
    EXPECT_THAT(Log(), ::testing::Not(::testing::Contains("Trace mRules Write_Rules_File Finished")));
}

TEST_F(RefusedSave, InAReadOnlyFolderLeavesTheOldFileAlone) {
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    Write();
    EXPECT_EQ(File(), "old");
    EXPECT_FALSE(Temporary());
    ExpectReport(std::string(kNotCreated) + "access is denied");
}

TEST_F(RefusedSave, InAReadOnlyFolderWritesLeftoversThatAreThere) {
    world.files.Put(kTemporary, "left over");
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    Write();
    EXPECT_EQ(File(), "old");
    EXPECT_EQ(Temporary(), newText);
    ExpectReport(std::string(kStandInTmp) + "access is denied");
}

TEST_F(RefusedSave, OfAFileThatAnotherProgramHoldsKeepsTheRulesInTheTemporaryFile) {
    world.files.SetHeldOpen(kRulesFile);
    Write();
    EXPECT_EQ(File(), "old");
    EXPECT_EQ(Temporary(), newText);
    ExpectReport(std::string(kStandInTmp) + "another program is using it");
}

TEST_F(RefusedSave, OfAFileThatAnotherProgramHeldIsMadeGoodByTheNextOne) {
    world.files.SetHeldOpen(kRulesFile);
    Write();
    world.files.SetHeldOpen(kRulesFile, false);
    Write();
    EXPECT_EQ(File(), newText);
    EXPECT_FALSE(Temporary());
    ExpectReport("Saved");
}

TEST_F(RefusedSave, WithATemporaryFileThatAnotherProgramHoldsLeavesBothAlone) {
    world.files.Put(kTemporary, "theirs");
    world.files.SetHeldOpen(kTemporary);
    Write();
    EXPECT_EQ(File(), "old");
    EXPECT_EQ(Temporary(), "theirs");
    ExpectReport(std::string(kNotCreated) + "another program is using it");
}

TEST_F(RefusedSave, OfAnUnreadableFileReplacesItAllTheSame) {
    world.files.SetUnreadable(kRulesFile);
    Write();
    EXPECT_EQ(File(), newText);
    ExpectReport("Saved");
}

TEST_F(RefusedSave, WithAFolderOfTheTemporaryFilesNameLeavesTheOldFileAlone) {
    world.files.AddFolder(kTemporary);
    Write();
    EXPECT_EQ(File(), "old");
    ExpectReport(std::string(kNotCreated) + "a folder of that name is in the way");
}

TEST_F(RefusedSave, WithAFolderOfTheRulesFilesNameKeepsTheRulesInTheTemporaryFile) {
    world.files.Take(kRulesFile);
    world.files.AddFolder(kRulesFile);
    Write();
    EXPECT_FALSE(File());
    EXPECT_EQ(Temporary(), newText);
    ExpectReport(std::string(kStandInTmp) + "a folder of that name is in the way");
}

TEST_F(RefusedSave, WithoutTheSystemDirectoryWritesNothing) {
    world.system.SetSystemDirectory(R"(C:\GONE)");
    Write();
    EXPECT_THAT(world.files.Names(R"(C:\GONE)"), IsEmpty());
    ExpectReport(std::string(kNotCreated) + "the file or folder does not exist");
}

TEST_F(RefusedSave, KeepsTellingOfLinesThatWereNotUnderstood) {
    Load("; a comment\r\n[RULE]\r\n");
    world.files.SetCapacity(0);
    Write();
    EXPECT_EQ(rules.SkippedLines(), 1U);
    world.files.SetCapacity(std::nullopt);
    world.files.SetHeldOpen(kRulesFile);
    Write();
    EXPECT_EQ(rules.SkippedLines(), 1U);
}

} // namespace
} // namespace zy::test
