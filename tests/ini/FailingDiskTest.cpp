#include <array>

#include "INIfileTest.h"

namespace zy::test {
namespace {

/// What the file holds after a save on a failing disk.
enum class Held { NoFile, Nothing, Half, Old, New, SomethingElse };

std::ostream& operator<<(std::ostream& out, Held held) {
    constexpr std::array kNames{"no file",      "nothing",      "half of the new text",
                                "the old text", "the new text", "something else"};
    return out << kNames.at(static_cast<std::size_t>(held));
}

/// One line of a table: what a save leaves behind when `failing` is the first operation that does not work.
struct Outcome {
    const char* failing;
    Held file;
};

constexpr auto kOldText = "the old text";
constexpr auto kNewText = "   K            = V\r\n";

/// Saves over a disk whose first, second, third ... operation fails, until none fails any more. Whatever
/// fails, nobody is told.
class FailingDisk : public INIfileTest {
  protected:
    FailingDisk() { AddLines(1); }

    void ExpectOutcomes(std::optional<std::string> oldText, FaultPlan how,
                        const std::vector<Outcome>& table) {
        for (const auto& outcome : table) {
            ++how.operation;
            SCOPED_TRACE("operation " + std::to_string(how.operation) + ", " + outcome.failing);
            Save(oldText, how);
            EXPECT_EQ(FirstFailure(), std::string(outcome.failing) + R"( C:\SYS\Demo.ini)");
            EXPECT_EQ(HeldNow(), outcome.file);
        }
        ++how.operation;
        Save(oldText, how);
        EXPECT_EQ(world.files.Operations().Faults(), 0U) << "a save has more operations than the table";
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

    std::string FirstFailure() const {
        for (const auto& line : world.files.Operations().Lines()) {
            if (const auto end = line.find(": the disk reported an error"); end != std::string::npos) {
                return line.substr(0, end);
            }
        }
        return "none";
    }

    Held HeldNow() const {
        const std::string newText = kNewText;
        const std::array<std::pair<std::optional<std::string>, Held>, 5> known{
            {{std::nullopt, Held::NoFile},
             {"", Held::Nothing},
             {newText.substr(0, newText.size() / 2), Held::Half},
             {kOldText, Held::Old},
             {newText, Held::New}}};
        for (const auto& [text, held] : known) {
            if (world.files.Get(kPath) == text) {
                return held;
            }
        }
        return Held::SomethingElse;
    }
};

using enum Held;

TEST_F(FailingDisk, ThatFailsOnceLeavesNoFileWhenItCannotBeCreatedAndAnEmptyOneWhenItCannotBeWritten) {
    ExpectOutcomes(kOldText, {},
                   {{"PathExists", New},
                    {"Delete", New},
                    {"Create", NoFile},
                    {"Write", Nothing},
                    {"Flush", New},
                    {"Close", New}});
}

TEST_F(FailingDisk, ThatFailsOnceInsideTheWriteLeavesThePartThatWasWritten) {
    ExpectOutcomes(kOldText, {.cutShort = true},
                   {{"PathExists", New},
                    {"Delete", New},
                    {"Create", NoFile},
                    {"Write", Half},
                    {"Flush", New},
                    {"Close", New}});
}

TEST_F(FailingDisk, ThatGoesAwayLeavesTheOldFileUntilItIsDeleted) {
    ExpectOutcomes(kOldText, {.lasting = true},
                   {{"PathExists", Old},
                    {"Delete", Old},
                    {"Create", NoFile},
                    {"Write", Nothing},
                    {"Flush", New},
                    {"Close", New}});
}

TEST_F(FailingDisk, ThatGoesAwayInsideTheWriteLeavesThePartThatWasWritten) {
    ExpectOutcomes(kOldText, {.lasting = true, .cutShort = true},
                   {{"PathExists", Old},
                    {"Delete", Old},
                    {"Create", NoFile},
                    {"Write", Half},
                    {"Flush", New},
                    {"Close", New}});
}

TEST_F(FailingDisk, ThatFailsAtTheFirstSaveLeavesNoFileOrThePartThatWasWritten) {
    for (const bool lasting : {false, true}) {
        SCOPED_TRACE(lasting);
        ExpectOutcomes(std::nullopt, {.lasting = lasting, .cutShort = true},
                       {{"PathExists", lasting ? NoFile : New},
                        {"Create", NoFile},
                        {"Write", Half},
                        {"Flush", New},
                        {"Close", New}});
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
