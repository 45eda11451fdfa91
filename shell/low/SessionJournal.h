#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "history/Pieces.h"
#include "history/StepNotes.h"
#include "platform/FileSystem.h"
#include "platform/Journals.h"
#include "shell/ListFile.h"

namespace zy {

/// The list that a journal is about.
struct JournalSubject {
    std::string kind;               ///< of the editor: "units"
    const ListFile* file = nullptr; ///< which must outlive the journal
    Secrecy secrecy = Secrecy::None;
};

/// The journal of this session: the steps since the list was loaded or saved last. There is none on the disk
/// until there is a step. When a note fails the journal ends with the one before, so that it stays true.
class SessionJournal {
  public:
    /// The two must outlive it.
    SessionJournal(FileSystem& files, Journals& journals, JournalSubject subject);

    /// What the file of the list holds, as a short text that is the same only for the same bytes; empty where
    /// there is no file, "?" where nobody can tell.
    const std::string& Seen();
    /// The list is what its file holds now: what was noted so far is not needed any more.
    FileError StartAnew();
    FileError Note(const StepNote& note);
    /// A save failed: what the file holds since then.
    FileError NoteFile();
    /// A save that was to begin did not touch the file.
    FileError NoteNoSave() { return Append(Header()); }
    /// Has what was noted outlive a power cut, too.
    FileError Sync();
    bool IsWhole() const { return error_ == FileError::None; }

  private:
    FileError Append(std::string_view piece);
    FileError Open();
    std::string Header();
    std::string Look() const;

    FileSystem& files_;
    Journals& journals_;
    JournalSubject subject_;
    std::unique_ptr<Journal> journal_;
    PieceWriter pieces_;
    std::optional<std::string> seen_; ///< once it was asked for
    bool isKnown_ = true;             ///< the file holds what it is known to hold
    FileError error_ = FileError::None;
    bool isSynced_ = true;
};

/// What the journal of an earlier session says.
class EarlierSession {
  public:
    explicit EarlierSession(std::string_view bytes);

    /// The file of the list as the user writes it; empty when the journal is too damaged to say.
    const std::string& Path() const { return path_; }
    /// Nothing is whole but what comes before the damage.
    bool IsDamaged() const { return isDamaged_; }
    bool IsEmpty() const { return notes_.empty(); }
    /// The name of the last step that was done; empty when it has none.
    std::string LastStep() const;

    /// What can be done with the notes, given what the file holds now.
    enum class Use : char {
        Continue, ///< they go on from there
        Replace,  ///< the session ended while it saved: the whole list takes the place of what is there
        None,     ///< the file holds what this session never knew
    };
    struct Notes {
        Use use = Use::None;
        std::vector<StepNote> notes;
    };
    Notes NotesFor(std::string_view fingerprint) const;

  private:
    /// False when it is not understood.
    bool Take(std::string_view piece);

    /// The file was seen to hold this when so many notes had been made.
    struct Sight {
        std::string fingerprint;
        std::size_t notes;
    };
    static bool IsReadable(const Sight& sight);

    std::string path_;
    std::vector<Sight> sights_;
    std::vector<StepNote> notes_;
    bool isDamaged_ = false;
};

} // namespace zy
