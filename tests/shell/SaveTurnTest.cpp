#include <gmock/gmock.h>

#include <optional>

#include "shell/SaveTurn.h"
#include "support/WorldTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kPath = R"(C:\SYS\ZYUNITS.SYS)";

/// Files of which nothing is known but how they answer to being held.
class FilesThatLock : public FileSystem {
  public:
    MOCK_METHOD(std::string, DisplayPath, (std::string_view), (override));
    MOCK_METHOD(FileError, Locate, (std::string_view), (override));
    MOCK_METHOD(LockedFolder, LockFolderOf, (std::string_view), (override));
    MOCK_METHOD(FileError, MayReplace, (std::string_view), (override));
    MOCK_METHOD(FileError, MayOverwrite, (std::string_view), (override));
    MOCK_METHOD(std::optional<std::uint64_t>, FreeBytes, (std::string_view), (override));
    MOCK_METHOD(bool, Exists, (std::string_view), (override));
    MOCK_METHOD(bool, PathExists, (std::string_view), (override));
    MOCK_METHOD(std::optional<std::chrono::local_seconds>, LastChange, (std::string_view), (override));
    MOCK_METHOD(std::vector<FoundFile>, FilesIn, (std::string_view), (override));
    MOCK_METHOD(OpenedFile, OpenForReading, (std::string_view), (override));
    MOCK_METHOD(OpenedFile, OpenAlwaysForReading, (std::string_view), (override));
    MOCK_METHOD(OpenedFile, Create, (std::string_view), (override));
    MOCK_METHOD(OpenedFile, CreatePrivate, (std::string_view), (override));
    MOCK_METHOD(FileError, MakePrivateFolder, (std::string_view), (override));
    MOCK_METHOD(FileError, Delete, (std::string_view), (override));
    MOCK_METHOD(FileError, Rename, (std::string_view, std::string_view), (override));
    MOCK_METHOD(FileError, CopyPermissions, (std::string_view, std::string_view), (override));
};

class SaveTurns : public WorldTest {};

TEST_F(SaveTurns, AreTakenWhileNobodyElseSavesInTheFolder) {
    const SaveTurn turn(world.files, kPath);
    EXPECT_TRUE(turn.IsMine());
    EXPECT_THAT(world.files.LockedFolders(), ElementsAre(R"(C:\SYS)"));
}

TEST_F(SaveTurns, LastUntilTheyAreGivenBack) {
    std::optional<SaveTurn> turn(std::in_place, world.files, kPath);
    world.files.Put(kPath, "written meanwhile");
    EXPECT_THAT(world.files.LockedFolders(), ElementsAre(R"(C:\SYS)"));
    turn.reset();
    EXPECT_THAT(world.files.LockedFolders(), IsEmpty());
}

TEST_F(SaveTurns, AreRefusedWhileSomebodyElseSavesInTheFolder) {
    world.files.SetFolderLocked(R"(C:\SYS)");
    EXPECT_FALSE(SaveTurn(world.files, kPath).IsMine());
    EXPECT_THAT(world.files.LockedFolders(), IsEmpty());
    world.files.SetFolderLocked(R"(C:\SYS)", false);
    EXPECT_TRUE(SaveTurn(world.files, kPath).IsMine());
}

TEST_F(SaveTurns, AreTakenWhileSomebodyElseSavesInAnotherFolder) {
    world.files.AddFolder(R"(C:\SYS\OTHER)");
    world.files.SetFolderLocked(R"(C:\SYS\OTHER)");
    EXPECT_TRUE(SaveTurn(world.files, kPath).IsMine());
}

TEST_F(SaveTurns, WriteNothing) {
    world.files.Plan({});
    { const SaveTurn turn(world.files, kPath); }
    EXPECT_EQ(world.files.Operations().Count(), 0U);
    EXPECT_THAT(world.files.Names(R"(C:\SYS)"), IsEmpty());
}

/// A folder that cannot be held is no reason not to save there: only somebody else's save is one.
TEST_F(SaveTurns, AreTakenWhereTheFolderCannotBeHeld) {
    for (const auto error : {FileError::None, FileError::NotFound, FileError::AccessDenied,
                             FileError::ReadOnly, FileError::Ambiguous, FileError::Other}) {
        ::testing::StrictMock<FilesThatLock> files;
        EXPECT_CALL(files, LockFolderOf(std::string_view(kPath))).WillOnce([&] {
            return LockedFolder{.lock = nullptr, .error = error};
        });
        EXPECT_TRUE(SaveTurn(files, kPath).IsMine()) << Describe(error);
    }
}

TEST_F(SaveTurns, AreNoReasonNotToSaveWhileTheyAreMineAndTheNameIsCertain) {
    EXPECT_EQ(Uncertainty(world.files, kPath), "");
    EXPECT_EQ(WhyNotToSave(world.files, kPath, SaveTurn(world.files, kPath)), "");
}

TEST_F(SaveTurns, TellWhoeverHasToWaitThatSomebodyElseIsSaving) {
    world.files.SetFolderLocked(R"(C:\SYS)");
    EXPECT_EQ(WhyNotToSave(world.files, kPath, SaveTurn(world.files, kPath)), SaveTurn::kRefusal);
}

TEST_F(SaveTurns, AreNoHelpWhereNobodyCanTellWhichFileIsMeant) {
    world.files.SetUncertain(kPath, FileError::Ambiguous);
    EXPECT_EQ(Uncertainty(world.files, kPath), "it is not certain which file ZYUNITS.SYS is: "
                                               "names that differ by case alone stand side by side");
    EXPECT_EQ(WhyNotToSave(world.files, kPath, SaveTurn(world.files, kPath)),
              "Not saved, it is not certain which file ZYUNITS.SYS is: "
              "names that differ by case alone stand side by side");
    world.files.SetUncertain(kPath, FileError::AccessDenied);
    EXPECT_EQ(Uncertainty(world.files, kPath),
              "it is not certain which file ZYUNITS.SYS is: access is denied");
}

TEST(Obstacle, SaysWhatToDoAboutItsReason) {
    EXPECT_EQ(Obstacle(kPath, FileError::None), "");
    EXPECT_EQ(Obstacle(kPath, FileError::AccessDenied),
              "ZYUNITS.SYS cannot be written now: access is denied; open the editor as its owner or an "
              "administrator");
    EXPECT_EQ(
        Obstacle(kPath, FileError::ReadOnly),
        "ZYUNITS.SYS cannot be written now: it is read-only; take the write protection off before editing");
    EXPECT_EQ(
        Obstacle(kPath, FileError::InUse),
        "ZYUNITS.SYS cannot be written now: another program is using it; close that program before saving");
    EXPECT_EQ(Obstacle(kPath, FileError::DiskFull),
              "ZYUNITS.SYS cannot be written now: the disk is full; make room on it before editing");
    EXPECT_EQ(Obstacle(kPath, FileError::IsFolder),
              "ZYUNITS.SYS cannot be written now: a folder of that name is in the way; put that right before "
              "editing");
}

} // namespace
} // namespace zy::test
