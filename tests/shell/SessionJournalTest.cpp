#include "shell/SessionJournal.h"

#include <gmock/gmock.h>

#include "history/Bytes.h"
#include "platform/memory/MemoryWorld.h"

namespace zy::test {
namespace {

using ::testing::SizeIs;

/// A journal that somebody puts together piece by piece, each of which is whole.
class JournalBytes {
  public:
    JournalBytes& Header(std::uint64_t version, std::string_view fingerprint) {
        ByteWriter piece;
        piece.Number(1);
        piece.Number(version);
        piece.Text("/units");
        piece.Text(fingerprint);
        return Piece(piece.Take());
    }
    JournalBytes& Note(const StepNote& note) {
        ByteWriter piece;
        piece.Number(2);
        piece.Text(note.Bytes());
        return Piece(piece.Take());
    }
    JournalBytes& Piece(std::string_view piece) {
        bytes_ += pieces_.Frame(piece);
        return *this;
    }
    EarlierSession Session() const { return EarlierSession(bytes_); }

  private:
    PieceWriter pieces_;
    std::string bytes_;
};

StepNote Push(const std::string& name) {
    StepNote note;
    note.step.name = name;
    return note;
}

StepNote List() {
    StepNote note;
    note.kind = StepNote::Kind::List;
    note.step.changes.emplace_back();
    return note;
}

TEST(SessionJournal, DoesNotTakeAFileThatCannotBeLookedForForAMissingOne) {
    constexpr auto kPath = R"(C:\SYS\ZYUNITS.SYS)";
    MemoryWorld world;
    const ListFile file(world.files, kPath);
    JournalSubject subject;
    subject.file = &file;
    EXPECT_EQ(SessionJournal(world.files, world.journals, subject).Seen(), "") << "missing";
    world.files.Put(kPath, "A,a\r\n");
    world.files.Plan({.operation = 1, .lasting = true});
    EXPECT_EQ(SessionJournal(world.files, world.journals, subject).Seen(), "?");
}

TEST(EarlierSession, SaysWhatItsJournalIsAbout) {
    const auto session = JournalBytes().Header(1, "before").Note(Push("Edit Unit")).Session();
    EXPECT_EQ(session.Path(), "/units");
    EXPECT_EQ(session.LastStep(), "Edit Unit");
    EXPECT_FALSE(session.IsDamaged());
    EXPECT_FALSE(session.IsEmpty());
    EXPECT_THAT(session.NotesFor("before").notes, SizeIs(1));
    EXPECT_EQ(session.NotesFor("other").use, EarlierSession::Use::None);
}

TEST(EarlierSession, NotesWithoutAHeaderAreDamaged) {
    const auto session = JournalBytes().Note(List()).Session();
    EXPECT_TRUE(session.IsDamaged());
    EXPECT_TRUE(session.IsEmpty());
    EXPECT_EQ(session.Path(), "");
    EXPECT_EQ(session.NotesFor("before").use, EarlierSession::Use::None);
}

TEST(EarlierSession, WhatAnotherVersionHasWrittenIsLeftAlone) {
    const auto session = JournalBytes().Header(2, "before").Note(Push("Edit Unit")).Session();
    EXPECT_TRUE(session.IsDamaged());
    EXPECT_TRUE(session.IsEmpty());
}

TEST(EarlierSession, APieceThatIsNoNoteEndsIt) {
    const auto session =
        JournalBytes().Header(1, "before").Note(Push("one")).Piece("\x02").Note(Push("two")).Session();
    EXPECT_TRUE(session.IsDamaged());
    EXPECT_EQ(session.LastStep(), "one");
}

TEST(EarlierSession, GoesOnFromTheListWhereASaveHasFailed) {
    const auto session = JournalBytes()
                             .Header(1, "before")
                             .Note(Push("one"))
                             .Note(List())
                             .Header(1, "half")
                             .Note(Push("two"))
                             .Session();
    EXPECT_THAT(session.NotesFor("before").notes, SizeIs(2)) << "without the list";
    const auto later = session.NotesFor("half");
    EXPECT_EQ(later.use, EarlierSession::Use::Continue);
    ASSERT_THAT(later.notes, SizeIs(2));
    EXPECT_EQ(later.notes.front().kind, StepNote::Kind::List);
    EXPECT_EQ(session.NotesFor("other").use, EarlierSession::Use::None);
}

TEST(EarlierSession, ThatEndedInASavePutsTheListInPlaceOfWhateverIsThere) {
    const auto session = JournalBytes().Header(1, "before").Note(Push("one")).Note(List()).Session();
    const auto lost = session.NotesFor("half");
    EXPECT_EQ(lost.use, EarlierSession::Use::Replace);
    EXPECT_THAT(lost.notes, SizeIs(1));
}

TEST(EarlierSession, ThatCouldNotReadWhatItsFailedSaveHadLeftPutsTheListInPlaceOfThat) {
    const auto session =
        JournalBytes().Header(1, "before").Note(Push("one")).Note(List()).Header(1, "?").Session();
    const auto lost = session.NotesFor("half");
    EXPECT_EQ(lost.use, EarlierSession::Use::Replace);
    EXPECT_THAT(lost.notes, SizeIs(1));
}

TEST(EarlierSession, AFileThatNobodyCouldReadIsNotTheSameAsAnother) {
    const auto session = JournalBytes().Header(1, "?").Note(Push("one")).Session();
    EXPECT_EQ(session.NotesFor("?").use, EarlierSession::Use::None);
}

} // namespace
} // namespace zy::test
