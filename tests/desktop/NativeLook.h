#pragma once

#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>

class wxChoice;
class wxDataViewCtrl;
class wxDialog;
class wxMessageDialog;
class wxTextCtrl;

namespace zy::test {

class Hands;

// What a test has to know or do that the toolkit has no call for and the window system below it does. Each
// system has one file of these. They are for the window's own thread.

/// Lets HandToWindow reach this thread, which is the window's.
void AwaitWork();
/// Has the window's thread do something between its events, whatever is open there. For any thread.
void HandToWindow(std::function<void()> work);

/// Whether the box is on the screen and has the keyboard.
bool HasKeyboard(const wxDialog& box);
/// How long after a second window has got the keyboard the first one can still get it back for a moment,
/// during which a press of the mouse is lost.
std::chrono::milliseconds UntilNewWindowKeepsKeyboard();
/// The title in the box's title bar.
std::string TitleOf(const wxMessageDialog& box);
/// The middle, on the screen, of the button that gives this answer: wxID_YES, wxID_NO or wxID_OK.
wxPoint ButtonOf(const wxMessageDialog& box, int answer);
/// Whether Enter gives this answer.
bool IsDefault(const wxMessageDialog& box, int answer);
/// Whether the box shows a picture beside its text.
bool HasPicture(const wxMessageDialog& box);
/// Whether Escape and the close box close it. Otherwise they do nothing.
bool CanBeCancelled(const wxMessageDialog& box);

/// Whether the choice's list has dropped down and gets the keys.
bool HasDroppedDown(const wxChoice& choice);
/// Whether a menu is open and gets the keys.
bool IsMenuOpen();
/// Whether the arrow keys stop at a menu's disabled entries too, from where Enter chooses nothing.
bool KeysStopAtDisabledEntries();
/// What a box shows in place of each of its characters; nothing when it shows the characters themselves.
std::optional<wxUniChar> PasswordCharacterOf(const wxTextCtrl& box);

/// Whether a line of text has room for all of it.
bool ShowsWholeText(const wxTextCtrl& box);

/// The tooltip that is shown; none when none is.
std::optional<std::string> TipOnScreen();

/// The colour of the text in the headers of a list.
wxColour HeaderColourOf(wxDataViewCtrl& list);

/// What another program would paste.
wxString TextOnClipboard();

/// Types a character as a keyboard does that has it. For the script's thread.
void TypeForeign(wxUniChar character);
/// Types a character as a user does whose keyboard lacks it.
void TypeComposed(wxUniChar character);

/// Presses the key that asks for a context menu. For the script's thread.
void PressMenuKey();
/// Turns the mouse wheel towards the user, over whatever lies under the mouse. For the script's thread.
void TurnWheel();

/// Drags a window's title or border, in a way that a window manager with much to do can follow. For the
/// script's thread.
void DragBorder(Hands& hands, const wxPoint& from, const wxPoint& to);

} // namespace zy::test
