#include "desktop/TextLabelBinding.h"

#include <wx/dcclient.h>
#include <wx/stattext.h>

#include "desktop/ShownText.h"

namespace zy {
namespace {

wxStaticText* MakeText(wxWindow* parent, const wxString& text, TextLabel::Style style) {
    auto* label = new wxStaticText(parent, wxID_ANY, text);
    if (style == TextLabel::Style::Heading) {
        constexpr float kLarger = 1.6F;
        label->SetFont(label->GetFont().Bold().Scale(kLarger));
        // A label that is not shown yet does not know what its font makes of its size.
        wxClientDC canvas(label);
        canvas.SetFont(label->GetFont());
        const wxSize kRounded(2, 2);
        label->SetMinSize(canvas.GetMultiLineTextExtent(text) + kRounded);
    }
    return label;
}

} // namespace

TextLabelBinding::TextLabelBinding(const ViewContext& context, const Inside& inside, TextLabel& model)
    : ControlBinding(context, inside, model) {
    wxString text = WithMnemonic(context.codePage, model.Caption(), '\0');
    text.Replace("\r\n", "\n");
    Attach(MakeText(Parent(), text, model.TextStyle()));
}

void TextLabelBinding::Measure() {
    Model().SetPreferred(Context().scale.ToTwips(Window().GetEffectiveMinSize()));
}

} // namespace zy
