#include "shell/frmMerge.h"

#include "shell/ListDialogLayout.h"
#include "shell/RecordChanges.h"

namespace zy {
namespace {

using Change = RowMerge::Change;
using Choice = RowMerge::Choice;

/// What stands in place of a result that nobody has chosen yet.
constexpr auto kOpen = "? choose mine or theirs";
constexpr auto kNone = "(none)";

std::string OrNone(const std::string& text) {
    return text.empty() ? kNone : text;
}

std::string Explanation(bool canMerge) {
    return canMerge
               ? "What one of you changed is taken over. Where both changed the same, choose whose it is "
                 "to be."
               : "What it holds now cannot be read as a list, so it can only be overwritten.";
}

} // namespace

frmMerge::frmMerge(const ListRecords& records, const std::string& heading, const Lists& lists,
                   RowMerge* merge, Purpose purpose)
    : Form("frmMerge"), lblHeading(this, "lblHeading"), lblText(this, "lblText"),
      fraRows(this, "fraRows", "Rows That Differ"),
      lstRows(&fraRows, "lstRows",
              {{records.Columns().front(), 1300},
               {"Before", 2300},
               {"Theirs", 2300},
               {"Mine", 2300},
               {"Result", 2300}},
              [this](int item, int column) -> std::string_view {
                  return texts_.at(static_cast<std::size_t>(item) - 1).at(static_cast<std::size_t>(column));
              }),
      cmdMine(this, "cmdMine", "Take Mine", 'n'), cmdTheirs(this, "cmdTheirs", "Take Theirs", 'T'),
      cmdMerge(this, "cmdMerge", purpose == Purpose::Save ? "Merge and Save" : "Merge", 'M'),
      cmdOverwrite(this, "cmdOverwrite", "Overwrite", 'O'), cmdCancel(this, "cmdCancel", "Cancel"),
      columns_(records.Columns()), lists_(lists), merge_(merge) {
    SetCaption("ZY Setup - Changed by Another Program");
    leastInnerSize = [] { return ListDialogLayout::Least(); };
    lblHeading.SetCaption(heading);
    lblText.SetCaption(Explanation(merge != nullptr));
    cmdOverwrite.SetVisible(purpose == Purpose::Save);
    SetKeyButtons(merge == nullptr ? &cmdCancel : &cmdMerge, &cmdCancel);
    Connect();
    for (int item = 1; item <= Rows(); ++item) {
        texts_.emplace_back();
        ShowTexts(item);
    }
    lstRows.Refill(Rows());
    lstRows.Select(Rows() == 0 ? 0 : 1);
    lstRows_ItemClick();
    (Rows() == 0 ? static_cast<Control&>(cmdCancel) : lstRows).SetFocus();
}

void frmMerge::Connect() {
    resize.Connect([this] { Form_Resize(); });
    lstRows.itemClick.Connect([this](int) { lstRows_ItemClick(); });
    cmdMine.click.Connect([this] { cmdMine_Click(); });
    cmdTheirs.click.Connect([this] { cmdTheirs_Click(); });
    cmdMerge.click.Connect([this] { End(Answer::Merge); });
    cmdOverwrite.click.Connect([this] { End(Answer::Overwrite); });
    cmdCancel.click.Connect([this] { End(Answer::Cancel); });
}

int frmMerge::Rows() const {
    return merge_ == nullptr ? 0 : merge_->Differences() + (merge_->OrderChange() == Change::None ? 0 : 1);
}

bool frmMerge::IsConflict(int item) const {
    return item != 0 &&
           (IsOrder(item) ? merge_->OrderChange() : merge_->Difference(item - 1).change) == Change::Conflict;
}

void frmMerge::Choose(Choice choice) {
    const int item = lstRows.Selected();
    if (IsOrder(item)) {
        merge_->ChooseOrder(choice);
    } else {
        merge_->Choose(item - 1, choice);
    }
    ShowTexts(item);
    lstRows.RefreshItem(item);
    lstRows_ItemClick();
}

void frmMerge::ShowTexts(int item) {
    texts_.at(static_cast<std::size_t>(item) - 1) =
        IsOrder(item) ? OrderTexts() : TextsOf(merge_->Difference(item - 1));
}

frmMerge::Texts frmMerge::TextsOf(const RowMerge::Row& row) const {
    const auto& named = row.mine != kNoRow ? lists_.mine : row.theirs != kNoRow ? lists_.theirs : lists_.base;
    const int place = row.mine != kNoRow ? row.mine : row.theirs != kNoRow ? row.theirs : row.base;
    const auto states = DescribeStates(
        columns_, {{&lists_.base, row.base}, {&lists_.theirs, row.theirs}, {&lists_.mine, row.mine}});
    const auto& taken = states[row.choice == Choice::Theirs ? 1 : 2];
    return {std::string(named.Text(place, 0)), OrNone(states[0]), OrNone(states[1]), OrNone(states[2]),
            row.choice == Choice::Undecided ? kOpen : OrNone(taken)};
}

frmMerge::Texts frmMerge::OrderTexts() const {
    const auto change = merge_->OrderChange();
    const auto isChanged = [change](Change side) { return change == side || change >= Change::BothAlike; };
    const auto result = merge_->OrderChoice() == Choice::Undecided ? kOpen
                        : merge_->OrderChoice() == Choice::Theirs  ? "theirs"
                                                                   : "mine";
    return {"(order)", "", isChanged(Change::Theirs) ? "changed" : "",
            isChanged(Change::Mine) ? "changed" : "", result};
}

void frmMerge::lstRows_ItemClick() {
    const bool isConflict = merge_ != nullptr && IsConflict(lstRows.Selected());
    cmdMine.SetEnabled(isConflict);
    cmdTheirs.SetEnabled(isConflict);
    cmdMerge.SetEnabled(merge_ != nullptr && merge_->IsDecided());
}

void frmMerge::Form_Resize() {
    ListDialogLayout layout(*this);
    layout.Add(lblHeading);
    layout.Add(lblText);
    if (cmdOverwrite.Visible()) {
        layout.Add({&cmdMerge, &cmdOverwrite, &cmdCancel});
    } else {
        layout.Add({&cmdMerge, &cmdCancel});
    }
    layout.Add({&cmdMine, &cmdTheirs});
    PlaceList(fraRows, lstRows, layout.Rooms(1).front());
}

void frmMerge::End(Answer answer) {
    chosen_ = answer;
    SetVisible(false);
}

} // namespace zy
