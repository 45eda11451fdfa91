#include "desktop/LabelBinding.h"

#include "basics/Text.h"
#include "desktop/ShownText.h"

namespace zy {

LabelBinding::LabelBinding(const ViewContext& context, const Inside& inside, Label& model)
    : ControlBinding(context, inside, model) {
    // A caption may mark its access key itself.
    const auto text = Contains(model.Caption(), '&')
                          ? Shown(model.Caption())
                          : WithMnemonic(context.codePage, model.Caption(), model.AccessKey());
    Attach(new wxStaticText(Parent(), wxID_ANY, text));
}

} // namespace zy
