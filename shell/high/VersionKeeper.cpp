#include "shell/VersionKeeper.h"

#include <optional>
#include <utility>

#include "shell/RecordChanges.h"
#include "shell/StatusTexts.h"
#include "shell/frmVersions.h"

namespace zy {

VersionKeeper::VersionKeeper(ListFile& file, Editor& editor, EarlierVersions& versions, SystemInfo& system,
                             Dialogs& dialogs, Keeps keeps)
    : file_(file), editor_(editor), versions_(versions), system_(system), dialogs_(dialogs), keeps_(keeps) {
    if (keeps == Keeps::Versions) {
        auto& hooks = editor_.Hooks();
        subscriptions_.push_back(hooks.beginning.Observe([this](std::string& refusal) { Keep(refusal); }));
        subscriptions_.push_back(hooks.ended.Observe([this] { versions_.Prune(file_.Path()); }));
        subscriptions_.push_back(editor_.Steps().saved.Observe([this](SaveEnd end) { NoteEnd(end); }));
    }
}

/// A save goes on without it: what the user wants saved counts for more than what was there before.
void VersionKeeper::Keep(std::string& refusal) {
    if (!refusal.empty()) {
        return;
    }
    const auto bytes = file_.Read();
    if (!bytes && !file_.Known()) {
        return; // no file that anybody knew of
    }
    const auto error = bytes ? versions_.Keep(file_.Path(), *bytes) : file_.ReasonNotRead();
    isKept_ = bytes && error == FileError::None;
    // Where the system has no place for them there is nothing that the user could do about it.
    if (error != FileError::None && error != FileError::NotFound) {
        report_ = Failure("What this save replaced could not be kept as an earlier version", error);
    }
}

void VersionKeeper::NoteEnd(SaveEnd end) {
    if (end == SaveEnd::Failed && isKept_) {
        report_ = "what the file held before stands under Edit > Earlier Versions";
    }
    isKept_ = false;
}

void VersionKeeper::Idle() {
    if (!report_.empty()) {
        reported.Raise(std::exchange(report_, {}));
    }
}

std::string VersionKeeper::Explanation(bool any) const {
    if (keeps_ == Keeps::Nothing) {
        return "Passwords are kept nowhere else. The table that a save replaces goes to the recycle bin:\r\n"
               "take " +
               std::string(file_.Name()) + " back from there.";
    }
    return any ? "Restore puts a version in place of the list. Nothing is written until you save."
               : "There is none yet: each save keeps what it replaces.";
}

void VersionKeeper::Show() {
    const auto found =
        keeps_ == Keeps::Versions ? versions_.Of(file_.Path()) : std::vector<EarlierVersions::Version>();
    const auto read = [&](int version) -> std::optional<FileRecords> {
        const auto bytes = versions_.Read(file_.Path(), found.at(static_cast<std::size_t>(version) - 1));
        return bytes ? editor_.Records().Read(*bytes) : std::nullopt;
    };
    const auto timeOf = [&](int version) {
        return system_.TimeText(found.at(static_cast<std::size_t>(version) - 1).time);
    };
    const auto now = editor_.Steps().CopyWithTyping();
    frmVersions dialog(
        editor_.Records(), Explanation(!found.empty()), static_cast<int>(found.size()),
        {.line =
             [&](int version) {
                 const auto records = read(version);
                 return frmVersions::Line{timeOf(version),
                                          records ? std::to_string(records->rows.Rows()) : "cannot be read"};
             },
         .changes =
             [&](int version) {
                 const auto records = read(version);
                 return records ? RecordChanges(editor_.Records(), now, records->rows) : RecordChanges();
             }});
    dialog.SetVisible(true);
    dialogs_.ShowForm(dialog);
    if (const auto records = dialog.Chosen() == 0 ? std::nullopt : read(dialog.Chosen())) {
        Restore(timeOf(dialog.Chosen()), records->rows);
    }
}

void VersionKeeper::Restore(const std::string& time, const RowTexts& rows) {
    editor_.Steps().ReplaceList("Restore Version of " + time, rows, EditSteps::Typing::Goes);
    reported.Raise("nothing is written until you save");
}

} // namespace zy
