#include "INIfileTest.h"
#include "support/FailingOperations.h"

namespace zy::test {
namespace {

/// One line of a table: what a save leaves behind when `failing` is the first operation that does not work.
struct Outcome {
    const char* failing;
    Held file;
};

constexpr auto kPathExists = R"(PathExists C:\SYS\Demo.ini)";
constexpr auto kDelete = R"(Delete C:\SYS\Demo.ini)";
constexpr auto kCreate = R"(Create C:\SYS\Demo.ini)";
constexpr auto kWrite = R"(Write C:\SYS\Demo.ini)";
constexpr auto kFlush = R"(Flush C:\SYS\Demo.ini)";
constexpr auto kClose = R"(Close C:\SYS\Demo.ini)";

constexpr auto kOldText = "the old text";
constexpr auto kNewText = "   K            = V\r\n";

/// Saves over a disk whose first, second, third ... operation fails, until none fails any more. Whatever
/// fails, nobody is told.
class FailingDisk : public INIfileTest {
  protected:
    FailingDisk() { AddLines(1); }

    void ExpectOutcomes(const std::optional<std::string>& oldText, const FaultPlan& how,
                        const std::vector<Outcome>& table) {
        FailOneByOne(
            world.files.Operations(), how, table, [&](const FaultPlan& plan) { Save(oldText, plan); },
            [this](const Outcome& outcome) { EXPECT_EQ(HeldNow(), outcome.file); });
        EXPECT_EQ(HeldNow(), Held::New);
    }

  private:
    void Save(const std::optional<std::string>& oldText, const FaultPlan& plan) {
        world.files.Take(kPath);
        if (oldText) {
            world.files.Put(kPath, *oldText);
        }
        world.files.Plan(plan);
        file.SaveFile(kPath);
        EXPECT_THAT(Lines(), ::testing::ElementsAre(Texts{"[G]", "K", "V"}));
    }

    Held HeldNow() const { return HeldIn(world.files.Get(kPath), {.old = kOldText, .fresh = kNewText}); }
};

using enum Held;

TEST_F(FailingDisk, ThatFailsOnceLeavesNoFileWhenItCannotBeCreatedAndAnEmptyOneWhenItCannotBeWritten) {
    ExpectOutcomes(kOldText, {},
                   {{kPathExists, New},
                    {kDelete, New},
                    {kCreate, NoFile},
                    {kWrite, Nothing},
                    {kFlush, New},
                    {kClose, New}});
}

TEST_F(FailingDisk, ThatFailsOnceInsideTheWriteLeavesThePartThatWasWritten) {
    ExpectOutcomes(kOldText, {.cutShort = true},
                   {{kPathExists, New},
                    {kDelete, New},
                    {kCreate, NoFile},
                    {kWrite, Half},
                    {kFlush, New},
                    {kClose, New}});
}

TEST_F(FailingDisk, ThatGoesAwayLeavesTheOldFileUntilItIsDeleted) {
    ExpectOutcomes(kOldText, {.lasting = true},
                   {{kPathExists, Old},
                    {kDelete, Old},
                    {kCreate, NoFile},
                    {kWrite, Nothing},
                    {kFlush, New},
                    {kClose, New}});
}

TEST_F(FailingDisk, ThatGoesAwayInsideTheWriteLeavesThePartThatWasWritten) {
    ExpectOutcomes(kOldText, {.lasting = true, .cutShort = true},
                   {{kPathExists, Old},
                    {kDelete, Old},
                    {kCreate, NoFile},
                    {kWrite, Half},
                    {kFlush, New},
                    {kClose, New}});
}

TEST_F(FailingDisk, ThatFailsAtTheFirstSaveLeavesNoFileOrThePartThatWasWritten) {
    for (const bool lasting : {false, true}) {
        SCOPED_TRACE(lasting);
        ExpectOutcomes(std::nullopt, {.lasting = lasting, .cutShort = true},
                       {{kPathExists, lasting ? NoFile : New},
                        {kCreate, NoFile},
                        {kWrite, Half},
                        {kFlush, New},
                        {kClose, New}});
    }
}

TEST_F(FailingDisk, ThatIsFullKeepsThePartThatFits) {
    world.files.SetCapacity(5);
    file.SaveFile(kPath);
    EXPECT_EQ(world.files.Get(kPath), std::string(kNewText).substr(0, 5));
}

TEST_F(FailingDisk, ThatIsReadOnlyHasTheFileWrittenInItsPlace) {
    world.files.Put(kPath, kOldText);
    world.files.SetFolderReadOnly(R"(C:\SYS)");
    EXPECT_EQ(INIfileTest::Save(), kNewText);
}

TEST_F(FailingDisk, WhoseFileAnotherProgramHoldsKeepsIt) {
    world.files.Put(kPath, kOldText);
    world.files.SetHeldOpen(kPath);
    EXPECT_EQ(INIfileTest::Save(), kOldText);
}

TEST_F(FailingDisk, WithoutTheFolderGetsNoFile) {
    file.SaveFile(R"(C:\None\Demo.ini)");
    EXPECT_FALSE(world.files.Get(R"(C:\None\Demo.ini)"));
}

TEST_F(FailingDisk, WithAFolderOfTheNameKeepsIt) {
    world.files.AddFolder(R"(C:\SYS\Demo.ini)");
    file.SaveFile(kPath);
    EXPECT_FALSE(world.files.Get(kPath));
}

} // namespace
} // namespace zy::test
