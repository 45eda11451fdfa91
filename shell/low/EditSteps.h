#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "controls/Event.h"
#include "history/History.h"
#include "history/Recorder.h"
#include "history/RowList.h"
#include "history/RowPairs.h"
#include "history/StepNotes.h"

namespace zy {

/// How a save ended: the file holds all that the editor does, or the list without what is typed and not part
/// of it yet, or nobody knows what, or was not touched.
enum class SaveEnd : char { Whole, ListAlone, Failed, Refused };

/// The steps of one editor: what was done to its list can be taken back, and done again. What is typed and
/// not part of the list yet comes first.
///
/// Marks of unsaved changes are the editor's: it sets them as it always did, and after `moved` by what that
/// tells.
class EditSteps : protected RowList {
  public:
    EditSteps(const EditSteps&) = delete;
    EditSteps& operator=(const EditSteps&) = delete;

    /// Begins to record, without steps; the list counts as saved.
    void Start();
    /// Leaves out what happens until the next Start, such as loading.
    void Stop() { recorder_.Stop(); }
    /// Asks whoever watches over the list's file whether a save may go on, before anything of it is done.
    bool MayBeSaved();
    /// A save of the list begins, or has ended.
    void BeginSave() { saving.Raise(); }
    void EndSave(SaveEnd end) { saved.Raise(end); }
    /// A save is done; without success no earlier state counts as saved any more either.
    void MarkSaved(bool success);

    bool CanUndo() const { return HasTyping() || history_.ToUndo() != nullptr; }
    bool CanRedo() const { return CanRetype() || history_.ToRedo() != nullptr; }
    /// What that would be, such as "Delete Rule 2U"; empty when there is nothing.
    std::string UndoName() const;
    std::string RedoName() const;
    /// Nothing when there is nothing to take back, or to be done again.
    void Undo();
    void Redo();

    /// Has a log learn of all steps from here on. It must outlive this.
    void SetLog(StepLog& log) { history_.SetLog(&log); }
    /// The list as it stands.
    StepNote NoteList() const { return StepNote::OfList(*this, FirstRow()); }
    /// Copies of the rows of the list.
    RowTexts Copy() const;
    /// The same with what is typed and not stored in its row yet.
    RowTexts CopyWithTyping() const;
    /// The row, counted from 0, in which that would be stored; kNoRow for none.
    virtual int RowOfTyping() const { return kNoRow; }

    /// What becomes of what is typed and not stored, where the rows are replaced: it stays with its row as
    /// long as that is there, or goes.
    enum class Typing { Stays, Goes };
    /// Puts other rows in place of all of them, as a step of this name.
    void ReplaceList(const std::string& name, const RowTexts& rows, Typing typing);
    /// Gives the keyboard to the place where somebody works.
    void ShowHere() { Show(Here()); }
    /// The list is what its file holds, though no save made it so.
    void TakeAsSaved();
    /// Does again what another session noted of the list as it is now, as steps that can be taken back.
    /// Returns how many of the notes it did: from the first on, up to one that does not belong to this list.
    std::size_t Replay(std::span<const StepNote> notes);

    /// False, once it is put in, keeps the list from being saved.
    Event<bool&> asking;
    Event<> saving;
    Event<SaveEnd> saved;
    /// What can be taken back or done again is something else.
    Event<> changed;
    /// A step was taken back or done again, as a text for the status bar tells. Whether the list stands now
    /// as it was last saved.
    Event<bool, const std::string&> moved;

  protected:
    EditSteps();

    /// The first row that is part of the list.
    virtual int FirstRow() const { return 0; }
    /// Where somebody works now.
    virtual StepPlace Here() const = 0;
    /// Names a step that has no name yet, and puts its places right.
    virtual void Describe(Step& step) const = 0;
    virtual void Take(Step step);
    /// Shows a place after a step was taken back or done again there, and gives it the keyboard.
    virtual void Show(const StepPlace& place) = 0;

    // What is typed and not part of the list yet.
    virtual bool HasTyping() const { return false; }
    virtual bool CanRetype() const { return false; }
    virtual void UndoTyping() {}
    virtual void RedoTyping() {}
    /// Lets go of what would be in the way of a step, without taking it over.
    virtual void LeaveTyping() {}
    /// Stores what is typed and not stored yet in a copy of its row.
    virtual void AddTyping(RowTexts& /*copy*/) const {}
    /// Makes it part of a step that what is typed and not stored belongs to another row now, counted from 0,
    /// or goes, for kNoRow.
    virtual void MoveTyping(Step& /*step*/, int /*row*/) const {}

    Recorder& ToRecord() { return recorder_; }
    History& Steps() { return history_; }

  private:
    int NewRowOfTyping(const RowTexts& rows) const;
    void Move(StepPlace (History::*move)(RowList&), const std::string& report);

    History history_;
    Recorder recorder_;
};

} // namespace zy
