#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <functional>

class wxButton;
class wxChoice;
class wxDataViewColumn;
class wxDataViewCtrl;
class wxEvtHandler;
class wxFileDialog;
class wxHyperlinkCtrl;
class wxKeyEvent;
class wxStaticBox;
class wxTextCtrl;
class wxTopLevelWindow;
class wxTreeCtrl;
class wxWindow;

namespace zy {

// What the toolkit has no call for and the window system below it does. Each system has one file of these.

/// Whether there is any font that text can be shown with, once the toolkit runs.
bool HasFont();

/// The pixels in an inch of text, as the user's settings make it.
double DotsPerInch();
/// The same where a window stands: screens may differ.
double DotsPerInch(const wxWindow& window);
/// Calls `changed` when a window has come to a screen where that is different, before it gets its size there.
void ObserveDotsPerInch(wxWindow& window, std::function<void()> changed);

/// Has the toolkit find out, before the first window is made, how wide the borders of windows are. Otherwise
/// it learns of them when the window is on the screen and adds them to its size, so that a window whose size
/// is stored would grow from run to run.
void LearnBorders();

/// Has the name in a dialog that asks where to save take the ending of the kind of file that is chosen there.
void LetNameFollowKind(wxFileDialog& dialog);
/// Has such a dialog, which was answered and is about to go, look at what was typed no more.
void StopWatchingName(wxFileDialog& dialog);

/// Runs work that may wait for the user, in a message box or a menu, once the event at hand is done; not any
/// more when its owner is gone by then. The toolkit's CallAfter may run it while the event loop is only just
/// taking up the next event, which would not be done before the user has answered.
void RunBehindEvent(wxEvtHandler& owner, const std::function<void()>& work);

/// The name by which a screen reader calls a control that shows no text of its own.
void SetAccessibleName(wxWindow& window, const wxString& name);
/// The name of a tree. One that the toolkit paints is to a screen reader the entry that is selected in it.
void SetAccessibleTreeName(wxTreeCtrl& tree, const wxString& name);
/// What there is to know of a control beside its name.
void SetAccessibleDescription(wxWindow& window, const wxString& description);

/// What a screen reader calls a window by, where the window system does not know it.
enum class AccessibleRole : char { Dialog, StatusBar, Notice, Link, Calendar, Picture };
void SetAccessibleRole(wxWindow& window, AccessibleRole role);
/// Has a screen reader that listens say a notice, which has just got its text as its name.
void AnnounceNotice(wxWindow& notice);

/// Has assistive technology learn that a line of text has got the focus before it learns where the caret
/// stands in it, for all lines of text of the program. The other way round it says the text without the name.
void TellFocusFirst();

/// Has a menu, or a list that should drop down, leave the keys and clicks to its window when it cannot open
/// because somebody else has the mouse, in all windows of the program. That happens in a double click, while
/// the window manager looks at its second half.
void CloseMenusThatFailed();

/// Keeps the toolkit from offering pictures of faces where a text is typed. No file can hold them, and where
/// somebody else has the mouse, the window in which they are chosen takes all keys and clicks unseen.
void OfferNoEmoji();

/// Has the mark of the control that has the keyboard, and the headers of lists, stand out well in all windows
/// of the program and in whatever colours the user has.
void StrengthenFaintColours();

/// Gives a window that is not shown yet its size, down to its last control.
void LayOutUnseen(wxTopLevelWindow& window);

/// The inside of a box.
struct BoxInside {
    /// The place in the box that the window system counts its controls' places from.
    wxPoint origin;
    /// The height that caption and border take at the top.
    int above = 0;
};
BoxInside InsideOf(wxStaticBox& box);

/// Calls `moved` whenever the focus of a window goes from one of its controls to another, for the window's
/// whole life. That another window becomes the active one moves no focus.
void ObserveFocus(wxWindow& window, std::function<void()> moved);
/// Whether the focus of its window is in this control.
bool HoldsFocus(const wxWindow& control);

/// Calls `pressed` whenever a button of the mouse goes down in a window, before anything else learns of it,
/// for the window's whole life. A control that is disabled makes no difference.
void ObserveMousePress(wxWindow& window, std::function<void()> pressed);

/// Has the menu bar of a window take Alt for itself only where no other key went down with it, also when a
/// control has taken that key.
void KeepMenuBarClosed(wxWindow& window);

/// Lets a button be pressed by the mouse alone, without taking the focus from where it is.
void KeepFocusAway(wxButton& button);
/// Goes on with an access key, such as Alt+S, when the control that had the keyboard has been taken out of
/// its window meanwhile.
void HandOnAccessKey(wxWindow& window, wxKeyEvent& event);
/// The style of a line of text that gets Tab and Enter itself, in place of the window around it.
long EveryKeyStyle();

/// Gives a link the colour that the system has for links, where that can be read, and no more room than its
/// text takes.
void DressLink(wxHyperlinkCtrl& link);

/// Lets a line of text take the whole of what is pasted, on one line.
void TakeLineEnds(wxTextCtrl& box);

/// Lets the arrow keys move through a long text as quickly as through a short one.
void MoveQuickly(wxTextCtrl& box);

/// Gets the list that drops down ready.
void PrepareDropDown(const wxChoice& choice);
/// Closes the list that has dropped down; nothing when none has.
void CloseDropDown(const wxChoice& choice);

/// Lets a link that has the keyboard be followed by Enter, too.
void FollowByEnter(wxHyperlinkCtrl& link, const std::function<void()>& follow);

/// Lets the mouse wheel over a list that is not dropped down leave the chosen item alone.
void IgnoreWheelWhileClosed(wxChoice& choice);

/// The digit that a key bears whatever layout the keyboard has and whether or not it takes Shift to type it;
/// NUL for other keys.
char DigitOn(const wxKeyEvent& event);

/// Shows one character in place of each one that a password box holds.
void SetPasswordCharacter(wxTextCtrl& box, char character);

/// Lets a column's header be no button, which Tab would stop at. The column can be resized as before.
void MakeHeaderPlain(wxDataViewColumn& column);

/// The part of a list that gets its keys.
wxWindow& KeyboardPart(wxDataViewCtrl& list);
/// Makes a row current for the keyboard and the selection, and scrolls it into view.
void GoToRow(wxDataViewCtrl& list, int row);

} // namespace zy
