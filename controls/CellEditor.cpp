#include "controls/CellEditor.h"

#include <algorithm>

namespace zy {

CellEditor::CellEditor(GridCells& cells, const GridColumns& columns, GridSelection& selection)
    : cells_(cells), columns_(columns), selection_(selection) {
    cells_.resizing.Connect([this] { Commit(); });
    selection_.changing.Connect([this] { Commit(); });
}

void CellEditor::Open() {
    Announce();
    const auto text = cells_.Text(selection_.Row(), selection_.Column());
    Show(text, 0, text.size());
}

void CellEditor::OpenWith(std::string_view text) {
    Announce();
    Show(text, text.size(), 0);
}

void CellEditor::Announce() {
    Commit();
    cells_.Require(selection_.Row(), selection_.Column());
    list_ = columns_.List(selection_.Column());
    beforeEdit.Raise(selection_.Row(), selection_.Column());
}

void CellEditor::Show(std::string_view text, std::size_t selStart, std::size_t selLength) {
    isOpen_ = true;
    Enter(text, selStart, selLength);
    openChanged.Raise();
}

void CellEditor::Close() {
    if (isOpen_) {
        isOpen_ = false;
        NoteTyping();
        openChanged.Raise();
    }
}

void CellEditor::Commit() {
    if (isOpen_) {
        const std::string text = text_;
        Close();
        Overwrite(selection_.Row(), selection_.Column(), text);
    }
}

void CellEditor::Cancel() {
    Close();
}

void CellEditor::Overwrite(int row, int column, std::string_view text) {
    cells_.SetText(row, column, text);
    afterEdit.Raise(row, column);
}

void CellEditor::ReplaceSelection(std::string_view text) {
    text_.replace(selStart_, selLength_, text);
    selStart_ += text.size();
    selLength_ = 0;
    textChanged.Raise();
    NoteTyping();
}

void CellEditor::NoteTyping() {
    typingTakenBack_.reset();
    typingChanged.Raise();
}

bool CellEditor::HasTyping() const {
    return isOpen_ && text_ != cells_.Text(selection_.Row(), selection_.Column());
}

void CellEditor::UndoTyping() {
    if (HasTyping()) {
        std::string typed = text_;
        const auto text = cells_.Text(selection_.Row(), selection_.Column());
        ShowInOpen(text, 0, text.size());
        typingTakenBack_ = std::move(typed);
        typingChanged.Raise();
    }
}

void CellEditor::RedoTyping() {
    if (typingTakenBack_) {
        const std::string typed = *typingTakenBack_;
        ShowInOpen(typed, typed.size(), 0);
    }
}

void CellEditor::ShowInOpen(std::string_view text, std::size_t selStart, std::size_t selLength) {
    Enter(text, selStart, selLength);
    textChanged.Raise();
}

void CellEditor::Enter(std::string_view text, std::size_t selStart, std::size_t selLength) {
    if (!isOpen_) {
        return;
    }
    const bool changes = text_ != text;
    text_ = text;
    selStart_ = std::min(selStart, text_.size());
    selLength_ = std::min(selLength, text_.size() - selStart_);
    if (changes) {
        NoteTyping();
    }
}

bool CellEditor::Press(const KeyPress& press) {
    keyDown.Raise(press);
    if (!press.IsPlain()) {
        return false;
    }
    if (press.key == Key::Escape) {
        Cancel();
        return true;
    }
    if (press.key == Key::Enter || press.key == Key::Up || press.key == Key::Down) {
        Commit();
        selection_.MoveByKey({press.key == Key::Up ? Key::Up : Key::Down});
        return true;
    }
    return false;
}

void CellEditor::PutItem(std::string_view item) {
    Enter("", 0, 0);
    ReplaceSelection(item);
}

void CellEditor::ChooseItem(std::string_view item) {
    if (isOpen_) {
        PutItem(item);
        Commit();
    }
}

void CellEditor::ChooseNext(std::string_view beginning, const CellList::UpperCase& upperCase) {
    const auto item = isOpen_ ? list_.Next(text_, beginning, upperCase) : std::nullopt;
    if (item) {
        PutItem(*item);
    }
}

void CellEditor::CorrectText(const CellList::UpperCase& upperCase) {
    if (!isOpen_) {
        return;
    }
    const auto old = cells_.Text(selection_.Row(), selection_.Column());
    if (const auto text = list_.Corrected(text_, old, upperCase); text != text_) {
        PutItem(text);
    }
}

void CellEditor::PressButton() {
    if (isOpen_ && list_.HasButton()) {
        buttonClick.Raise(selection_.Row(), selection_.Column());
    }
}

} // namespace zy
