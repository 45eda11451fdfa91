#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "controls/CellList.h"
#include "controls/Event.h"
#include "controls/GridCells.h"
#include "controls/GridColumns.h"
#include "controls/GridSelection.h"
#include "controls/Key.h"

namespace zy {

/// The editor of a grid's current cell. While it is open it has a text of its own, which a commit takes over
/// into the cell and a cancel drops. It commits before rows are set or removed and before the selection
/// changes.
class CellEditor {
  public:
    /// A closed one. The grid's other parts must outlive it.
    CellEditor(GridCells& cells, const GridColumns& columns, GridSelection& selection);
    CellEditor(const CellEditor&) = delete;
    CellEditor& operator=(const CellEditor&) = delete;

    bool IsOpen() const { return isOpen_; }
    const std::string& Text() const { return text_; }
    /// The selection in the text: the place of its first character, from 0, and how many there are; the
    /// caret's place when there is none.
    std::size_t SelStart() const { return selStart_; }
    std::size_t SelLength() const { return selLength_; }

    /// How the open cell is edited.
    const CellList& List() const { return list_; }
    /// In a `beforeEdit` handler: edits the cell otherwise than its column's cells, this time.
    void SetList(CellList list) { list_ = std::move(list); }

    /// Opens the current cell, its whole text selected. Run-time error 9 when there is none.
    void Open();
    /// Opens the current cell with a text in place of the cell's, the caret behind it. Run-time error 9 when
    /// there is none.
    void OpenWith(std::string_view text);
    /// Puts a text in place of the open editor's selection; the caret stands behind it.
    void ReplaceSelection(std::string_view text);
    /// Closes the editor and takes its text over, which counts as an edit also when the text is the same.
    /// Nothing when it is closed.
    void Commit();
    /// Closes the editor and drops its text.
    void Cancel();

    /// Whether the open editor's text is another one than its cell's.
    bool HasTyping() const;
    /// Takes that back: the cell's own text stands there again, all selected. Nothing without it.
    void UndoTyping();
    /// Whether typing was taken back, and nothing was typed since; and puts it there again.
    bool CanRedoTyping() const { return typingTakenBack_.has_value(); }
    void RedoTyping();

    /// Edits a cell without the editor, as a paste does: sets its text, which counts as an edit also when the
    /// text is the same.
    void Overwrite(int row, int column, std::string_view text);

    // What the user does in the open editor. While it is closed, all of these but Press do nothing.

    /// Changes the text, or moves the caret, in the view. A selection beyond the text's end is cut.
    void Enter(std::string_view text, std::size_t selStart, std::size_t selLength);
    /// Presses a key: Escape drops the text, Enter and the arrows up and down commit it and move on. False
    /// when the editor has no use for the key.
    bool Press(const KeyPress& press);
    /// Chooses an item of the cell's drop-down list, which commits it.
    void ChooseItem(std::string_view item);
    /// Types in a cell that has a list: the next item that begins so, in capitals or not, becomes the text.
    /// Where there is none, the text stays.
    void ChooseNext(std::string_view beginning, const CellList::UpperCase& upperCase);
    /// Puts an item in the place of a text that opened the editor and that the cell's list lacks; the cell's
    /// own text where no item begins so.
    void CorrectText(const CellList::UpperCase& upperCase);
    /// Presses the button of a cell that is edited with one.
    void PressButton();

    /// A cell is about to be edited, by row and column.
    Event<int, int> beforeEdit;
    /// A cell was edited, by row and column: an editor was committed, or the cell pasted into or emptied.
    Event<int, int> afterEdit;
    /// A key went down in the editor, which has not used it yet.
    Event<const KeyPress&> keyDown;
    /// The button of this cell was pressed, by row and column.
    Event<int, int> buttonClick;
    /// The editor was opened or closed.
    Event<> openChanged;
    /// The text of the open editor was changed, other than by Enter.
    Event<> textChanged;
    /// What can be taken back of the typing, or put there again, may be another text.
    Event<> typingChanged;

  private:
    void Announce();
    void Show(std::string_view text, std::size_t selStart, std::size_t selLength);
    void Close();
    void PutItem(std::string_view item);
    void NoteTyping();
    void ShowInOpen(std::string_view text, std::size_t selStart, std::size_t selLength);

    GridCells& cells_;
    const GridColumns& columns_;
    GridSelection& selection_;
    bool isOpen_ = false;
    CellList list_;
    std::string text_;
    std::size_t selStart_ = 0;
    std::size_t selLength_ = 0;
    std::optional<std::string> typingTakenBack_;
};

} // namespace zy
