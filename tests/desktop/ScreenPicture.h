#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

namespace zy::test {

/// What stands on the screen at a place, in the screen's own pixels. Each system has one file of this.
wxImage PictureOnScreen(const wxRect& place);

} // namespace zy::test
