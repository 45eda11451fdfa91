#include "platform/memory/ScriptedDialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <sstream>

#include "support/WorldTest.h"

namespace zy::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(ScriptedDialogsTest, PassWhenTheBoxesComeAsExpected) {
    ScriptedDialogs dialogs;
    dialogs.ExpectMessage("text", "title");
    dialogs.ExpectYesNo("question", "title", Answer::Yes);
    dialogs.ShowMessage("text", "title");
    EXPECT_TRUE(dialogs.AskYesNo("question", "title", Escape::AnswersNo));
    EXPECT_THAT(dialogs.Failures(), IsEmpty());
}

TEST(ScriptedDialogsTest, GiveTheAnswersOfTheScript) {
    ScriptedDialogs dialogs;
    dialogs.ExpectYesNo("q", "t", Answer::No);
    dialogs.ExpectYesNo("q", "t", Answer::Yes);
    EXPECT_FALSE(dialogs.AskYesNo("q", "t", Escape::AnswersNo));
    EXPECT_TRUE(dialogs.AskYesNo("q", "t", Escape::AnswersNo));
}

TEST(ScriptedDialogsTest, RecordWhatEscapeDoes) {
    ScriptedDialogs dialogs;
    dialogs.ExpectMessage("m", "t");
    dialogs.ExpectYesNo("q", "t", Answer::No);
    dialogs.ShowMessage("m", "t");
    dialogs.AskYesNo("q", "t", Escape::IsIgnored);
    EXPECT_THAT(dialogs.Shown(),
                ElementsAre(ShownBox{.text = "m", .title = "t", .escape = std::nullopt},
                            ShownBox{.text = "q", .title = "t", .escape = Escape::IsIgnored}));
}

TEST(ScriptedDialogsTest, FailOnABoxThatWasNotExpected) {
    ScriptedDialogs dialogs;
    dialogs.ShowMessage("text", "title");
    EXPECT_THAT(dialogs.Failures(),
                ElementsAre("unexpected message box \"text\" titled \"title\"; expected was no box"));
}

TEST(ScriptedDialogsTest, AnswerAQuestionThatWasNotExpectedByNo) {
    ScriptedDialogs dialogs;
    EXPECT_FALSE(dialogs.AskYesNo("q", "t", Escape::AnswersNo));
    EXPECT_THAT(
        dialogs.Failures(),
        ElementsAre("unexpected Yes/No box (Escape answers No) \"q\" titled \"t\"; expected was no box"));
}

TEST(ScriptedDialogsTest, FailOnABoxThatDoesNotCome) {
    ScriptedDialogs dialogs;
    dialogs.ExpectYesNo("q", "t", Answer::Yes, Escape::IsIgnored);
    EXPECT_THAT(dialogs.Failures(),
                ElementsAre("never shown: Yes/No box (Escape is ignored) \"q\" titled \"t\""));
}

TEST(ScriptedDialogsTest, FailOnADifferentTextTitleOrKindAndStillWaitForTheRightOne) {
    ScriptedDialogs dialogs;
    dialogs.ExpectMessage("text", "title");
    dialogs.ShowMessage("Text", "title");
    dialogs.ShowMessage("text", "Title");
    dialogs.AskYesNo("text", "title", Escape::AnswersNo);
    dialogs.ShowMessage("text", "title");
    EXPECT_THAT(dialogs.Failures(),
                ElementsAre(AllOf(HasSubstr("\"Text\""), HasSubstr("expected was message box \"text\"")),
                            HasSubstr("\"Title\""), HasSubstr("Yes/No box")));
}

TEST(ScriptedDialogsTest, FailOnBoxesInAnotherOrder) {
    ScriptedDialogs dialogs;
    dialogs.ExpectMessage("first", "t");
    dialogs.ExpectMessage("second", "t");
    dialogs.ShowMessage("second", "t");
    dialogs.ShowMessage("first", "t");
    EXPECT_THAT(dialogs.Failures(), ElementsAre(HasSubstr("unexpected message box \"second\""),
                                                HasSubstr("never shown: message box \"second\"")));
}

TEST(ScriptedDialogsTest, FailOnAnotherMeaningOfEscapeThanTheOneAskedFor) {
    ScriptedDialogs dialogs;
    dialogs.ExpectYesNo("q", "t", Answer::Yes, Escape::IsIgnored);
    EXPECT_FALSE(dialogs.AskYesNo("q", "t", Escape::AnswersNo));
    EXPECT_THAT(dialogs.Failures(), ElementsAre(HasSubstr("unexpected"), HasSubstr("never shown")));
}

TEST(ScriptedDialogsTest, ForgetFailuresThatWereAskedFor) {
    ScriptedDialogs dialogs;
    dialogs.ExpectMessage("never", "t");
    dialogs.ShowMessage("unexpected", "t");
    EXPECT_EQ(dialogs.Failures().size(), 2U);
    EXPECT_THAT(dialogs.Failures(), IsEmpty());
}

/// A dialog, as far as platform knows one.
Form& AnyForm() {
    static int standIn = 0;
    return reinterpret_cast<Form&>(standIn); // handed on, never looked at
}

TEST(ScriptedDialogsTest, LetThePersonOfTheScriptUseADialog) {
    ScriptedDialogs dialogs;
    const Form* used = nullptr;
    dialogs.ExpectForm([&](Form& form) {
        used = &form;
        dialogs.ShowMessage("inside", "title");
    });
    dialogs.ExpectMessage("inside", "title");
    dialogs.ShowForm(AnyForm());
    EXPECT_EQ(used, &AnyForm());
    EXPECT_THAT(dialogs.Failures(), IsEmpty());
}

TEST(ScriptedDialogsTest, TellOfADialogThatWasNotExpectedAndOfOneThatDidNotCome) {
    ScriptedDialogs dialogs;
    dialogs.ShowForm(AnyForm());
    EXPECT_THAT(dialogs.Failures(), ElementsAre(HasSubstr("unexpected")));
    dialogs.ExpectForm([](Form&) {});
    EXPECT_THAT(dialogs.Failures(), ElementsAre(HasSubstr("never shown")));
}

TEST(ScriptedDialogsTest, ShowABoxInAFailedTest) {
    std::ostringstream out;
    out << ShownBox{.text = "q", .title = "t", .escape = Escape::IsIgnored};
    EXPECT_EQ(out.str(), "Yes/No box (Escape is ignored) \"q\" titled \"t\"");
}

TEST(ScriptedDialogsDeathTest, EndTheProcessOverFailuresThatNobodyAskedFor) {
    EXPECT_DEATH(
        {
            ScriptedDialogs dialogs;
            dialogs.ShowMessage("surprise", "title");
        },
        "unexpected message box \"surprise\"");
    EXPECT_DEATH(
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage("waited for", "title");
        },
        "never shown: message box \"waited for\"");
}

TEST(WorldTestFixture, FailsATestWhoseBoxesDidNotComeAsExpected) {
    static ScriptedDialogs dialogs;
    dialogs.ExpectMessage("waited for", "title");
    EXPECT_NONFATAL_FAILURE(ExpectScriptPlayed(dialogs), "waited for");
}

using WorldTestInUse = WorldTest;

TEST_F(WorldTestInUse, PassesATestWhoseBoxesCameAsExpected) {
    world.dialogs.ExpectMessage("text", "title");
    world.Get().dialogs.ShowMessage("text", "title");
    EXPECT_THAT(world.dialogs.Shown(), ::testing::SizeIs(1));
}

} // namespace
} // namespace zy::test
