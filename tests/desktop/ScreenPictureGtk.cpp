#include "ScreenPicture.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <memory>

namespace zy::test {
namespace {

struct CloseDisplay {
    void operator()(Display* display) const { ::XCloseDisplay(display); }
};
struct DestroyImage {
    void operator()(XImage* image) const { XDestroyImage(image); }
};

unsigned char PartOf(unsigned long pixel, int bits) {
    return static_cast<unsigned char>(pixel >> bits);
}

} // namespace

wxImage PictureOnScreen(const wxRect& place) {
    // The toolkit's own copy of the screen stays as it was when it was first asked for.
    const std::unique_ptr<Display, CloseDisplay> display(::XOpenDisplay(nullptr));
    const std::unique_ptr<XImage, DestroyImage> seen(::XGetImage(
        display.get(), DefaultRootWindow(display.get()), place.x, place.y, static_cast<unsigned>(place.width),
        static_cast<unsigned>(place.height), AllPlanes, ZPixmap));
    wxImage picture(place.GetSize());
    for (int y = 0; y < place.height; ++y) {
        for (int x = 0; x < place.width; ++x) {
            const auto pixel = XGetPixel(seen.get(), x, y);
            picture.SetRGB(x, y, PartOf(pixel, 16), PartOf(pixel, 8), PartOf(pixel, 0));
        }
    }
    return picture;
}

} // namespace zy::test
