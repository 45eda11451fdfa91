#include "shell/ChangesByOthers.h"

#include <utility>

#include "history/RowMerge.h"
#include "shell/RecordChanges.h"
#include "shell/SaveTurn.h"
#include "shell/StatusTexts.h"

namespace zy {

ChangesByOthers::ChangesByOthers(ListFile& file, Editor& editor, SettingsForm& form, FileSystem& files,
                                 SystemInfo& system, Dialogs& dialogs)
    : file_(file), editor_(editor), form_(form), files_(files), system_(system), dialogs_(dialogs) {
    Connect();
}

void ChangesByOthers::Connect() {
    auto& hooks = editor_.Hooks();
    auto& all = subscriptions_;
    all.push_back(editor_.Steps().asking.Observe([this](bool& may) { AskBeforeSave(may); }));
    all.push_back(hooks.beginning.Observe([this](std::string& reason) { RefuseSave(reason); }));
    all.push_back(hooks.ended.Observe([this] { TakeUpSaved(); }));
    all.push_back(form_.lblShow.click.Observe([this] { lblShow_Click(); }));
    all.push_back(form_.lblLoad.click.Observe([this] { lblLoad_Click(); }));
    all.push_back(form_.lblIgnore.click.Observe([this] { lblIgnore_Click(); }));
}

void ChangesByOthers::Look() {
    if (!file_.IsChanged()) {
        HideNotice();
        return;
    }
    const auto now = ReadForSave();
    if (file_.IsChange(now) && (!ignored_ || *now != *ignored_)) {
        form_.ShowNotice(Notice());
    }
}

std::string ChangesByOthers::Notice() const {
    const auto time = files_.LastChange(file_.Path());
    return std::string(file_.Name()) + " was changed by another program" +
           (time ? " at " + TimeText(*time, system_.Today()) : "") + ".";
}

void ChangesByOthers::HideNotice() {
    ignored_ = nullptr;
    if (form_.HideNotice()) {
        editor_.Steps().ShowHere();
    }
}

void ChangesByOthers::lblShow_Click() {
    editor_.CommitOpenCell();
    const auto now = file_.Read();
    if (file_.IsChange(now)) {
        static_cast<void>(Settle(now, frmMerge::Purpose::Look));
    } else {
        HideNotice();
    }
}

void ChangesByOthers::lblLoad_Click() {
    editor_.CommitOpenCell();
    auto now = file_.Read();
    const auto read = file_.IsChange(now) ? editor_.Records().Read(*now) : std::nullopt;
    if (!read) {
        Tell("Not loaded: " + std::string(file_.Name()) + " cannot be read as a list");
        return;
    }
    file_.TakeUp(std::move(now));
    HideNotice();
    editor_.Steps().ReplaceList("Load " + std::string(file_.Name()), read->rows, EditSteps::Typing::Goes);
    editor_.Steps().TakeAsSaved();
    Tell("Loaded; Edit > Undo brings back what was there");
}

void ChangesByOthers::Tell(std::string_view hint) {
    AddHint(form_.zyStatusBar, hint);
}

void ChangesByOthers::lblIgnore_Click() {
    auto now = file_.Read();
    HideNotice();
    ignored_ = std::move(now);
}

void ChangesByOthers::AskBeforeSave(bool& may) {
    const auto now = ReadForSave();
    may = may && (!file_.IsChange(now) || Settle(now, frmMerge::Purpose::Save));
}

/// In the turn to save, so that what another program is just saving is read whole. Nothing where the save
/// will be refused anyway.
SharedText ChangesByOthers::ReadForSave() {
    const SaveTurn turn(files_, file_.Path());
    return WhyNotToSave(files_, file_.Path(), turn).empty() ? file_.Read() : nullptr;
}

void ChangesByOthers::RefuseSave(std::string& reason) const {
    if (reason.empty() && file_.IsChanged()) {
        reason = "Not saved: " + std::string(file_.Name()) +
                 " was changed by another program at this moment; save again";
    }
}

void ChangesByOthers::TakeUpSaved() {
    file_.TakeUp(file_.Read());
    HideNotice();
}

bool ChangesByOthers::Settle(const SharedText& theirs, frmMerge::Purpose purpose) {
    const auto& records = editor_.Records();
    const auto read = records.Read(*theirs);
    if (!read) {
        return SettleUnreadable(theirs, purpose);
    }
    const auto known = records.Read(file_.KnownText());
    const auto mine = editor_.Steps().Copy();
    const auto base = records.Comparable(known ? known->rows : RowTexts(mine.Columns()));
    const auto ours = records.Comparable(mine);
    const auto others = records.Comparable(read->rows);
    if (others == ours || (others == base && purpose == frmMerge::Purpose::Save)) {
        // What is typed and not stored in a rule is in no file yet.
        GoOnFrom(theirs, others == ours && editor_.Steps().RowOfTyping() == kNoRow);
        return true;
    }
    RowMerge merge(base, ours, others, KeyOf(records));
    const auto answer = Ask({base, ours, others}, &merge, purpose);
    if (answer == frmMerge::Answer::Merge) {
        editor_.Steps().ReplaceList("Merge Changes of " + std::string(file_.Name()),
                                    merge.Result(mine, read->rows), EditSteps::Typing::Stays);
    }
    if (answer != frmMerge::Answer::Cancel) {
        GoOnFrom(theirs, false);
    }
    return answer != frmMerge::Answer::Cancel;
}

bool ChangesByOthers::SettleUnreadable(const SharedText& theirs, frmMerge::Purpose purpose) {
    const RowTexts none(static_cast<int>(editor_.Records().Columns().size()));
    const bool overwrites = Ask({none, none, none}, nullptr, purpose) == frmMerge::Answer::Overwrite;
    if (overwrites) {
        GoOnFrom(theirs, false);
    }
    return overwrites;
}

frmMerge::Answer ChangesByOthers::Ask(const frmMerge::Lists& lists, RowMerge* merge,
                                      frmMerge::Purpose purpose) {
    frmMerge question(editor_.Records(), Notice(), lists, merge, purpose);
    question.SetVisible(true);
    dialogs_.ShowForm(question);
    return question.Chosen();
}

void ChangesByOthers::GoOnFrom(const SharedText& theirs, bool isTheList) {
    file_.TakeUp(theirs);
    if (isTheList) {
        editor_.Steps().TakeAsSaved();
    } else {
        editor_.Steps().MarkSaved(false);
        rebased.Raise();
    }
    HideNotice();
}

} // namespace zy
