#include "desktop/TextBoxBinding.h"

#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

/// The most characters that the toolkit's box holds. What a longer text has beyond is kept, out of reach.
constexpr std::size_t kMostShown = 65535;

} // namespace

TextBoxBinding::TextBoxBinding(const ViewContext& context, const Inside& inside, TextBox& model)
    : ControlBinding(context, inside, model), model_(model), box_(new wxTextCtrl(Parent(), wxID_ANY)) {
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

void TextBoxBinding::TakeText() {
    const std::string before = model_.Text().substr(0, kMostShown);
    const std::string beyond = model_.Text().substr(before.size());
    const auto edited = TakeEdit(Context().codePage, before, box_->GetValue());
    if (edited) {
        Gate().Act([&] { model_.Enter(edited->text + beyond); });
        if (ShowText()) {
            box_->SetInsertionPoint(static_cast<long>(edited->changeEnd));
        }
    } else {
        ShowText();
        box_->SetSelection(selectionStart_, selectionEnd_);
        Context().statusBar.SetText(kCharacterRefused);
    }
}

bool TextBoxBinding::ShowText() {
    const wxString shown = Shown(std::string_view(model_.Text()).substr(0, kMostShown));
    const bool differs = box_->GetValue() != shown;
    if (differs) {
        box_->ChangeValue(shown);
    }
    return differs;
}

} // namespace zy
