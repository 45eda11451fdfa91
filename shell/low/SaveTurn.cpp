#include "shell/SaveTurn.h"

#include "basics/RuntimeError.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

/// What whoever opens an editor can do about it, as far as the reason alone says that.
std::string_view AdviceFor(FileError error) {
    switch (error) {
    case FileError::InUse:
        return "close that program before saving";
    case FileError::AccessDenied:
        return "open the editor as its owner or an administrator";
    case FileError::ReadOnly:
        return "take the write protection off before editing";
    case FileError::DiskFull:
        return "make room on it before editing";
    default:
        return "put that right before editing";
    }
}

} // namespace

SaveTurn::SaveTurn(FileSystem& files, std::string_view path)
    : folder_(files.LockFolderOf(path)), isMine_(folder_.error != FileError::InUse) {}

std::string Uncertainty(FileSystem& files, std::string_view path) {
    const auto error = files.Locate(path);
    if (error == FileError::None) {
        return {};
    }
    return "it is not certain which file " + std::string(FileNameOf(path)) +
           " is: " + std::string(Describe(error));
}

void RequireCertain(FileSystem& files, std::string_view path) {
    const auto error = files.Locate(path);
    if (error == FileError::None) {
        return;
    }
    const std::string_view help = error == FileError::Ambiguous
                                      ? "Rename or remove all of them but one."
                                      : "Get the right to list the folders on the way to it.";
    RaisePathRefused(files.DisplayPath(path) + " was not touched, " + std::string(Describe(error)) + ". " +
                     std::string(help));
}

std::string Obstacle(std::string_view path, FileError error) {
    if (error == FileError::None) {
        return {};
    }
    return std::string(FileNameOf(path)) + " cannot be written now: " + std::string(Describe(error)) + "; " +
           std::string(AdviceFor(error));
}

std::string WhyNotToSave(FileSystem& files, std::string_view path, const SaveTurn& turn) {
    if (!turn.IsMine()) {
        return std::string(SaveTurn::kRefusal);
    }
    const auto uncertainty = Uncertainty(files, path);
    return uncertainty.empty() ? uncertainty : "Not saved, " + uncertainty;
}

bool SaveInTurn(std::string refusal, SaveHooks& hooks, Event<const std::string&>& reported,
                const std::function<void()>& save) {
    if (refusal.empty()) {
        hooks.beginning.Raise(refusal);
    }
    if (!refusal.empty()) {
        reported.Raise(refusal);
        return false;
    }
    save();
    hooks.ended.Raise();
    return true;
}

} // namespace zy
