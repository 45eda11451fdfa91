#include "desktop/LabelBinding.h"

#include "desktop/ShownText.h"

namespace zy {

LabelBinding::LabelBinding(const ViewContext& context, const Inside& inside, Label& model)
    : ControlBinding(context, inside, model) {
    const auto text = WithMnemonic(context.codePage, model.Caption(), model.AccessKey());
    Attach(new wxStaticText(Parent(), wxID_ANY, text));
}

} // namespace zy
