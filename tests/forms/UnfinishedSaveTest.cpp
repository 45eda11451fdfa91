#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::IsEmpty;

constexpr auto kOnlyCopy = ", saving deletes it: close and rename it to ZYRules.sys";
constexpr auto kBesideTheFile = ", saving deletes it: copy it away if you need it";

/// What a save leaves behind that was cut off between two of its steps, by a crash or a power failure.
class UnfinishedSave : public RulesForm {
  protected:
    void Leave(std::string_view bytes) { world.files.Put(kTemporary, bytes); }
    void StartWithoutAFile() { ASSERT_EQ(Start("@RULES"), StartUp::WindowShown); }
    std::optional<std::string> Temporary() const { return world.files.Get(kTemporary); }
};

TEST_F(UnfinishedSave, IsToldWithWhatToDoWhereItHoldsTheOnlyCopy) {
    Leave(Text({RuleOf("A"), RuleOf("B")}));
    StartWithoutAFile();
    EXPECT_EQ(Status(), std::string("0 rules; Rules.tmp holds 2 rules") + kOnlyCopy);
    EXPECT_EQ(Temporary(), Text({RuleOf("A"), RuleOf("B")}));
}

TEST_F(UnfinishedSave, IsMadeGoodByWhatIsAdvised) {
    Leave(Text({RuleOf("A"), RuleOf("B")}));
    StartWithoutAFile();
    ChooseExit();
    world.files.Put(kRulesFile, *world.files.Take(kTemporary));
    StartWithoutAFile();
    EXPECT_EQ(Status(), "2 rules");
}

TEST_F(UnfinishedSave, IsToldBesideTheFileThatItDidNotReplace) {
    Leave(Text({RuleOf("A")}));
    StartWithCodes({"A", "B"});
    EXPECT_EQ(Status(), std::string("2 rules; Rules.tmp holds 1 rule") + kBesideTheFile);
}

TEST_F(UnfinishedSave, ThatWasCutWithinARuleIsNotSaidToBeWhole) {
    const auto text = Text({RuleOf("A"), RuleOf("B")});
    for (const auto cut : {text.size() - 1, text.size() - 40, Text({RuleOf("A")}).size() + 8}) {
        Leave(text.substr(0, cut));
        StartWithoutAFile();
        EXPECT_EQ(Status(), std::string("0 rules; Rules.tmp holds 2 rules, perhaps not "
                                        "whole") +
                                kOnlyCopy)
            << cut;
    }
}

TEST_F(UnfinishedSave, WithMoreRulesThanAListCanHoldIsToldAllTheSame) {
    std::string text;
    for (int i = 0; i <= kMaxItems; ++i) {
        text += "[RULE]\r\n";
    }
    Leave(text);
    StartWithoutAFile();
    EXPECT_EQ(Status(), std::string("0 rules; Rules.tmp holds 32768 rules, perhaps not "
                                    "whole") +
                            kOnlyCopy);
}

TEST_F(UnfinishedSave, ThatHoldsNothingIsToldWithoutAdvice) {
    for (const char* bytes : {"", "[RU", "no rules"}) {
        Leave(bytes);
        StartWithoutAFile();
        EXPECT_EQ(Status(), "0 rules; Rules.tmp holds no rules") << bytes;
    }
}

TEST_F(UnfinishedSave, ThatCannotBeReadIsToldWithTheReason) {
    Leave(Text({RuleOf("A")}));
    world.files.SetUnreadable(kTemporary);
    StartWithoutAFile();
    EXPECT_EQ(Status(), "0 rules; Rules.tmp could not be read: access is denied; saving deletes it");
}

TEST_F(UnfinishedSave, IsToldUntilASaveHasDeletedIt) {
    Leave(Text({RuleOf("A")}));
    StartWithoutAFile();
    const std::string told = std::string("; Rules.tmp holds 1 rule") + kOnlyCopy;
    page().cmdAddList.Click();
    EXPECT_EQ(Status(), "1 rule" + told);
    page().txtMax.Enter("3");
    EXPECT_EQ(Status(), "1 rule" + told + "   -   NEW edited; File > Save stores it");
    ChooseSave();
    EXPECT_EQ(Status(), "Saved");
    EXPECT_EQ(Temporary(), std::nullopt);
    page().txtMax.Enter("4");
    EXPECT_EQ(Status(), "1 rule   -   NEW edited; File > Save stores it");
}

TEST_F(UnfinishedSave, StaysToldWhenASaveFailsThatCouldNotDeleteIt) {
    Leave(Text({RuleOf("A")}));
    StartWithoutAFile();
    page().cmdAddList.Click();
    world.files.SetHeldOpen(kTemporary);
    ChooseSave();
    EXPECT_EQ(Temporary(), Text({RuleOf("A")}));
    page().txtMax.Enter("3");
    EXPECT_THAT(Status(), ::testing::StartsWith("1 rule; Rules.tmp holds 1 rule"));
}

TEST_F(UnfinishedSave, IsNotToldAnyMoreWhenASaveFailedThatHadDeletedIt) {
    constexpr std::size_t kLooks =
        3; // for a rules file that somebody else may have written, and what to keep
    for (const std::size_t operation : {kLooks + 3, kLooks + 4}) { // the creation, the write
        Leave(Text({RuleOf("A")}));
        StartWithoutAFile();
        page().cmdAddList.Click();
        world.files.Plan({.operation = operation});
        ChooseSave();
        EXPECT_THAT(Status(), ::testing::StartsWith("Not saved"));
        EXPECT_EQ(Temporary(), std::nullopt);
        page().txtMax.Enter("3");
        EXPECT_EQ(Status(), "1 rule; the last save failed, change a rule and save again before closing   -   "
                            "NEW edited; File > Save stores it");
    }
}

TEST_F(UnfinishedSave, IsNotToldOfOneThatSomebodyElseIsJustMaking) {
    Leave(Text({RuleOf("A")}));
    world.files.SetFolderLocked(R"(C:\SYS)");
    StartWithoutAFile();
    EXPECT_EQ(Status(), "0 rules");
}

TEST_F(UnfinishedSave, IsLookedForInTheTurnToSaveAndNothingElseIsDone) {
    Leave(Text({RuleOf("A")}));
    const auto names = world.files.Names(R"(C:\SYS)");
    std::vector<std::string> outside;
    world.files.Operations().recorded = [&](const std::string& line) {
        if (line.find("ules") != std::string::npos && world.files.LockedFolders().empty()) {
            outside.push_back(line);
        }
    };
    StartWithoutAFile();
    EXPECT_THAT(outside, IsEmpty());
    EXPECT_THAT(world.files.LockedFolders(), IsEmpty());
    EXPECT_EQ(world.files.Names(R"(C:\SYS)"), names);
}

TEST_F(UnfinishedSave, IsNotAllThatIsToldAtTheStart) {
    for (const auto& [path, name] : {std::pair{kRulesFile, "ZYRules.sys"}, {kTemporary, "Rules.tmp"}}) {
        world.files.SetUncertain(path, FileError::Ambiguous);
        StartWithCodes({"A"});
        const auto told = "; saving is refused, it is not certain which file " + std::string(name) +
                          " is: names that differ by case alone stand side by side";
        EXPECT_EQ(Status(), "1 rule" + told);
        page().cmdAddList.Click();
        EXPECT_EQ(Status(), "2 rules" + told);
        world.files.SetUncertain(path, FileError::None);
    }
}

} // namespace
} // namespace zy::test
