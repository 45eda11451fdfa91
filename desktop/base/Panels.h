#pragma once

class wxPanel;
class wxScrolledWindow;
class wxStaticBox;
class wxStaticText;
class wxString;
class wxWindow;

namespace zy {

// The panels of a window, one in the other. Each system has one file of these.

/// The panel that fills a window. An access key finds its control in all of it, wherever the focus is.
wxPanel* MakeOuterPanel(wxWindow& window);

/// Lets the bars of a window that can be scrolled be seen all the time, beside what is scrolled.
void KeepScrollBarsInSight(wxScrolledWindow& window);

/// A panel in another one, and a box with a caption.
wxPanel* MakeInnerPanel(wxWindow& parent);
wxStaticBox* MakeInnerBox(wxWindow& parent, const wxString& caption);
/// A text that stands for itself. To a screen reader it names no control.
wxStaticText* MakePlainText(wxWindow& parent, const wxString& text);

} // namespace zy
