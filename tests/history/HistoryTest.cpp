#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Recorded.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HistoryTest : public ::testing::Test {
  protected:
    HistoryTest() { list.rows = {{"a", "A"}, {"b", "B"}, {"c", "C"}}; }

    std::string UndoName() const {
        const Step* step = list.history.ToUndo();
        return step == nullptr ? "none" : step->name;
    }
    std::string RedoName() const {
        const Step* step = list.history.ToRedo();
        return step == nullptr ? "none" : step->name;
    }
    /// Types a text into a cell where one works already, as one goes on typing.
    void Type(int row, std::string_view text) {
        list.here = {row, 0};
        list.Do(
            "Type", [&] { list.Set(row, 0, text); }, "type");
    }

    Recorded list;
};

TEST_F(HistoryTest, ATextThatWasChangedComesBackAndIsChangedAgain) {
    list.Set(1, 1, "x");
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    list.Redo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|x", "c|C"));
}

TEST_F(HistoryTest, ARowThatWasRemovedComesBackWhereItWas) {
    list.Remove(0);
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    list.Redo();
    EXPECT_THAT(list.Lines(), ElementsAre("b|B", "c|C"));
}

TEST_F(HistoryTest, ADeedIsOneStepWhateverItChanges) {
    list.Do("Paste", [&] {
        list.Insert(3, "d");
        list.Set(0, 0, "w");
        list.Set(2, 0, "y");
        list.Set(1, 0, "x");
        list.Set(3, 0, "z");
        list.Remove(1);
    });
    EXPECT_THAT(list.Lines(), ElementsAre("w|A", "y|C", "z|"));
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_EQ(UndoName(), "none");
    EXPECT_EQ(RedoName(), "Paste");
    list.Redo();
    EXPECT_THAT(list.Lines(), ElementsAre("w|A", "y|C", "z|"));
}

TEST_F(HistoryTest, ADeedInsideAnotherIsPartOfIt) {
    list.Do("Outer", [&] { list.Do("Inner", [&] { list.Set(0, 0, "x"); }); });
    EXPECT_EQ(UndoName(), "Outer");
    list.Undo();
    EXPECT_EQ(UndoName(), "none");
}

TEST_F(HistoryTest, WhatComesToNothingIsNoStep) {
    list.Do("Nothing", [] {});
    list.Set(0, 0, "a");
    list.Do("There and back", [&] {
        list.Swap(0);
        list.Swap(0);
    });
    EXPECT_EQ(UndoName(), "none");
}

TEST_F(HistoryTest, ANewStepDropsThoseThatWereTakenBack) {
    list.Do("One", [&] { list.Set(0, 0, "x"); });
    list.Do("Two", [&] { list.Set(1, 0, "y"); });
    list.Undo();
    list.Do("Three", [&] { list.Set(2, 0, "z"); });
    EXPECT_EQ(RedoName(), "none");
    list.Undo();
    EXPECT_EQ(UndoName(), "One");
}

TEST_F(HistoryTest, WhatWasDoneWhileNobodyRecordsIsNoStep) {
    list.recorder.Stop();
    list.Set(0, 0, "x");
    EXPECT_EQ(UndoName(), "none");
    list.recorder.Start();
    list.Set(0, 0, "y");
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("x|A", "b|B", "c|C"));
}

TEST_F(HistoryTest, StepsKnowWhereTheyWereDone) {
    list.here = {1, 1};
    list.Do("Move", [&] {
        list.Swap(1);
        list.here = {2, 1};
    });
    list.here = {0, 0};
    EXPECT_EQ(list.history.Undo(list), (StepPlace{1, 1}));
    EXPECT_EQ(list.history.Redo(list), (StepPlace{2, 1}));
}

// Steps that go on.

TEST_F(HistoryTest, TypingInOnePlaceIsOneStep) {
    Type(0, "x");
    Type(0, "xy");
    Type(0, "xyz");
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_EQ(UndoName(), "none");
    list.Redo();
    EXPECT_EQ(list.rows[0][0], "xyz");
}

TEST_F(HistoryTest, TypingInAnotherPlaceIsAnotherStep) {
    Type(0, "x");
    Type(1, "y");
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("x|A", "b|B", "c|C"));
}

TEST_F(HistoryTest, ASealedStepDoesNotGoOn) {
    Type(0, "x");
    list.history.Seal();
    Type(0, "xy");
    list.Undo();
    EXPECT_EQ(list.rows[0][0], "x");
}

TEST_F(HistoryTest, AStepThatWasDoneAgainDoesNotGoOn) {
    Type(0, "x");
    list.Undo();
    list.Redo();
    Type(0, "xy");
    list.Undo();
    EXPECT_EQ(list.rows[0][0], "x");
}

TEST_F(HistoryTest, AfterAStepThatWasTakenBackTheOneBeforeDoesNotGoOn) {
    Type(0, "x");
    list.history.Seal();
    Type(0, "xy");
    list.Undo();
    Type(0, "xz");
    list.Undo();
    EXPECT_EQ(list.rows[0][0], "x");
}

TEST_F(HistoryTest, TypingThatComesBackToWhatItWasIsNoStep) {
    Type(0, "x");
    Type(0, "a");
    EXPECT_EQ(UndoName(), "none");
    Type(0, "y");
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
}

TEST_F(HistoryTest, ARunOfMovesIsOneStepOfTheRowsThatItPassed) {
    list.here = {0, 0};
    for (int row = 0; row < 2; ++row) {
        list.Do(
            "Move",
            [&] {
                list.Swap(row);
                list.here = {row + 1, 0};
            },
            "move");
    }
    EXPECT_EQ(list.history.ToUndo()->changes.size(), 1U);
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_EQ(list.here, (StepPlace{0, 0}));
    list.Redo();
    EXPECT_THAT(list.Lines(), ElementsAre("b|B", "c|C", "a|A"));
}

TEST_F(HistoryTest, WhatBelongsToTheLastStepLeavesWhatCanBeDoneAgain) {
    list.Do("One", [&] { list.Set(0, 0, "x"); });
    list.Do("Two", [&] { list.Set(1, 0, "y"); });
    list.Undo();
    Step store{.name = "Store", .key = {}, .before = {}, .after = {}, .changes = {}};
    RowTexts before(2);
    RowTexts after(2);
    for (const auto* text : {"c", "C"}) {
        before.Add(text);
    }
    for (const auto* text : {"z", "C"}) {
        after.Add(text);
    }
    store.changes.push_back({2, before, after});
    list.ReplaceRows(2, 1, after);
    list.history.RecordWithLast(store);
    EXPECT_EQ(UndoName(), "One");
    EXPECT_EQ(RedoName(), "Two");
    list.Redo();
    EXPECT_THAT(list.Lines(), ElementsAre("x|A", "y|B", "z|C"));
    list.Undo();
    list.Undo();
    EXPECT_THAT(list.Lines(), ElementsAre("a|A", "b|B", "c|C"));
}

// What is saved.

TEST_F(HistoryTest, TheListIsSavedWhereItWasSavedAndNowhereElse) {
    EXPECT_TRUE(list.history.IsSaved());
    list.Set(0, 0, "x");
    EXPECT_FALSE(list.history.IsSaved());
    list.history.MarkSaved();
    list.Undo();
    EXPECT_FALSE(list.history.IsSaved());
    list.Redo();
    EXPECT_TRUE(list.history.IsSaved());
}

TEST_F(HistoryTest, WhatWasSavedIsOutOfReachOnceItsStepsAreGone) {
    list.Set(0, 0, "x");
    list.history.MarkSaved();
    list.Undo();
    list.Set(0, 0, "y");
    EXPECT_FALSE(list.history.IsSaved());
    list.Undo();
    EXPECT_FALSE(list.history.IsSaved());
}

TEST_F(HistoryTest, ASaveEndsAStepThatWouldGoOn) {
    Type(0, "x");
    list.history.MarkSaved();
    Type(0, "xy");
    list.Undo();
    EXPECT_EQ(list.rows[0][0], "x");
    EXPECT_TRUE(list.history.IsSaved());
}

TEST_F(HistoryTest, AfterASaveThatFailedNothingCountsAsSaved) {
    list.Set(0, 0, "x");
    list.history.ForgetSaved();
    EXPECT_FALSE(list.history.IsSaved());
    list.Undo();
    EXPECT_FALSE(list.history.IsSaved());
}

// What it holds.

TEST(HistoryMemory, TheOldestStepsGoFirst) {
    constexpr std::size_t kMost = 20000;
    Recorded list(kMost);
    list.rows = {{"a", ""}};
    for (int i = 0; i < 1000; ++i) {
        list.Set(0, 0, std::to_string(i));
        ASSERT_LE(list.history.Bytes(), kMost);
    }
    int steps = 0;
    for (; list.history.ToUndo() != nullptr; ++steps) {
        list.Undo();
    }
    EXPECT_GT(steps, 10);
    EXPECT_EQ(list.rows[0][0], std::to_string(999 - steps));
    EXPECT_FALSE(list.history.IsSaved()) << "the way back to what is saved is gone";
}

TEST(HistoryMemory, AStepThatIsTooLargeCannotBeTakenBack) {
    Recorded list(5000);
    list.rows = {{"a", ""}};
    list.Set(0, 0, std::string(6000, 'x'));
    EXPECT_EQ(list.history.ToUndo(), nullptr);
    EXPECT_EQ(list.history.Bytes(), 0U);
    EXPECT_FALSE(list.history.IsSaved());
}

TEST(HistoryMemory, AStepCostsWhatItChangesAndNotWhatTheListHolds) {
    Recorded list;
    list.rows.assign(30000, {"text", "text"});
    list.Set(15000, 0, "x");
    EXPECT_LT(list.history.Bytes(), 1000U);
}

TEST(HistoryMemory, ClearingGivesItAllBack) {
    Recorded list;
    list.rows = {{"a", ""}};
    list.Set(0, 0, "x");
    list.history.Clear();
    EXPECT_EQ(list.history.Bytes(), 0U);
    EXPECT_EQ(list.history.ToUndo(), nullptr);
    EXPECT_TRUE(list.history.IsSaved());
}

} // namespace
} // namespace zy::test
