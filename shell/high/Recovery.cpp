#include "shell/Recovery.h"

#include <utility>

#include "basics/Text.h"
#include "shell/StatusTexts.h"
#include "shell/mZYGlobal.h"

namespace zy {
Recovery::Recovery(FileSystem& files, Journals& journals, SystemInfo& system, Dialogs& dialogs)
    : files_(files), journals_(journals), system_(system), dialogs_(dialogs) {}

void Recovery::Begin(const JournalSubject& subject, EditSteps& steps) {
    subject_ = subject;
    steps_ = &steps;
    journal_.emplace(files_, journals_, subject);
    steps.SetLog(log_);
    steps.saving.Connect([this] { BeginSave(); });
    steps.saved.Connect([this](SaveEnd end) { EndSave(end); });
    for (auto& orphan : journals_.Orphans(subject.kind, subject.secrecy)) {
        if (Settle(std::move(orphan))) {
            break;
        }
    }
}

void Recovery::Idle() {
    if (!journal_) {
        return;
    }
    if (!subject_.file->Known()) {
        journal_->Seen(); // while it is what was loaded or saved
    }
    Report(journal_->Sync());
    if (!report_.empty()) {
        reported.Raise(std::exchange(report_, {}));
    }
}

void Recovery::Sync() {
    if (journal_) {
        static_cast<void>(journal_->Sync()); // nobody can do anything about it any more
    }
}

void Recovery::End() {
    if (journal_ && !lastSaveFailed_) {
        Forget();
    }
}

void Recovery::Note(const StepNote& note) {
    if (journal_->IsWhole()) {
        Report(journal_->Note(note));
    }
}

void Recovery::Report(FileError error) {
    // Where the system has no place for such notes there is nothing that the user could do about it.
    if (error != FileError::None && error != FileError::NotFound) {
        // Behind what the step itself has to say.
        report_ = Failure("What you change is lost if the program breaks off before you save", error);
    }
}

/// The whole list, for an unfinished save can leave less than that in the file.
void Recovery::BeginSave() {
    log_.StartAnew();
    Note(steps_->NoteList());
}

void Recovery::GoOnFromFile() {
    BeginSave();
    if (journal_->IsWhole()) {
        Report(journal_->NoteFile());
    }
}

void Recovery::EndSave(SaveEnd end) {
    lastSaveFailed_ = end != SaveEnd::Whole;
    if (end == SaveEnd::Whole) {
        log_.StartAnew();
        Forget();
    } else if (journal_->IsWhole()) {
        Report(end == SaveEnd::Refused ? journal_->NoteNoSave() : journal_->NoteFile());
    }
}

/// What cannot be removed is recognised the next time as saved.
void Recovery::Forget() {
    static_cast<void>(journal_->StartAnew());
    if (restored_) {
        static_cast<void>(std::exchange(restored_, nullptr)->Remove());
    }
}

bool Recovery::Settle(std::unique_ptr<Journal> orphan) {
    const EarlierSession session(orphan->Read());
    if (!IsOfThisList(session)) {
        return false;
    }
    const auto lost = session.NotesFor(journal_->Seen());
    if ((session.IsEmpty() && !session.IsDamaged()) || IsSaved(lost)) {
        static_cast<void>(orphan->Remove()); // one that stays holds nothing that anybody misses
        return false;
    }
    switch (Ask(session, lost, orphan->LastChange())) {
    case frmRecovery::Answer::Restore:
        Restore(lost.notes, std::move(orphan));
        return true;
    case frmRecovery::Answer::Discard:
        if (const auto error = orphan->Remove(); error != FileError::None) {
            reported.Raise(Failure("Not discarded", error));
        }
        break;
    case frmRecovery::Answer::NotNow:
        break;
    }
    return false;
}

/// Of one that is too damaged to say, somebody has to learn.
bool Recovery::IsOfThisList(const EarlierSession& session) const {
    return session.Path().empty() || session.Path() == files_.DisplayPath(subject_.file->Path());
}

bool Recovery::IsSaved(const EarlierSession::Notes& lost) const {
    return lost.use == EarlierSession::Use::Replace &&
           lost.notes.front().step.changes.front().after == steps_->NoteList().step.changes.front().after;
}

frmRecovery::Answer Recovery::Ask(const EarlierSession& session, const EarlierSession::Notes& lost,
                                  std::chrono::local_seconds time) {
    frmRecovery question(Heading(time), Explanation(session, lost.use), !lost.notes.empty());
    question.SetVisible(true);
    dialogs_.ShowForm(question);
    return question.Chosen();
}

std::string Recovery::Heading(std::chrono::local_seconds time) const {
    return "Changes of " + TimeText(time, system_.Today()) + " were not saved";
}

std::string Recovery::Explanation(const EarlierSession& session, EarlierSession::Use use) const {
    const std::string file(FileNameOf(subject_.file->Path()));
    std::string text;
    if (session.IsEmpty()) {
        text = "Their notes are damaged, and nothing of them can be restored.";
    } else if (use == EarlierSession::Use::None) {
        text = file + " has been changed since then, so they cannot be restored.";
    } else if (use == EarlierSession::Use::Replace) {
        text = "The program broke off while it was saving, so " + file + " may not be whole.";
        Join(text, kLineEnd, "Restore brings back the whole list as it was to be saved.");
    } else {
        text = "The last of them: " + Quoted(session.LastStep());
        Join(text, kLineEnd, "Restore does them again, step by step. Nothing is written until you save.");
    }
    if (session.IsDamaged() && !session.IsEmpty()) {
        Join(text, kLineEnd, "Their notes are damaged: only the first of them can be restored.");
    }
    Join(text, kLineEnd, "Discard removes them for good. Not Now asks again the next time.");
    return text;
}

void Recovery::Restore(const std::vector<StepNote>& notes, std::unique_ptr<Journal> orphan) {
    const auto done = steps_->Replay(notes);
    const bool isNotedAnew =
        done == notes.size() && journal_->IsWhole() && journal_->Sync() == FileError::None;
    if (isNotedAnew) {
        static_cast<void>(orphan->Remove()); // one that stays is offered again, which loses nothing
    } else {
        restored_ = std::move(orphan);
    }
}

} // namespace zy
