#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

namespace zy::test {

/// What stands on the screen at a place, in its own pixels. Linux alone has this.
wxImage PictureOnScreen(const wxRect& place);

} // namespace zy::test
