#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/SystemInfo.h"
#include "shell/EditSteps.h"
#include "shell/SessionJournal.h"
#include "shell/frmRecovery.h"

namespace zy {

/// Loses nothing of what was done in an editor, whatever ends the program: the steps are noted down as they
/// are done, until they are saved, and the next session offers to do them again.
class Recovery {
  public:
    /// All of these must outlive it.
    Recovery(FileSystem& files, Journals& journals, SystemInfo& system, Dialogs& dialogs);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    /// The editor has just loaded its list. Asks what is to become of what an earlier session has left, and
    /// notes down from here on. The steps must outlive what is done in the editor.
    void Begin(const JournalSubject& subject, EditSteps& steps);
    /// The list goes on from what its file holds now, and differs from that.
    void GoOnFromFile();
    /// There is nothing else to do at the moment.
    void Idle();
    /// The program is about to break off.
    void Sync();
    /// The window was closed in good order: what is noted is not needed, unless the last save failed.
    void End();

    /// What is wrong with the notes, for the status bar.
    Event<const std::string&> reported;

  private:
    void Note(const StepNote& note);
    void BeginSave();
    void EndSave(SaveEnd end);
    void Forget();
    void Report(FileError error);

    /// True when there is nothing more to ask about.
    bool Settle(std::unique_ptr<Journal> orphan);
    bool IsOfThisList(const EarlierSession& session) const;
    /// The session was ended when its save was done and before it had removed its notes.
    bool IsSaved(const EarlierSession::Notes& lost) const;
    frmRecovery::Answer Ask(const EarlierSession& session, const EarlierSession::Notes& lost,
                            std::chrono::local_seconds time);
    std::string Heading(std::chrono::local_seconds time) const;
    std::string Explanation(const EarlierSession& session, EarlierSession::Use use) const;
    void Restore(const std::vector<StepNote>& notes, std::unique_ptr<Journal> orphan);

    FileSystem& files_;
    Journals& journals_;
    SystemInfo& system_;
    Dialogs& dialogs_;
    StepNotes log_{[this](const StepNote& note) { Note(note); }};
    JournalSubject subject_;
    EditSteps* steps_ = nullptr;
    std::optional<SessionJournal> journal_;
    /// Of the session whose changes were restored, while they are noted nowhere else.
    std::unique_ptr<Journal> restored_;
    bool lastSaveFailed_ = false;
    std::string report_; ///< not shown yet
};

} // namespace zy
