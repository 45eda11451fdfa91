#include "shell/ListSession.h"

#include <utility>

#include "shell/RecordChanges.h"
#include "shell/StatusTexts.h"
#include "shell/frmChanges.h"

namespace zy {
namespace {

/// The rows of a list as its file holds them, and what else it holds.
FileRecords RecordsIn(const ListFile& file, const Editor& editor, int columns) {
    auto read = editor.Records().Read(file.KnownText());
    return read ? *std::move(read) : FileRecords{RowTexts(columns), {}};
}

void Revert(const ListFile& file, Editor& editor, const RowDifference& difference, const std::string& name) {
    auto& steps = editor.Steps();
    const auto& records = editor.Records();
    const auto held = steps.Copy();
    const auto before = RecordsIn(file, editor, held.Columns()).rows;
    const auto pairs =
        PairRows(records.Comparable(before), records.Comparable(steps.CopyWithTyping()), KeyOf(records));
    const bool isTyped = difference.after != kNoRow && difference.after == steps.RowOfTyping();
    steps.ReplaceList("Revert " + name, RevertDifference(before, held, pairs, difference),
                      isTyped ? EditSteps::Typing::Goes : EditSteps::Typing::Stays);
}

} // namespace

ListSession::ListSession(const World& world, SettingsForm& form, ListFile& file, Editor& editor,
                         VersionKeeper::Keeps keeps)
    : form_(form), files_(world.files), dialogs_(world.dialogs), editor_(editor), file_(file),
      store_(world.files, world.journals, world.system),
      others_(file_, editor, form, world.files, world.system, world.dialogs),
      versions_(file_, editor, store_, world.system, world.dialogs, keeps) {
    others_.rebased.Connect([this] { rebased.Raise(); });
    versions_.reported.Connect([this](const std::string& report) { AddHint(form_.zyStatusBar, report); });
}

void ListSession::Idle() {
    if (!std::exchange(hasLooked_, true)) {
        LookForRoom();
    }
    versions_.Idle();
}

void ListSession::LookForRoom() {
    const auto room = files_.FreeBytes(file_.Path());
    if (room && *room < file_.KnownText().size()) {
        AddHint(form_.zyStatusBar, Obstacle(file_.Path(), FileError::DiskFull));
    }
}

void ListSession::ShowUnsavedChanges() {
    const auto& records = editor_.Records();
    frmChanges dialog(records, std::string(file_.Name()));
    const auto show = [&] {
        const auto after = editor_.Steps().CopyWithTyping();
        const auto before = RecordsIn(file_, editor_, after.Columns());
        dialog.Show(RecordChanges(records, before.rows, after), before.dropped);
    };
    dialog.reverted.Connect([&](const RowDifference& difference, const std::string& name) {
        Revert(file_, editor_, difference, name);
        show();
    });
    show();
    dialog.SetVisible(true);
    dialogs_.ShowForm(dialog);
}

void ListSession::GoToOtherPart() {
    if (form_.HasNoticeFocus()) {
        editor_.Steps().ShowHere();
    } else if (form_.fraNotice.Visible()) {
        form_.lblShow.TakeFocus();
    }
}

void ListSession::ShowEarlierVersions() {
    versions_.Show();
}

} // namespace zy
