#include "MessageBoxes.h"

#include "NativeLook.h"

namespace zy::test {

wxMessageDialog* MessageBoxes::Active() const {
    auto* box = open_.empty() ? nullptr : open_.back();
    return box != nullptr && HasKeyboard(*box) ? box : nullptr;
}

int MessageBoxes::Enter(wxDialog* dialog) {
    if (auto* box = dynamic_cast<wxMessageDialog*>(dialog)) {
        open_.push_back(box);
        seen_.push_back(box->GetMessage().utf8_string());
    }
    return wxID_NONE;
}

void MessageBoxes::Exit(wxDialog* dialog) {
    std::erase(open_, dialog);
}

} // namespace zy::test
