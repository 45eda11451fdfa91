#include "UnitsTest.h"
#include "support/FailingOperations.h"

namespace zy::test {
namespace {

/// What a save leaves behind when `failing` is the first operation that does not work.
struct Outcome {
    const char* failing;
    Held file;
    const char* status;
};

using Table = std::vector<Outcome>;

constexpr auto kExists = R"(Exists C:\SYS\ZYUNITS.SYS)";
constexpr auto kDelete = R"(Delete C:\SYS\ZYUNITS.SYS)";
constexpr auto kCreate = R"(Create C:\SYS\ZYUNITS.SYS)";
constexpr auto kWrite = R"(Write C:\SYS\ZYUNITS.SYS)";
constexpr auto kFlush = R"(Flush C:\SYS\ZYUNITS.SYS)";
constexpr auto kClose = R"(Close C:\SYS\ZYUNITS.SYS)";

constexpr auto kSaved = "Saved";
constexpr auto kNotCreated = "Not saved, ZYUNITS.SYS could not be created: the disk reported an error";
constexpr auto kNotWritten = "Not saved, ZYUNITS.SYS could not be written: the disk reported an error";
constexpr auto kOldText = "A,a\r\nB,b\r\n";
constexpr std::string_view kNewText = "A,a\r\nB,bb\r\nC,c\r\n";

/// Saves over a disk whose first, second, third ... operation fails, until none fails any more. The old file
/// goes before the new one is there, so a disk that fails in between loses the file; the rows stay in the
/// grid.
class FailingDisk : public UnitsTest {
  protected:
    FailingDisk() {
        OpenOver(kOldText);
        Edit(2, kUnit, "bb");
        AddUnit("c", "C");
    }

    /// Goes through all operations of a save; the table has one line for each. `how` says in which way they
    /// fail.
    void ExpectOutcomes(const std::optional<std::string>& before, const FaultPlan& how, const Table& table) {
        FailOneByOne(
            world.files.Operations(), how, table, [&](const FaultPlan& plan) { SaveOver(before, plan); },
            [this](const Outcome& outcome) { Expect(outcome); });
        Expect({"", Held::New, kSaved});
    }

  private:
    void SaveOver(const std::optional<std::string>& before, const FaultPlan& plan) {
        world.files.Take(kUnitsFile);
        if (before) {
            world.files.Put(kUnitsFile, *before);
        }
        page.MarkUnitsChanged();
        world.files.Plan(plan);
        Save();
    }

    /// Whatever fails: no box is shown, the marks go, and the rows stay, so that they can be saved again.
    void Expect(const Outcome& outcome) {
        EXPECT_EQ(HeldIn(File(), {.old = kOldText, .fresh = kNewText}), outcome.file);
        EXPECT_EQ(Status(), outcome.status);
        ExpectChanged(false);
        EXPECT_THAT(Units(), ::testing::ElementsAre("a|A", "bb|B", "c|C"));
        EXPECT_THAT(world.dialogs.Shown(), ::testing::IsEmpty());
    }
};

using enum Held;

TEST_F(FailingDisk, ThatFailsOnceLeavesTheNewFileOrNoneOrAnEmptyOne) {
    ExpectOutcomes(kOldText, {},
                   {{kExists, New, kSaved},
                    {kDelete, New, kSaved},
                    {kCreate, NoFile, kNotCreated},
                    {kWrite, Nothing, kNotWritten},
                    {kFlush, New, kNotWritten},
                    {kClose, New, kNotWritten}});
}

TEST_F(FailingDisk, ThatCutsTheWriteShortLeavesHalfATextAndTellsSo) {
    ExpectOutcomes(kOldText, {.cutShort = true},
                   {{kExists, New, kSaved},
                    {kDelete, New, kSaved},
                    {kCreate, NoFile, kNotCreated},
                    {kWrite, Half, kNotWritten},
                    {kFlush, New, kNotWritten},
                    {kClose, New, kNotWritten}});
}

TEST_F(FailingDisk, ThatGoesAwayLeavesTheOldFileUntilItIsDeleted) {
    ExpectOutcomes(kOldText, {.lasting = true},
                   {{kExists, Old, kNotCreated},
                    {kDelete, Old, kNotCreated},
                    {kCreate, NoFile, kNotCreated},
                    {kWrite, Nothing, kNotWritten},
                    {kFlush, New, kNotWritten},
                    {kClose, New, kNotWritten}});
}

TEST_F(FailingDisk, ThatGoesAwayInsideTheWriteLeavesHalfATextAndTellsSo) {
    ExpectOutcomes(kOldText, {.lasting = true, .cutShort = true},
                   {{kExists, Old, kNotCreated},
                    {kDelete, Old, kNotCreated},
                    {kCreate, NoFile, kNotCreated},
                    {kWrite, Half, kNotWritten},
                    {kFlush, New, kNotWritten},
                    {kClose, New, kNotWritten}});
}

TEST_F(FailingDisk, ThatFailsOnceAtTheFirstSaveLeavesTheNewFileOrNoneOrHalfATextAndTellsWhich) {
    ExpectOutcomes(std::nullopt, {.cutShort = true},
                   {{kExists, New, kSaved},
                    {kCreate, NoFile, kNotCreated},
                    {kWrite, Half, kNotWritten},
                    {kFlush, New, kNotWritten},
                    {kClose, New, kNotWritten}});
}

TEST_F(FailingDisk, ThatGoesAwayAtTheFirstSaveLeavesNoFileOrAnEmptyOne) {
    ExpectOutcomes(std::nullopt, {.lasting = true},
                   {{kExists, NoFile, kNotCreated},
                    {kCreate, NoFile, kNotCreated},
                    {kWrite, Nothing, kNotWritten},
                    {kFlush, New, kNotWritten},
                    {kClose, New, kNotWritten}});
}

TEST_F(FailingDisk, ThatIsFullHoldsThePartThatFitsAndTheStatusBarTellsWhy) {
    world.files.SetCapacity(6);
    Save();
    EXPECT_EQ(File(), "A,a\r\nB");
    EXPECT_EQ(Status(), "Not saved, ZYUNITS.SYS could not be written: the disk is full");
    world.files.SetCapacity(std::nullopt);
    ChooseSave();
    EXPECT_EQ(File(), kNewText);
    EXPECT_EQ(Status(), kSaved);
}

TEST_F(FailingDisk, WithAFileThatAnotherProgramHoldsKeepsTheOldText) {
    world.files.SetHeldOpen(kUnitsFile);
    Save();
    EXPECT_EQ(File(), kOldText);
    EXPECT_EQ(Status(), "Not saved, ZYUNITS.SYS could not be created: another program is using it");
    ExpectChanged(false);
}

TEST_F(FailingDisk, WithAFolderInTheFilesPlaceTellsThatItIsInTheWay) {
    world.files.Take(kUnitsFile);
    world.files.AddFolder(kUnitsFile);
    Save();
    EXPECT_EQ(File(), std::nullopt);
    EXPECT_EQ(Status(), "Not saved, ZYUNITS.SYS could not be created: a folder of that name is in the way");
}

TEST_F(FailingDisk, IsAskedAgainWhenThePersonSavesByTheMenu) {
    world.files.Plan({.operation = 3}); // the creation
    Save();
    EXPECT_EQ(File(), std::nullopt);
    ChooseSave();
    EXPECT_EQ(File(), kNewText);
}

} // namespace
} // namespace zy::test
