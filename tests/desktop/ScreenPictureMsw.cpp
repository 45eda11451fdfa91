#include "ScreenPicture.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

namespace zy::test {

wxImage PictureOnScreen(const wxRect& place) {
    wxBitmap picture(place.GetSize());
    wxMemoryDC canvas(picture);
    wxScreenDC screen;
    canvas.Blit({0, 0}, place.GetSize(), &screen, place.GetPosition());
    canvas.SelectObject(wxNullBitmap);
    return picture.ConvertToImage();
}

} // namespace zy::test
