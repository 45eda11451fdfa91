#include "desktop/DecorationBindings.h"

#include <wx/dcclient.h>
#include <wx/statbmp.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include <algorithm>
#include <string>

#include "desktop/Native.h"
#include "desktop/Panels.h"
#include "desktop/Pictures.h"
#include "desktop/ShownText.h"
#include "shell/Application.h"

namespace zy {
namespace {

wxStaticText* MakeText(wxWindow* parent, const wxString& text, TextLabel::Style style) {
    auto* label = MakePlainText(*parent, text);
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
    shownCaption_ = model.Caption();
    Attach(MakeText(Parent(), Text(), model.TextStyle()));
}

wxString TextLabelBinding::Text() const {
    wxString text = WithMnemonic(Context().codePage, shownCaption_, '\0');
    text.Replace("\r\n", "\n");
    return text;
}

void TextLabelBinding::ShowAppearance() {
    if (shownCaption_ != Model().Caption()) {
        shownCaption_ = Model().Caption();
        static_cast<wxStaticText&>(Window()).SetLabel(Text());
        Measure();
    }
    ControlBinding::ShowAppearance();
}

void TextLabelBinding::Measure() {
    Model().SetPreferred(Context().scale.ToTwips(Window().GetEffectiveMinSize()));
}

LineBinding::LineBinding(const ViewContext& context, const Inside& inside, Line& model)
    : ControlBinding(context, inside, model) {
    Attach(new wxStaticLine(Parent()));
}

PictureBinding::PictureBinding(const ViewContext& context, const Inside& inside, Picture& model)
    : ControlBinding(context, inside, model) {
    auto* picture = new wxStaticBitmap(Parent(), wxID_ANY, wxBitmapBundle());
    picture->Bind(wxEVT_SIZE, [picture, drawn = 0](wxSizeEvent& event) mutable {
        event.Skip();
        // A picture's size is given in pixels of a screen of 96 dots per inch. The control then takes the
        // size that this makes here, which raises one more size event.
        const int size = picture->ToDIP(std::min(event.GetSize().x, event.GetSize().y));
        if (size > 0 && size != drawn) {
            drawn = size;
            picture->SetBitmap(ProgramPicture(size));
        }
    });
    Attach(picture);
    SetAccessibleName(*picture, std::string(kApplicationTitle) + " icon");
}

} // namespace zy
