#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "platform/FileSystem.h"

namespace zy {

/// The right to save a file, from the first step of a save to its last: while one program has it, no other
/// one's save can cut in between its steps.
class SaveTurn {
  public:
    /// Waits up to two seconds for another program's save in the file's folder.
    SaveTurn(FileSystem& files, std::string_view path);

    /// False when another program is saving there still: then nothing may be written.
    bool IsMine() const { return isMine_; }

    /// Shown to the user whose save has to wait.
    static constexpr std::string_view kRefusal =
        "Not saved: somebody else is saving in this folder at this moment; save again";

  private:
    LockedFolder folder_;
    bool isMine_;
};

/// What else is to be done in the turn of a save.
struct SaveHooks {
    /// Right before the first step. A reason that is put in refuses the save.
    Event<std::string&> beginning;
    /// Behind the last step, however they went.
    Event<> ended;
};

/// Says that it is not certain which of several files a path means, and why; empty when it is certain.
std::string Uncertainty(FileSystem& files, std::string_view path);
/// The same as run-time error 75, where another file than the product's own could be read or replaced. The
/// error says what the user can do about it.
void RequireCertain(FileSystem& files, std::string_view path);

/// Says for the status bar that a save of this file would fail for this reason, and what to do about it
/// before one edits; empty for none.
std::string Obstacle(std::string_view path, FileError error);

/// Why the file of this path must not be saved now, for the status bar; empty when it may.
std::string WhyNotToSave(FileSystem& files, std::string_view path, const SaveTurn& turn);

/// Saves, with what else is to be done in the turn. False, and `reported` says why, when there is a reason
/// not to, here or in what else is to be done.
bool SaveInTurn(std::string refusal, SaveHooks& hooks, Event<const std::string&>& reported,
                const std::function<void()>& save);

} // namespace zy
