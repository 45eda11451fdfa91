#include "history/StepNotes.h"

#include <gmock/gmock.h>

#include <random>

#include "Recorded.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A list whose history is noted down, in bytes, and another one that the notes are done again to.
class Noted {
  public:
    Noted() {
        list.rows = {{"a", "A"}, {"b", "B"}, {"c", "C"}};
        list.history.SetLog(&log_);
        StartAnew();
    }
    void StartAnew() {
        log_.StartAnew();
        notes.clear();
        start_ = list.rows;
    }
    /// Does the notes again to the list that they begin with.
    Recorded Replayed() const {
        Recorded other;
        other.rows = start_;
        for (const auto& bytes : notes) {
            const auto note = StepNote::Of(bytes);
            EXPECT_TRUE(note && note->Replay(other, other.history));
        }
        return other;
    }
    void ExpectSameReplayed() const { EXPECT_EQ(Replayed().rows, list.rows); }
    std::string UndoName() const {
        const auto other = Replayed();
        const Step* step = other.history.ToUndo();
        return step == nullptr ? "" : step->name;
    }

    Recorded list;
    std::vector<std::string> notes;

  private:
    StepNotes log_{[this](const StepNote& note) { notes.push_back(note.Bytes()); }};
    std::vector<Recorded::Row> start_;
};

TEST(StepNotes, AStepIsDoneAgainWithNameAndPlaces) {
    Noted noted;
    noted.list.here = {1, 1};
    noted.list.Do("Edit B", [&] { noted.list.Set(1, 1, "new"); });
    const auto other = noted.Replayed();
    EXPECT_THAT(other.Lines(), ElementsAre("a|A", "b|new", "c|C"));
    ASSERT_NE(other.history.ToUndo(), nullptr);
    EXPECT_EQ(other.history.ToUndo()->name, "Edit B");
    EXPECT_EQ(other.history.ToUndo()->before, (StepPlace{1, 1}));
    EXPECT_EQ(other.history.ToUndo()->changes.front().before.Text(0, 1), "B");
}

TEST(StepNotes, WhatBecameOneStepIsOneStepAgain) {
    Noted noted;
    for (const auto* text : {"n", "ne", "new"}) {
        noted.list.Do(
            "Edit", [&] { noted.list.Set(0, 0, text); }, "key");
    }
    EXPECT_THAT(noted.notes, SizeIs(3));
    auto other = noted.Replayed();
    EXPECT_EQ(other.rows, noted.list.rows);
    other.Undo();
    EXPECT_THAT(other.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    EXPECT_EQ(other.history.ToUndo(), nullptr);
}

TEST(StepNotes, AStepThatCameToNothingIsNone) {
    Noted noted;
    noted.list.Do(
        "Edit", [&] { noted.list.Set(0, 0, "new"); }, "key");
    noted.list.Do(
        "Edit", [&] { noted.list.Set(0, 0, "a"); }, "key");
    EXPECT_EQ(noted.Replayed().history.ToUndo(), nullptr);
    noted.list.Do("Other", [&] { noted.list.Remove(0); });
    noted.list.Undo();
    noted.ExpectSameReplayed();
}

TEST(StepNotes, WhatWasTakenBackCanBeDoneAgainThereToo) {
    Noted noted;
    noted.list.Do("Delete a", [&] { noted.list.Remove(0); });
    noted.list.Undo();
    auto other = noted.Replayed();
    EXPECT_THAT(other.Lines(), ElementsAre("a|A", "b|B", "c|C"));
    ASSERT_NE(other.history.ToRedo(), nullptr);
    EXPECT_EQ(other.history.ToRedo()->name, "Delete a");
    noted.list.Redo();
    noted.ExpectSameReplayed();
}

TEST(StepNotes, AStepFromBeforeTheNotesThatIsTakenBackIsAStepOfItsOwn) {
    Noted noted;
    noted.list.Do("Delete a", [&] { noted.list.Remove(0); });
    noted.list.Do("Delete b", [&] { noted.list.Remove(0); });
    noted.StartAnew();
    noted.list.Undo();
    noted.list.Undo();
    EXPECT_EQ(noted.UndoName(), "Undo Delete a");
    noted.ExpectSameReplayed();
    noted.list.Redo();
    EXPECT_EQ(noted.UndoName(), "Delete a");
    noted.ExpectSameReplayed();
}

TEST(StepNotes, AStepFromBeforeTheNotesThatIsDoneAgainIsAStepOfItsOwn) {
    Noted noted;
    noted.list.Do("Delete a", [&] { noted.list.Remove(0); });
    noted.list.Undo();
    noted.StartAnew();
    noted.list.Redo();
    EXPECT_EQ(noted.UndoName(), "Delete a");
    noted.ExpectSameReplayed();
    noted.list.Undo();
    EXPECT_EQ(noted.UndoName(), "");
    noted.ExpectSameReplayed();
}

TEST(StepNotes, WhatIsDoneAsPartOfAStepFromBeforeTheNotesIsAStepOfItsOwn) {
    Noted noted;
    noted.list.Do(
        "Edit", [&] { noted.list.Set(0, 0, "n"); }, "key");
    noted.StartAnew();
    noted.list.Do(
        "Edit", [&] { noted.list.Set(0, 0, "new"); }, "key");
    EXPECT_EQ(noted.UndoName(), "Edit");
    noted.ExpectSameReplayed();
    noted.list.Undo();
    noted.ExpectSameReplayed();
}

TEST(StepNotes, WhatIsAddedToTheLastStepLeavesWhatCanBeDoneAgain) {
    Noted noted;
    noted.list.Do("First", [&] { noted.list.Set(0, 0, "new"); });
    noted.list.Do("Second", [&] { noted.list.Remove(2); });
    noted.list.Undo();
    Step part;
    part.changes.push_back({1, RowTexts(2), RowTexts(2)});
    part.changes[0].before.Add("b");
    part.changes[0].before.Add("B");
    part.changes[0].after.Add("b");
    part.changes[0].after.Add("stored");
    part.Redo(noted.list);
    noted.list.history.RecordWithLast(part);
    noted.ExpectSameReplayed();
    EXPECT_NE(noted.Replayed().history.ToRedo(), nullptr);
}

TEST(StepNotes, AWholeListTakesThePlaceOfWhateverTheOtherOneHolds) {
    Noted noted;
    const auto note = StepNote::Of(StepNote::OfList(noted.list, 1).Bytes());
    ASSERT_TRUE(note);
    Recorded other;
    other.rows = {{"x", "X"}, {"y", "Y"}};
    EXPECT_TRUE(note->Replay(other, other.history));
    EXPECT_THAT(other.Lines(), ElementsAre("x|X", "b|B", "c|C"));
    other.Undo();
    EXPECT_THAT(other.Lines(), ElementsAre("x|X", "y|Y"));
    Recorded empty;
    EXPECT_FALSE(note->Replay(empty, empty.history));
}

TEST(StepNotes, APlaceBesideTheListIsKept) {
    Noted noted;
    noted.list.here = {-1, -1};
    noted.list.Do("Edit", [&] { noted.list.Set(0, 0, "new"); });
    EXPECT_EQ(noted.Replayed().history.ToUndo()->before, (StepPlace{-1, -1}));
}

TEST(StepNotes, ANoteOfAListWithFewerRowsIsNotDone) {
    Noted noted;
    noted.list.Do("Edit", [&] { noted.list.Set(2, 0, "new"); });
    Recorded shorter;
    shorter.rows = {{"a", "A"}, {"b", "B"}};
    EXPECT_FALSE(StepNote::Of(noted.notes[0])->Replay(shorter, shorter.history));
    EXPECT_THAT(shorter.Lines(), ElementsAre("a|A", "b|B"));
    EXPECT_EQ(shorter.history.ToUndo(), nullptr);
}

TEST(StepNotes, AChangeOfOtherColumnsIsNotDoneEvenWithoutRows) {
    for (const int columns : {0, 1, 3}) {
        Noted noted;
        noted.list.Do("Edit", [&] { noted.list.Set(1, 0, "new"); });
        Step none{.name = "Edit", .key = {}, .before = {}, .after = {}, .changes = {}};
        none.changes.push_back({1, RowTexts(columns), RowTexts(columns)});
        for (const auto kind : {StepNote::Kind::Push, StepNote::Kind::Join, StepNote::Kind::Append}) {
            const auto note = StepNote::Of(StepNote{kind, none}.Bytes());
            ASSERT_TRUE(note);
            auto other = noted.Replayed();
            EXPECT_FALSE(note->Replay(other, other.history)) << columns;
            EXPECT_THAT(other.Lines(), ElementsAre("a|A", "new|B", "c|C"));
        }
    }
}

TEST(StepNotes, ANoteThatHasNoStepToGoWithIsNotDone) {
    Recorded list;
    for (const auto kind :
         {StepNote::Kind::Undo, StepNote::Kind::Redo, StepNote::Kind::Join, StepNote::Kind::Append}) {
        EXPECT_FALSE((StepNote{kind, {}}).Replay(list, list.history));
    }
}

TEST(StepNotes, BytesThatAreCutOrTooManyAreNoNote) {
    Noted noted;
    noted.list.Do("Edit", [&] { noted.list.Set(2, 0, "new"); });
    const auto& bytes = noted.notes[0];
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(StepNote::Of(std::string_view(bytes).substr(0, size))) << size;
    }
    EXPECT_FALSE(StepNote::Of(bytes + '\0'));
    EXPECT_FALSE(StepNote::Of("\x06"));
}

TEST(StepNotes, AListThatIsNotOneChangeIsNoNote) {
    StepNote list{StepNote::Kind::List, {}};
    EXPECT_FALSE(StepNote::Of(list.Bytes()));
    list.step.changes.resize(1);
    EXPECT_TRUE(StepNote::Of(list.Bytes()));
    list.step.changes.resize(2);
    EXPECT_FALSE(StepNote::Of(list.Bytes()));
}

TEST(StepNotes, AnyByteChangedIsNoNoteOrOneThatDoesNoHarm) {
    Noted noted;
    noted.list.Do("Edit", [&] { noted.list.Set(2, 0, "new"); });
    for (std::size_t at = 0; at < noted.notes[0].size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            auto bytes = noted.notes[0];
            bytes[at] = static_cast<char>(value);
            if (const auto note = StepNote::Of(bytes)) {
                Recorded list;
                list.rows = {{"a", "A"}, {"b", "B"}, {"c", "C"}};
                note->Replay(list, list.history);
                EXPECT_LE(list.rows.size(), 4U);
            }
        }
    }
}

/// Somebody who does whatever comes to his mind, and saves from time to time.
void DoSomething(Noted& noted, std::mt19937& random) {
    auto& list = noted.list;
    const auto below = [&](int end) { return std::uniform_int_distribution<>(0, end - 1)(random); };
    switch (below(10)) {
    case 0:
    case 1:
    case 2:
        if (list.history.ToUndo() != nullptr) {
            list.Undo();
        }
        break;
    case 3:
    case 4:
        if (list.history.ToRedo() != nullptr) {
            list.Redo();
        }
        break;
    case 5:
        if (below(4) == 0) {
            list.history.MarkSaved();
            noted.StartAnew();
        }
        break;
    case 6:
        if (list.Rows() > 1) {
            list.Do("Delete", [&] { list.Remove(below(list.Rows())); });
        }
        break;
    case 7:
        list.Do("Add", [&] { list.Insert(below(list.Rows() + 1), std::to_string(below(100))); });
        break;
    default:
        list.Do(
            "Edit", [&] { list.Set(below(list.Rows()), below(2), std::to_string(below(3))); }, "key");
    }
}

TEST(StepNotes, WhateverWasDoneIsDoneAgain) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937 random(seed);
        Noted noted;
        for (int i = 0; i < 60; ++i) {
            DoSomething(noted, random);
            auto other = noted.Replayed();
            ASSERT_EQ(other.rows, noted.list.rows) << "seed " << seed << ", step " << i;
        }
    }
}

} // namespace
} // namespace zy::test
