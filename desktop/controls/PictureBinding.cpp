#include "desktop/PictureBinding.h"

#include <wx/statbmp.h>

#include <algorithm>

#include "desktop/Pictures.h"

namespace zy {

PictureBinding::PictureBinding(const ViewContext& context, const Inside& inside, Picture& model)
    : ControlBinding(context, inside, model) {
    auto* picture = new wxStaticBitmap(Parent(), wxID_ANY, wxBitmapBundle());
    picture->Bind(wxEVT_SIZE, [picture, drawn = 0](wxSizeEvent& event) mutable {
        event.Skip();
        // A picture's own size is told in pixels of an ordinary screen; the control takes the size that this
        // comes to here, and tells of it once more.
        const int size = picture->ToDIP(std::min(event.GetSize().x, event.GetSize().y));
        if (size > 0 && size != drawn) {
            drawn = size;
            picture->SetBitmap(ProgramPicture(size));
        }
    });
    Attach(picture);
}

} // namespace zy
