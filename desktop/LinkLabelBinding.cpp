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
    Attach(link);
}

} // namespace zy
