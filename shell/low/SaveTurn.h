#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace zy {

/// The right to save a file, from the first step of a save to its last: while one program has it, no other
/// one's save can cut in between its steps.
class SaveTurn {
  public:
    /// Waits up to two seconds for somebody else's save in the file's folder.
    SaveTurn(FileSystem& files, std::string_view path);

    /// False when somebody else is saving there still: then nothing may be written.
    bool IsMine() const { return isMine_; }

    /// What a person is told who has to wait.
    static constexpr std::string_view kRefusal =
        "Not saved: somebody else is saving in this folder at this moment; save again";

  private:
    LockedFolder folder_;
    bool isMine_;
};

/// Says that nobody can tell which file of several a path means, and why; empty when it is certain.
std::string Uncertainty(FileSystem& files, std::string_view path);
/// The same as run-time error 75, where a file of somebody else's could be read or replaced. The error says
/// what a person can do about it.
void RequireCertain(FileSystem& files, std::string_view path);

/// Says for the status bar that a save of this file would fail for this reason, and what to do about it
/// before one edits; empty for none.
std::string Obstacle(std::string_view path, FileError error);

/// Why the file of this path must not be saved now, for the status bar; empty when it may.
std::string WhyNotToSave(FileSystem& files, std::string_view path, const SaveTurn& turn);

} // namespace zy
