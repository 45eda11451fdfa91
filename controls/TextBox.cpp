#include "controls/TextBox.h"

#include <algorithm>

namespace zy {

void TextBox::SetText(std::string_view text) {
    if (text_ == text) {
        return;
    }
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    change.Raise();
}

void TextBox::Select(std::size_t start, std::size_t length) {
    selStart_ = std::min(start, text_.size());
    selLength_ = std::min(length, text_.size() - selStart_);
    selectionChanged.Raise();
}

void TextBox::Type(std::string_view text) {
    if (!TakeFocus()) {
        return;
    }
    text_.replace(selStart_, selLength_, text);
    selStart_ += text.size();
    selLength_ = 0;
    change.Raise();
}

void TextBox::Enter(std::string_view text) {
    if (TakeFocus()) {
        SetText(text);
    }
}

} // namespace zy
