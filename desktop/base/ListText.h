#pragma once

class wxDataViewCtrl;
class wxDataViewTextRenderer;

namespace zy {

// What of a list's texts is the window system's affair. Each system has one file of this.

/// Draws the texts of a list: those that a box keeps from being used for a while look as they always do.
wxDataViewTextRenderer* MakeListText();
/// The room left and right of a text in the place of its item, in pixels.
int MarginOfListText();
/// Shows the text of a header that is cut as a tooltip, whole.
void ShowCutHeaders(wxDataViewCtrl& list);

} // namespace zy
