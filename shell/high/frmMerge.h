#pragma once

#include <array>
#include <string>
#include <vector>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "history/RowMerge.h"
#include "shell/ListRecords.h"

namespace zy {

/// The question what is to become of a list whose file another program changed: the rows that differ, three
/// ways, and what would be saved of them.
class frmMerge : public Form {
  public:
    enum class Answer { Cancel, Merge, Overwrite };
    /// What it is asked for.
    enum class Purpose {
        Save, ///< the list is about to be saved over what the other program wrote
        Look, ///< somebody wants to see what the other program wrote
    };
    /// The lists as `Comparable` gives them; they and the merge must outlive the form.
    struct Lists {
        const RowTexts& base;
        const RowTexts& mine;
        const RowTexts& theirs;
    };

    /// What there is to say, its first line as a heading. Without a merge the file cannot be read as a list,
    /// and can only be overwritten.
    frmMerge(const ListRecords& records, const std::string& heading, const Lists& lists, RowMerge* merge,
             Purpose purpose);

    void Form_Resize();
    void lstRows_ItemClick();
    void cmdMine_Click() { Choose(RowMerge::Choice::Mine); }
    void cmdTheirs_Click() { Choose(RowMerge::Choice::Theirs); }
    Answer Chosen() const { return chosen_; }

    TextLabel lblHeading;
    TextLabel lblText;
    Frame fraRows;
    ListView lstRows;
    CommandButton cmdMine;
    CommandButton cmdTheirs;
    CommandButton cmdMerge;
    CommandButton cmdOverwrite;
    CommandButton cmdCancel;

  private:
    using Texts = std::array<std::string, 5>;

    void Connect();
    int Rows() const;
    bool IsOrder(int item) const { return item > merge_->Differences(); }
    bool IsConflict(int item) const;
    void Choose(RowMerge::Choice choice);
    void ShowTexts(int item);
    Texts TextsOf(const RowMerge::Row& row) const;
    Texts OrderTexts() const;
    void End(Answer answer);

    std::vector<std::string> columns_;
    Lists lists_;
    RowMerge* merge_;
    std::vector<Texts> texts_;
    Answer chosen_ = Answer::Cancel;
};

} // namespace zy
