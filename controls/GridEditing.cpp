#include <algorithm>

#include "controls/Grid.h"

namespace zy {

void Grid::EditCell() {
    AnnounceEdit();
    const auto text = Text(current_.row, current_.column);
    OpenEditorWith(text, 0, text.size());
}

void Grid::AnnounceEdit() {
    CommitEdit();
    Index(current_.row, current_.column);
    editList_ = columnLists_[static_cast<std::size_t>(current_.column)];
    beforeEdit.Raise(current_.row, current_.column);
}

void Grid::OpenEditorWith(std::string_view text, std::size_t selStart, std::size_t selLength) {
    editing_ = true;
    EnterEditText(text, selStart, selLength);
    editingChanged.Raise();
}

void Grid::CloseEditor() {
    if (editing_) {
        editing_ = false;
        editingChanged.Raise();
    }
}

void Grid::CommitEdit() {
    if (editing_) {
        const std::string text = editText_;
        CloseEditor();
        EditTo(current_.row, current_.column, text);
    }
}

void Grid::CancelEdit() {
    CloseEditor();
}

void Grid::EditTo(int row, int column, std::string_view text) {
    SetText(row, column, text);
    afterEdit.Raise(row, column);
}

void Grid::ReplaceEditSelection(std::string_view text) {
    editText_.replace(editSelStart_, editSelLength_, text);
    editSelStart_ += text.size();
    editSelLength_ = 0;
    editTextChanged.Raise();
}

void Grid::Pick(int row, int column) {
    if (TakeFocus() && row >= 1) {
        Select(row, column);
    }
}

void Grid::TypeOver(std::string_view text) {
    if (!TakeFocus() || current_.row < 1) {
        return;
    }
    if (editing_) {
        ReplaceEditSelection(text);
    } else {
        AnnounceEdit();
        OpenEditorWith(text, text.size(), 0);
    }
}

void Grid::OpenEditor() {
    if (TakeFocus() && current_.row >= 1 && !editing_) {
        EditCell();
    }
}

void Grid::EnterEditText(std::string_view text, std::size_t selStart, std::size_t selLength) {
    if (editing_) {
        editText_ = text;
        editSelStart_ = std::min(selStart, editText_.size());
        editSelLength_ = std::min(selLength, editText_.size() - editSelStart_);
    }
}

void Grid::PressMouse(MouseButton button, int row, int column) {
    if (TakeFocus()) {
        mouseDown.Raise(button, row, column);
    }
}

void Grid::PutItem(std::string_view item) {
    EnterEditText("", 0, 0);
    ReplaceEditSelection(item);
}

void Grid::ChooseItem(std::string_view item) {
    if (editing_) {
        PutItem(item);
        CommitEdit();
    }
}

void Grid::ChooseNext(std::string_view beginning, const CellList::UpperCase& upperCase) {
    const auto item = editing_ ? editList_.Next(editText_, beginning, upperCase) : std::nullopt;
    if (item) {
        PutItem(*item);
    }
}

void Grid::CorrectEditText(const CellList::UpperCase& upperCase) {
    if (!editing_) {
        return;
    }
    const auto text = editList_.Corrected(editText_, Text(current_.row, current_.column), upperCase);
    if (text != editText_) {
        PutItem(text);
    }
}

void Grid::PressCellButton() {
    if (editing_ && editList_.HasButton()) {
        cellButtonClick.Raise(current_.row, current_.column);
    }
}

} // namespace zy
