#include "desktop/LinkLabelBinding.h"

#include <wx/hyperlink.h>

namespace zy {

LinkLabelBinding::LinkLabelBinding(const ViewContext& context, const Inside& inside, LinkLabel& model)
    : ControlBinding(context, inside, model) {
    const auto text = Shown(model.Caption());
    auto* link = new wxHyperlinkCtrl(Parent(), wxID_ANY, text, text, wxDefaultPosition, wxDefaultSize,
                                     wxHL_ALIGN_LEFT | wxBORDER_NONE);
    // Handled here for good: the toolkit would open the text by itself.
    link->Bind(wxEVT_HYPERLINK, [this, &model](wxHyperlinkEvent&) { Gate().Act([&] { model.Click(); }); });
    link->Bind(wxEVT_CHAR_HOOK, [this, link, &model](wxKeyEvent& event) {
        const bool enters = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
        if (!enters || event.HasAnyModifiers()) {
            event.Skip();
            return;
        }
        // Behind the key itself, which a dialog would take for that of a button.
        link->CallAfter([this, &model] { Gate().Act([&] { model.Click(); }); });
    });
    Attach(link);
}

} // namespace zy
