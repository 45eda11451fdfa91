#include "shell/frmChanges.h"

#include <algorithm>
#include <utility>

#include "shell/ListDialogLayout.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

std::string Heading(const RecordChanges& changes) {
    return "A save makes these changes: " + changes.Summary() + ".";
}

std::string Losses(const std::string& dropped) {
    return dropped.empty() ? dropped : "What else it does to the file: " + dropped + ".";
}

} // namespace

frmChanges::frmChanges(const ListRecords& records, const std::string& file)
    : Form("frmChanges"), lblHeading(this, "lblHeading"), lblDropped(this, "lblDropped"),
      fraChanges(this, "fraChanges", "Changes"),
      lstChanges(&fraChanges, "lstChanges", RecordChanges::Columns(records, "In " + file, "To be saved"),
                 [this](int item, int column) { return changes_.Text(item, column); }),
      cmdRevert(this, "cmdRevert", "Revert", 'R'), cmdClose(this, "cmdClose", "Close", 'C') {
    SetCaption("ZY Setup - Changes Since the Last Save");
    leastInnerSize = [] { return ListDialogLayout::Least(); };
    SetKeyButtons(&cmdClose, &cmdClose);
    lstChanges.SetFocus();
    resize.Connect([this] { Form_Resize(); });
    lstChanges.itemClick.Connect([this](int) { lstChanges_ItemClick(); });
    cmdRevert.click.Connect([this] { cmdRevert_Click(); });
    cmdClose.click.Connect([this] { SetVisible(false); });
}

void frmChanges::Show(RecordChanges changes, const std::string& dropped) {
    const int selected = lstChanges.Selected();
    changes_ = std::move(changes);
    lblHeading.SetCaption(Heading(changes_));
    lblDropped.SetCaption(Losses(dropped));
    lblDropped.SetVisible(!dropped.empty());
    lstChanges.Refill(changes_.Count());
    lstChanges.Select(std::clamp(selected, std::min(changes_.Count(), 1), changes_.Count()));
    lstChanges_ItemClick();
    Form_Resize();
}

void frmChanges::Form_Resize() {
    ListDialogLayout layout(*this);
    layout.Add(lblHeading);
    layout.Add(lblDropped);
    layout.Add({&cmdRevert, &cmdClose});
    PlaceList(fraChanges, lstChanges, layout.Rooms(1).front());
}

void frmChanges::lstChanges_ItemClick() {
    cmdRevert.SetEnabled(lstChanges.Selected() != 0);
}

void frmChanges::cmdRevert_Click() {
    const int item = lstChanges.Selected();
    // What is shown changes while it is taken back.
    const auto difference = changes_.Difference(item);
    const std::string name(changes_.Text(item, RecordChanges::kName));
    reverted.Raise(difference, name);
}

} // namespace zy
