#include "RulesTest.h"
#include "support/FailingOperations.h"

namespace zy::test {
namespace {

/// One line of a table: what a save leaves behind when `failing` is the first operation that does not work.
struct Outcome {
    const char* failing;
    Held rulesFile;
    Held temporary;
    const char* report;
    bool finished; ///< the save ran to its end: "Finished" is traced and gbRulesChanged cleared
};

using Table = std::vector<Outcome>;

constexpr auto kSaved = "Saved";
constexpr auto kNotCreated = "Not saved, Rules.tmp could not be created: the disk reported an error";
constexpr auto kNotWritten = "Not saved, Rules.tmp could not be written: the disk reported an error";
constexpr auto kRenameFailed =
    "The rules stand in Rules.tmp, ZYRules.sys could not be replaced: the disk reported an error";
constexpr auto kNotFound = "Not saved, ZYRules.sys could not be replaced, and the rules were not found in "
                           "Rules.tmp: the disk reported an error";
constexpr auto kOldInTheWay =
    "The rules stand in Rules.tmp, ZYRules.sys could not be replaced: a file of that name is in the way";

constexpr auto kExistsTmp = R"(Exists C:\SYS\Rules.tmp)";
constexpr auto kDeleteTmp = R"(Delete C:\SYS\Rules.tmp)";
constexpr auto kCreate = R"(Create C:\SYS\Rules.tmp)";
constexpr auto kWrite = R"(Write C:\SYS\Rules.tmp)";
constexpr auto kFlush = R"(Flush C:\SYS\Rules.tmp)";
constexpr auto kClose = R"(Close C:\SYS\Rules.tmp)";
constexpr auto kExistsRules = R"(Exists C:\SYS\ZYRules.sys)";
constexpr auto kPermissions = R"(CopyPermissions C:\SYS\ZYRules.sys -> C:\SYS\Rules.tmp)";
constexpr auto kDeleteRules = R"(Delete C:\SYS\ZYRules.sys)";
constexpr auto kRename = R"(Rename C:\SYS\Rules.tmp -> C:\SYS\ZYRules.sys)";

enum class Start { WithoutAFile, WithTheOldFile, WithTheOldFileAndLeftovers };

/// Saves over a disk whose first, second, third ... operation fails, until none fails any more.
class FailingDisk : public RulesTest {
  protected:
    FailingDisk() {
        AddCode("R1");
        AddCode("R2");
        newText_ = Section(rules.gaRules(1)) + Section(rules.gaRules(2));
    }

    /// Goes through all operations of a save; the table has one line for each. `how` says in which way they
    /// fail.
    void ExpectOutcomes(Start start, const FaultPlan& how, const Table& table) {
        FailOneByOne(
            world.files.Operations(), how, table, [&](const FaultPlan& plan) { Save(start, plan); },
            [&](const Outcome& outcome) { Expect(start, outcome); });
        Expect(start, {"", Held::New, Held::NoFile, kSaved, true});
    }

  private:
    void Save(Start start, const FaultPlan& plan) {
        world.files.Take(kRulesFile);
        world.files.Take(kTemporary);
        if (start != Start::WithoutAFile) {
            PutFile(kOldText);
        }
        if (start == Start::WithTheOldFileAndLeftovers) {
            world.files.Put(kTemporary, kLeftovers);
        }
        reports.clear();
        rules.gbRulesChanged = true;
        world.files.Plan(plan);
        rules.Write_Rules_File();
    }

    void Expect(Start start, const Outcome& outcome) {
        EXPECT_EQ(HeldIn(File()), outcome.rulesFile);
        EXPECT_EQ(HeldIn(Temporary()), outcome.temporary);
        EXPECT_THAT(reports, ::testing::ElementsAre(outcome.report));
        EXPECT_EQ(rules.gbRulesChanged, !outcome.finished);
        EXPECT_EQ(Log().back() == "Trace mRules Write_Rules_File Finished", outcome.finished);
        EXPECT_THAT(world.dialogs.Shown(), ::testing::IsEmpty());
        ExpectTrue(outcome.report);
        ExpectNothingLost(start);
    }

    /// Where a report says that the rules stand, they do.
    void ExpectTrue(std::string_view report) {
        EXPECT_EQ(report.starts_with("Saved"), HeldIn(File()) == Held::New);
        if (report.starts_with("The rules stand in Rules.tmp")) {
            EXPECT_EQ(HeldIn(Temporary()), Held::New);
        }
    }

    /// Whatever fails: under the real name stands a whole text, and when there is none any more, the new one
    /// stands whole in the temporary file.
    void ExpectNothingLost(Start start) {
        const auto file = HeldIn(File());
        EXPECT_THAT(file, ::testing::AnyOf(Held::Old, Held::New, Held::NoFile));
        if (file == Held::NoFile && start != Start::WithoutAFile) {
            EXPECT_EQ(HeldIn(Temporary()), Held::New);
        }
    }

    Held HeldIn(const std::optional<std::string>& bytes) const {
        return test::HeldIn(bytes, {.old = kOldText, .fresh = newText_, .leftover = kLeftovers});
    }

    static constexpr auto kOldText = "the old text";
    static constexpr auto kLeftovers = "left over";
    std::string newText_;
};

using enum Held;

TEST_F(FailingDisk, ThatFailsOnceLeavesTheOldFileOrTheNewOneOrTheRulesInTheTemporaryFile) {
    ExpectOutcomes(Start::WithTheOldFile, {},
                   {{kExistsTmp, New, NoFile, kSaved, true},
                    {kCreate, Old, NoFile, kNotCreated, false},
                    {kWrite, Old, NoFile, kNotWritten, false},
                    {kFlush, Old, NoFile, kNotWritten, false},
                    {kClose, Old, NoFile, kNotWritten, false},
                    {kExistsRules, Old, New, kOldInTheWay, true},
                    {kPermissions, New, NoFile, kSaved, true},
                    {kDeleteRules, Old, New, kRenameFailed, true},
                    {kRename, NoFile, New, kRenameFailed, true}});
}

TEST_F(FailingDisk, ThatFailsOnceRemovesATextThatWasCutShort) {
    ExpectOutcomes(Start::WithTheOldFile, {.cutShort = true},
                   {{kExistsTmp, New, NoFile, kSaved, true},
                    {kCreate, Old, NoFile, kNotCreated, false},
                    {kWrite, Old, NoFile, kNotWritten, false},
                    {kFlush, Old, NoFile, kNotWritten, false},
                    {kClose, Old, NoFile, kNotWritten, false},
                    {kExistsRules, Old, New, kOldInTheWay, true},
                    {kPermissions, New, NoFile, kSaved, true},
                    {kDeleteRules, Old, New, kRenameFailed, true},
                    {kRename, NoFile, New, kRenameFailed, true}});
}

TEST_F(FailingDisk, ThatGoesAwayLeavesTheOldFileUntilItIsDeleted) {
    ExpectOutcomes(Start::WithTheOldFile, {.lasting = true},
                   {{kExistsTmp, Old, NoFile, kNotCreated, false},
                    {kCreate, Old, NoFile, kNotCreated, false},
                    {kWrite, Old, Nothing, kNotWritten, false},
                    {kFlush, Old, New, kNotWritten, false},
                    {kClose, Old, New, kNotWritten, false},
                    {kExistsRules, Old, New, kNotFound, true},
                    {kPermissions, Old, New, kNotFound, true},
                    {kDeleteRules, Old, New, kNotFound, true},
                    {kRename, NoFile, New, kNotFound, true}});
}

TEST_F(FailingDisk, ThatGoesAwayInsideTheWriteLeavesHalfATextInTheTemporaryFileAlone) {
    ExpectOutcomes(Start::WithTheOldFile, {.lasting = true, .cutShort = true},
                   {{kExistsTmp, Old, NoFile, kNotCreated, false},
                    {kCreate, Old, NoFile, kNotCreated, false},
                    {kWrite, Old, Half, kNotWritten, false},
                    {kFlush, Old, New, kNotWritten, false},
                    {kClose, Old, New, kNotWritten, false},
                    {kExistsRules, Old, New, kNotFound, true},
                    {kPermissions, Old, New, kNotFound, true},
                    {kDeleteRules, Old, New, kNotFound, true},
                    {kRename, NoFile, New, kNotFound, true}});
}

TEST_F(FailingDisk, ThatFailsOnceAtTheFirstSaveWritesNoFileOrAWholeOne) {
    ExpectOutcomes(Start::WithoutAFile, {.cutShort = true},
                   {{kExistsTmp, New, NoFile, kSaved, true},
                    {kCreate, NoFile, NoFile, kNotCreated, false},
                    {kWrite, NoFile, NoFile, kNotWritten, false},
                    {kFlush, NoFile, NoFile, kNotWritten, false},
                    {kClose, NoFile, NoFile, kNotWritten, false},
                    {kExistsRules, New, NoFile, kSaved, true},
                    {kRename, NoFile, New, kRenameFailed, true}});
}

TEST_F(FailingDisk, ThatGoesAwayAtTheFirstSaveWritesNoFileUnderTheRealName) {
    ExpectOutcomes(Start::WithoutAFile, {.lasting = true, .cutShort = true},
                   {{kExistsTmp, NoFile, NoFile, kNotCreated, false},
                    {kCreate, NoFile, NoFile, kNotCreated, false},
                    {kWrite, NoFile, Half, kNotWritten, false},
                    {kFlush, NoFile, New, kNotWritten, false},
                    {kClose, NoFile, New, kNotWritten, false},
                    {kExistsRules, NoFile, New, kNotFound, true},
                    {kRename, NoFile, New, kNotFound, true}});
}

TEST_F(FailingDisk, ThatFailsOnceWritesOverLeftoversThatItCouldNotDelete) {
    ExpectOutcomes(Start::WithTheOldFileAndLeftovers, {.cutShort = true},
                   {{kExistsTmp, New, NoFile, kSaved, true},
                    {kDeleteTmp, New, NoFile, kSaved, true},
                    {kCreate, Old, NoFile, kNotCreated, false},
                    {kWrite, Old, NoFile, kNotWritten, false},
                    {kFlush, Old, NoFile, kNotWritten, false},
                    {kClose, Old, NoFile, kNotWritten, false},
                    {kExistsRules, Old, New, kOldInTheWay, true},
                    {kPermissions, New, NoFile, kSaved, true},
                    {kDeleteRules, Old, New, kRenameFailed, true},
                    {kRename, NoFile, New, kRenameFailed, true}});
}

TEST_F(FailingDisk, ThatGoesAwayLeavesTheLeftoversUntilTheyAreDeleted) {
    ExpectOutcomes(Start::WithTheOldFileAndLeftovers, {.lasting = true, .cutShort = true},
                   {{kExistsTmp, Old, Leftover, kNotCreated, false},
                    {kDeleteTmp, Old, Leftover, kNotCreated, false},
                    {kCreate, Old, NoFile, kNotCreated, false},
                    {kWrite, Old, Half, kNotWritten, false},
                    {kFlush, Old, New, kNotWritten, false},
                    {kClose, Old, New, kNotWritten, false},
                    {kExistsRules, Old, New, kNotFound, true},
                    {kPermissions, Old, New, kNotFound, true},
                    {kDeleteRules, Old, New, kNotFound, true},
                    {kRename, NoFile, New, kNotFound, true}});
}

/// What another program does to the temporary file while the save is under way, whatever promise it breaks.
class TakenTemporaryFile : public RulesTest {
  protected:
    TakenTemporaryFile() {
        PutFile("old");
        AddCode("R1");
    }

    /// Saves; as soon as the old file is gone, the temporary one is somebody else's.
    template <typename Action>
    void SaveWith(Action action) {
        world.files.Operations().recorded = [action](const std::string& line) {
            if (line == kDeleteRules) {
                action();
            }
        };
        rules.Write_Rules_File();
    }
};

TEST_F(TakenTemporaryFile, IsNotSaidToHoldTheRulesWhenItIsGone) {
    SaveWith([this] { world.files.Take(kTemporary); });
    EXPECT_THAT(reports, ::testing::ElementsAre(
                             "Not saved, ZYRules.sys could not be replaced, and the rules were not found in "
                             "Rules.tmp: the file or folder does not exist"));
}

TEST_F(TakenTemporaryFile, IsNotSaidToHoldTheRulesWhenItHoldsOthers) {
    for (const std::string& theirs : {std::string("theirs"), Section(rules.gaRules(1)) + "[RULE]\r\n",
                                      std::string(Section(rules.gaRules(1)).size(), 'x')}) {
        reports.clear();
        SaveWith([&] {
            world.files.Put(kTemporary, theirs);
            PutFile("theirs");
        });
        EXPECT_THAT(reports, ::testing::ElementsAre(
                                 "Not saved, ZYRules.sys could not be replaced, and the rules were not found "
                                 "in Rules.tmp: a file of that name is in the way"));
        EXPECT_EQ(Temporary(), theirs);
    }
}

} // namespace
} // namespace zy::test
