#include <array>
#include <ostream>

#include "UnitsTest.h"

namespace zy::test {
namespace {

/// What the units file holds after a save on a failing disk.
enum class Held { NoFile, Nothing, Half, Old, New, SomethingElse };

std::ostream& operator<<(std::ostream& out, Held held) {
    constexpr std::array kNames{"no file",      "nothing",      "half of the new text",
                                "the old text", "the new text", "something else"};
    return out << kNames.at(static_cast<std::size_t>(held));
}

/// What a save leaves behind when `failing` is the first operation that does not work.
struct Outcome {
    const char* failing;
    Held file;
    const char* status;
};

using Table = std::vector<Outcome>;

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
    void ExpectOutcomes(const std::optional<std::string>& before, FaultPlan how, const Table& table) {
        for (const auto& outcome : table) {
            ++how.operation;
            SCOPED_TRACE("operation " + std::to_string(how.operation) + ", " + outcome.failing);
            SaveOver(before, how);
            EXPECT_EQ(FirstFailure(), std::string(outcome.failing) + R"( C:\SYS\ZYUNITS.SYS)");
            Expect(outcome);
        }
        ++how.operation;
        SaveOver(before, how);
        EXPECT_EQ(world.files.Operations().Faults(), 0U) << "a save has more operations than the table";
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

    std::string FirstFailure() const {
        for (const auto& line : world.files.Operations().Lines()) {
            if (const auto end = line.find(": the disk reported an error"); end != std::string::npos) {
                return line.substr(0, end);
            }
        }
        return "none";
    }

    /// Whatever fails: no box is shown, the marks go, and the rows stay, so that they can be saved again.
    void Expect(const Outcome& outcome) {
        EXPECT_EQ(HeldInFile(), outcome.file);
        EXPECT_EQ(Status(), outcome.status);
        ExpectChanged(false);
        EXPECT_THAT(Units(), ::testing::ElementsAre("a|A", "bb|B", "c|C"));
        EXPECT_THAT(world.dialogs.Shown(), ::testing::IsEmpty());
    }

    Held HeldInFile() const {
        const std::array<std::pair<std::optional<std::string>, Held>, 5> known{
            {{std::nullopt, Held::NoFile},
             {"", Held::Nothing},
             {std::string(kNewText.substr(0, kNewText.size() / 2)), Held::Half},
             {kOldText, Held::Old},
             {std::string(kNewText), Held::New}}};
        for (const auto& [text, held] : known) {
            if (File() == text) {
                return held;
            }
        }
        return Held::SomethingElse;
    }
};

using enum Held;

TEST_F(FailingDisk, ThatFailsOnceLeavesTheNewFileOrNoneOrAnEmptyOne) {
    ExpectOutcomes(kOldText, {},
                   {{"Exists", New, kSaved},
                    {"Delete", New, kSaved},
                    {"Create", NoFile, kNotCreated},
                    {"Write", Nothing, kNotWritten},
                    {"Flush", New, kNotWritten},
                    {"Close", New, kNotWritten}});
}

TEST_F(FailingDisk, ThatCutsTheWriteShortLeavesHalfATextAndTellsSo) {
    ExpectOutcomes(kOldText, {.cutShort = true},
                   {{"Exists", New, kSaved},
                    {"Delete", New, kSaved},
                    {"Create", NoFile, kNotCreated},
                    {"Write", Half, kNotWritten},
                    {"Flush", New, kNotWritten},
                    {"Close", New, kNotWritten}});
}

TEST_F(FailingDisk, ThatGoesAwayLeavesTheOldFileUntilItIsDeleted) {
    ExpectOutcomes(kOldText, {.lasting = true},
                   {{"Exists", Old, kNotCreated},
                    {"Delete", Old, kNotCreated},
                    {"Create", NoFile, kNotCreated},
                    {"Write", Nothing, kNotWritten},
                    {"Flush", New, kNotWritten},
                    {"Close", New, kNotWritten}});
}

TEST_F(FailingDisk, ThatGoesAwayInsideTheWriteLeavesHalfATextAndTellsSo) {
    ExpectOutcomes(kOldText, {.lasting = true, .cutShort = true},
                   {{"Exists", Old, kNotCreated},
                    {"Delete", Old, kNotCreated},
                    {"Create", NoFile, kNotCreated},
                    {"Write", Half, kNotWritten},
                    {"Flush", New, kNotWritten},
                    {"Close", New, kNotWritten}});
}

TEST_F(FailingDisk, ThatFailsOnceAtTheFirstSaveLeavesTheNewFileOrNoneOrHalfATextAndTellsWhich) {
    ExpectOutcomes(std::nullopt, {.cutShort = true},
                   {{"Exists", New, kSaved},
                    {"Create", NoFile, kNotCreated},
                    {"Write", Half, kNotWritten},
                    {"Flush", New, kNotWritten},
                    {"Close", New, kNotWritten}});
}

TEST_F(FailingDisk, ThatGoesAwayAtTheFirstSaveLeavesNoFileOrAnEmptyOne) {
    ExpectOutcomes(std::nullopt, {.lasting = true},
                   {{"Exists", NoFile, kNotCreated},
                    {"Create", NoFile, kNotCreated},
                    {"Write", Nothing, kNotWritten},
                    {"Flush", New, kNotWritten},
                    {"Close", New, kNotWritten}});
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
