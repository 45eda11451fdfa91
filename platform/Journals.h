#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileError.h"

namespace zy {

/// What one session of the program notes down as it goes, for the case that it ends before it could save.
/// Destroying it keeps what is noted and lets go of it.
class Journal {
  public:
    virtual ~Journal() = default;

    /// All that is noted, piece behind piece as it was appended. What cannot be read any more ends it.
    virtual std::string Read() = 0;
    /// Notes a piece behind the others. From then on it outlives the program, whatever ends that. On failure
    /// part of it may have been noted; nothing may be appended behind it.
    virtual FileError Append(std::string_view piece) = 0;
    /// Waits until all that is noted would outlive a power cut, too.
    virtual FileError Sync() = 0;
    /// Removes it for good. From then on nothing can be done with it but to destroy it.
    virtual FileError Remove() = 0;
    /// When something was noted last, in the user's own time.
    virtual std::chrono::local_seconds LastChange() = 0;
};

/// A journal, or the reason why there is none.
struct OpenedJournal {
    std::unique_ptr<Journal> journal;
    FileError error = FileError::None;
};

/// Who may come to know what a journal holds.
enum class Secrecy : char {
    None,      ///< it lies among the user's other files
    Passwords, ///< it never reaches a disk in clear
};

/// The journals of the user's sessions. They lie in a folder of the user's own, which nobody else may enter,
/// and not in that of the settings. Those of one kind of notes are found by that, such as "units".
class Journals {
  public:
    virtual ~Journals() = default;

    /// A new and empty journal, held by this session as long as it exists. NotFound where the system has no
    /// place for one, as for passwords on Linux without a folder that is kept in memory.
    virtual OpenedJournal Create(std::string_view kind, Secrecy secrecy) = 0;
    /// The journals of sessions that have ended, from the latest to the earliest. Each is held, and found by
    /// no other session, as long as it exists; those that a living session holds are left out.
    virtual std::vector<std::unique_ptr<Journal>> Orphans(std::string_view kind, Secrecy secrecy) = 0;
    /// A text that stands for these bytes, and in practice for no others.
    virtual std::string Fingerprint(std::string_view bytes) const = 0;
};

} // namespace zy
