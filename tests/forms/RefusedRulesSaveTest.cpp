#include "RulesForm.h"
#include "shell/SaveTurn.h"

namespace zy::test {
namespace {

using ::testing::AnyOf;
using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr auto kFolder = R"(C:\SYS)";

/// Saves that are refused before their first step: the folder is somebody else's for the moment, or nobody
/// can tell which file is meant.
class RefusedRulesSave : public RulesForm {
  protected:
    RefusedRulesSave() {
        StartWithCodes({"A", "B"});
        before = *File();
        page().cmdUpDown.PressDown();
        ExpectMarks(true, true);
        Traces();
        world.files.Plan({});
    }

    void LetSomebodyElseSave(bool saving) { world.files.SetFolderLocked(kFolder, saving); }

    void ExpectUntouched(std::string_view status) {
        EXPECT_THAT(world.files.Operations().Lines(),
                    Each(AnyOf(StartsWith("Exists "), StartsWith("Open"), StartsWith("Read "))))
            << "only looks";
        EXPECT_EQ(File(), before);
        EXPECT_EQ(Status(), status);
        ExpectMarks(true, true);
        EXPECT_THAT(Traces(), ::testing::Not(::testing::Contains("mRules Write_Rules_File Start")));
    }
    void ExpectSaved() {
        EXPECT_EQ(File(), Text({Loaded("B"), Loaded("A")}));
        EXPECT_EQ(Status(), "Saved");
    }

    std::string before;
};

TEST_F(RefusedRulesSave, ByTheButtonWhileSomebodyElseSavesChangesNothing) {
    LetSomebodyElseSave(true);
    page().cmdSaveRules.Click();
    ExpectUntouched(SaveTurn::kRefusal);
    LetSomebodyElseSave(false);
    page().cmdSaveRules.Click();
    ExpectSaved();
    ExpectMarks(false, true);
}

TEST_F(RefusedRulesSave, ByTheMenuWhileSomebodyElseSavesChangesNothing) {
    LetSomebodyElseSave(true);
    ChooseSave();
    ExpectUntouched(SaveTurn::kRefusal);
    LetSomebodyElseSave(false);
    ChooseSave();
    ExpectSaved();
    ExpectMarks(false, true);
}

TEST_F(RefusedRulesSave, AtClosingWhileSomebodyElseSavesKeepsTheWindowOpen) {
    LetSomebodyElseSave(true);
    ExpectWishToSave(Answer::Yes);
    ChooseExit();
    EXPECT_EQ(unloaded, 0);
    EXPECT_TRUE(form().Visible());
    ExpectUntouched(SaveTurn::kRefusal);
    LetSomebodyElseSave(false);
    ExpectWishToSave(Answer::Yes);
    ChooseExit();
    EXPECT_EQ(unloaded, 1);
    ExpectSaved();
}

TEST_F(RefusedRulesSave, WhereNamesDifferByCaseAloneChangesNothing) {
    for (const auto& [path, name] : {std::pair{kRulesFile, "ZYRules.sys"}, {kTemporary, "Rules.tmp"}}) {
        const auto refusal = "Not saved, it is not certain which file " + std::string(name) +
                             " is: names that differ by case alone stand side by side";
        world.files.SetUncertain(path, FileError::Ambiguous);
        page().cmdSaveRules.Click();
        ExpectUntouched(refusal);
        ChooseSave();
        ExpectUntouched(refusal);
        ExpectWishToSave(Answer::Yes);
        ChooseExit();
        EXPECT_EQ(unloaded, 0);
        ExpectUntouched(refusal);
        world.files.SetUncertain(path, FileError::None);
    }
    page().cmdSaveRules.Click();
    ExpectSaved();
}

TEST_F(RefusedRulesSave, IsNoneForTheProgramThatHoldsTheFolderFromItsFirstStepToItsLast) {
    std::vector<std::string> outside;
    world.files.Operations().recorded = [&](const std::string& line) {
        if (world.files.LockedFolders().empty()) {
            outside.push_back(line);
        }
    };
    ChooseSave();
    ExpectSaved();
    EXPECT_GT(world.files.Operations().Count(), 7U);
    EXPECT_THAT(outside, IsEmpty());
    EXPECT_THAT(world.files.LockedFolders(), IsEmpty()) << "given back after the last step";
}

} // namespace
} // namespace zy::test
