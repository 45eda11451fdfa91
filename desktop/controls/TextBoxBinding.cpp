#include "desktop/TextBoxBinding.h"

#include <algorithm>

#include "desktop/Native.h"
#include "desktop/Refusals.h"
#include "desktop/ShownText.h"

namespace zy {

TextBoxBinding::TextBoxBinding(const ViewContext& context, const Inside& inside, TextBox& model)
    : ControlBinding(context, inside, model), model_(model),
      box_(new wxTextCtrl(Parent(), wxID_ANY, "", {}, {}, model.PasswordChar() == '\0' ? 0 : wxTE_PASSWORD)) {
    if (model.PasswordChar() != '\0') {
        SetPasswordCharacter(*box_, model.PasswordChar());
    }
    TakeLineEnds(*box_);
    MoveQuickly(*box_);
    const auto remember = [this](wxEvent& event) {
        RememberSelection();
        event.Skip();
    };
    box_->Bind(wxEVT_KEY_DOWN, remember);
    box_->Bind(wxEVT_TEXT_PASTE, remember);
    box_->Bind(wxEVT_MIDDLE_DOWN, remember);
    box_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { TakeText(); });
    Keep(model_.change.Observe([this] { ShowText(); }));
    Keep(model_.selectionChanged.Observe([this] {
        const auto start = static_cast<long>(model_.SelStart());
        box_->SetSelection(start, start + static_cast<long>(model_.SelLength()));
    }));
    ShowText();
    Attach(box_);
}

std::string_view TextBoxBinding::Held() const {
    const std::string_view text = model_.Text();
    return text.substr(0, text.size() - beyond_.size());
}

void TextBoxBinding::TakeText() {
    const wxString entered = box_->GetValue();
    const auto edited = TakeEdit(Context().codePage, Held(), entered);
    if (edited) {
        Gate().Act([&] { model_.Enter(edited->text + beyond_); });
        ShowText();
        if (box_->GetValue() != entered) {
            box_->SetInsertionPoint(static_cast<long>(edited->changeEnd));
        }
    } else {
        TellRefused(Context(), NameOf(model_), entered);
        ShowText();
        box_->SetSelection(selectionStart_, selectionEnd_);
    }
}

void TextBoxBinding::ShowText() {
    const std::string_view text = model_.Text();
    const bool isShown = text.ends_with(beyond_) && box_->GetValue() == Shown(Held());
    if (!isShown) {
        beyond_ = text.substr(std::min(text.size(), kMostShown));
        box_->ChangeValue(Shown(Held()));
    }
}

} // namespace zy
