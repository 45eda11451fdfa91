#include "desktop/LinkLabelBinding.h"

#include <wx/hyperlink.h>

#include "desktop/Native.h"

namespace zy {

LinkLabelBinding::LinkLabelBinding(const ViewContext& context, const Inside& inside, LinkLabel& model)
    : ControlBinding(context, inside, model) {
    const auto text = Shown(model.Caption());
    auto* link = new wxHyperlinkCtrl(Parent(), wxID_ANY, text, text, wxDefaultPosition, wxDefaultSize,
                                     wxHL_ALIGN_LEFT | wxBORDER_NONE);
    const auto follow = [this, &model] { Gate().Act([&] { model.Click(); }); };
    DressLink(*link);
    // Handled here for good: the toolkit would open the text by itself.
    link->Bind(wxEVT_HYPERLINK, [follow](wxHyperlinkEvent&) { follow(); });
    FollowByEnter(*link, follow);
    Attach(link);
    SetAccessibleName(*link, text);
    SetAccessibleRole(*link, AccessibleRole::Link);
}

} // namespace zy
