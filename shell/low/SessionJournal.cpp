#include "shell/SessionJournal.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

#include "history/Bytes.h"

namespace zy {
namespace {

/// Says of a piece what it is: that, or a note.
constexpr std::uint64_t kHeader = 1;
constexpr std::uint64_t kNote = 2;
/// Of what follows in a header. Another version of the program that writes something else counts on.
constexpr std::uint64_t kVersion = 1;

/// What nobody could look at is the same as nothing else, not even as itself.
constexpr std::string_view kUnreadable = "?";

bool IsList(const StepNote& note) {
    return note.kind == StepNote::Kind::List;
}

} // namespace

SessionJournal::SessionJournal(FileSystem& files, Journals& journals, JournalSubject subject)
    : files_(files), journals_(journals), subject_(std::move(subject)) {}

const std::string& SessionJournal::Seen() {
    if (!seen_) {
        seen_ = Look();
    }
    return *seen_;
}

std::string SessionJournal::Look() const {
    const auto& file = *subject_.file;
    const bool isKnown = isKnown_ && file.Known();
    if (!isKnown && !FindsFile(files_, file.Path())) {
        return {};
    }
    const auto bytes = isKnown ? file.Known() : file.Read();
    const auto fingerprint = bytes ? journals_.Fingerprint(*bytes) : std::string();
    return fingerprint.empty() ? std::string(kUnreadable) : std::to_string(bytes->size()) + ":" + fingerprint;
}

FileError SessionJournal::StartAnew() {
    const auto error = journal_ == nullptr ? FileError::None : journal_->Remove();
    journal_.reset();
    pieces_ = {};
    error_ = FileError::None;
    isSynced_ = true;
    seen_.reset();
    isKnown_ = true;
    return error;
}

FileError SessionJournal::Note(const StepNote& note) {
    ByteWriter piece;
    piece.Number(kNote);
    piece.Text(note.Bytes());
    return Append(piece.Take());
}

FileError SessionJournal::NoteFile() {
    seen_.reset();
    isKnown_ = false;
    return Append(Header());
}

FileError SessionJournal::Sync() {
    if (journal_ == nullptr || std::exchange(isSynced_, true)) {
        return FileError::None;
    }
    return journal_->Sync();
}

FileError SessionJournal::Append(std::string_view piece) {
    if (IsWhole() && journal_ == nullptr) {
        error_ = Open();
    }
    if (IsWhole()) {
        error_ = journal_->Append(pieces_.Frame(piece));
        isSynced_ = false;
    }
    return error_;
}

FileError SessionJournal::Open() {
    auto opened = journals_.Create(subject_.kind, subject_.secrecy);
    journal_ = std::move(opened.journal);
    return journal_ == nullptr ? opened.error : journal_->Append(pieces_.Frame(Header()));
}

std::string SessionJournal::Header() {
    ByteWriter header;
    header.Number(kHeader);
    header.Number(kVersion);
    header.Text(files_.DisplayPath(subject_.file->Path()));
    header.Text(Seen());
    return header.Take();
}

EarlierSession::EarlierSession(std::string_view bytes) {
    const auto pieces = ReadPieces(bytes);
    const bool understood = std::all_of(pieces.whole.begin(), pieces.whole.end(),
                                        [this](std::string_view piece) { return Take(piece); });
    isDamaged_ = pieces.isDamaged || !understood;
}

bool EarlierSession::Take(std::string_view piece) {
    ByteReader bytes(piece);
    const auto kind = bytes.Number();
    if (kind == kNote) {
        auto note = StepNote::Of(bytes.Text().value_or(""));
        if (!note || sights_.empty()) {
            return false;
        }
        notes_.push_back(*std::move(note));
        return true;
    }
    if (kind != kHeader || bytes.Number() != kVersion) {
        return false;
    }
    path_ = bytes.Text().value_or("");
    sights_.push_back({std::string(bytes.Text().value_or("")), notes_.size()});
    return !bytes.HasFailed();
}

std::string EarlierSession::LastStep() const {
    const auto named = std::find_if(notes_.rbegin(), notes_.rend(),
                                    [](const StepNote& note) { return !note.step.name.empty(); });
    return named == notes_.rend() ? "" : named->step.name;
}

bool EarlierSession::IsReadable(const Sight& sight) {
    return sight.fingerprint != kUnreadable;
}

EarlierSession::Notes EarlierSession::NotesFor(std::string_view fingerprint) const {
    const auto seen = std::find_if(sights_.rbegin(), sights_.rend(), [&](const Sight& sight) {
        return IsReadable(sight) && sight.fingerprint == fingerprint;
    });
    if (seen == sights_.rend()) {
        // A list that nothing follows was noted when a save began. What the file held after that save, where
        // nobody could look at it, is nothing that somebody else has put there.
        const auto known = std::find_if(sights_.rbegin(), sights_.rend(), IsReadable);
        const bool wasSaving = !notes_.empty() && IsList(notes_.back()) &&
                               (known == sights_.rend() || known->notes < notes_.size());
        return wasSaving ? Notes{Use::Replace, {notes_.back()}} : Notes{};
    }
    // What the file was found to hold after a save that failed goes on from the list that it was to hold.
    const auto end = notes_.begin() + static_cast<std::ptrdiff_t>(seen->notes);
    const auto list = std::find_if(std::reverse_iterator(end), notes_.rend(), IsList);
    Notes notes{Use::Continue, {}};
    if (list != notes_.rend()) {
        notes.notes.push_back(*list);
    }
    std::copy_if(list.base(), notes_.end(), std::back_inserter(notes.notes), std::not_fn(IsList));
    return notes;
}

} // namespace zy
