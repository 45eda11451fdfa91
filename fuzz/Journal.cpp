#include <string>

#include "NotedList.h"
#include "Targets.h"
#include "history/Bytes.h"
#include "history/Pieces.h"

namespace zy::fuzz {
namespace {

/// What the program that finds the journals edits.
constexpr std::string_view kFile = "a\tA\nb\tB\nc\tC\n";

/// The pieces of a file are its bytes up to what is not whole any more.
void CheckPieces(std::string_view bytes) {
    const auto pieces = ReadPieces(bytes);
    PieceWriter writer;
    std::string written;
    for (const auto piece : pieces.whole) {
        written += writer.Frame(piece);
    }
    Require(bytes.starts_with(written), "what is whole is what was written");
    Require(pieces.isDamaged == (written.size() != bytes.size()), "what is not whole is noticed");
}

/// A journal whose pieces the input gives, each with its length in front; an empty one stands for the one
/// that such a journal begins with.
std::string JournalOf(std::string_view input) {
    static const std::string kHeader = PairSession::HeaderFor(kFile);
    ByteReader reader(input);
    PieceWriter writer;
    std::string journal;
    for (auto piece = reader.Text(); piece; piece = reader.Text()) {
        journal += writer.Frame(piece->empty() ? kHeader : *piece);
    }
    return journal;
}

/// The notes that can be read are written as they are read.
void CheckNotes(const EarlierSession& session) {
    for (const auto& note : session.NotesFor("").notes) {
        const auto bytes = note.Bytes();
        const auto again = StepNote::Of(bytes);
        Require(again && again->Bytes() == bytes, "a note means what it did");
    }
}

int PairsAtTheStart(EditSteps& steps, const PairList& list) {
    while (steps.CanUndo()) {
        steps.Undo();
    }
    return list.Pairs();
}

/// Whatever it says, the program starts, and what it does again can be taken back.
void CheckRestoring(std::string journal) {
    const LeftBehind left{std::string(kFile), std::move(journal)};
    PairSession session(left);
    Require(session.HasRestored() || session.list.List() == PairSession::PairsIn(kFile),
            "only what is restored changes the list");
    const PairSession next(session.BreakOff());
    Require(PairsAtTheStart(session.list, session.list) == 3, "every step can be taken back");
}

} // namespace

void Journal(std::string_view input) {
    CheckPieces(input);
    const auto journal = JournalOf(input);
    CheckPieces(journal);
    CheckNotes(EarlierSession(journal));
    CheckRestoring(journal);
}

} // namespace zy::fuzz
