#include "desktop/ComboBoxBinding.h"

#include "desktop/Native.h"

namespace zy {

ComboBoxBinding::ComboBoxBinding(const ViewContext& context, const Inside& inside, ComboBox& model)
    : ControlBinding(context, inside, model), model_(model), choice_(new wxChoice(Parent(), wxID_ANY)) {
    wxArrayString items;
    for (const auto& item : model_.Items()) {
        items.Add(Shown(item));
    }
    choice_->Append(items);
    choice_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { TakePick(); });
    Keep(model_.click.Observe([this] { ShowIndex(); }));
    // A list that has dropped down holds mouse and keyboard, and a message box would get neither.
    Keep(Gate().boxOpening.Observe([this] { CloseDropDown(*choice_); }));
    PrepareDropDown(*choice_);
    IgnoreWheelWhileClosed(*choice_);
    ShowIndex();
    Attach(choice_);
}

void ComboBoxBinding::TakePick() {
    const int picked = choice_->GetSelection();
    Gate().Act([&] { model_.Pick(picked); });
    ShowIndex();
}

void ComboBoxBinding::ShowIndex() {
    if (choice_->GetSelection() != model_.ListIndex()) {
        choice_->SetSelection(model_.ListIndex());
    }
}

} // namespace zy
