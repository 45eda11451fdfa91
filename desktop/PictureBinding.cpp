#include "desktop/PictureBinding.h"

#include <wx/statbmp.h>

#include <algorithm>

#include "desktop/Pictures.h"

namespace zy {

PictureBinding::PictureBinding(const ViewContext& context, const Inside& inside, Picture& model)
    : ControlBinding(context, inside, model) {
    auto* picture = new wxStaticBitmap(Parent(), wxID_ANY, wxBitmapBundle());
    picture->Bind(wxEVT_SIZE, [picture](wxSizeEvent& event) {
        event.Skip();
        if (const int size = std::min(event.GetSize().x, event.GetSize().y); size > 0) {
            picture->SetBitmap(ProgramPicture(size));
        }
    });
    Attach(picture);
}

} // namespace zy
