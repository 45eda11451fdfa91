#include "desktop/CommandButtonBinding.h"

#include "desktop/ShownText.h"

namespace zy {

CommandButtonBinding::CommandButtonBinding(const ViewContext& context, const Inside& inside,
                                           CommandButton& model)
    : ControlBinding(context, inside, model) {
    const auto text = WithMnemonic(context.codePage, model.Caption(), model.AccessKey());
    auto* button = new wxButton(Parent(), wxID_ANY, text);
    button->Bind(wxEVT_BUTTON, [this, &model](wxCommandEvent&) { Gate().Act([&] { model.Click(); }); });
    Attach(button);
}

} // namespace zy
