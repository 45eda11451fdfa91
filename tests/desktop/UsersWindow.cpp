#include "UsersWindow.h"

#include <wx/dialog.h>
#include <wx/grid.h>

#include "desktop/GtkFunctions.h"
#include "desktop/Native.h"
#include "desktop/ShownText.h"

extern "C" {
GtkWidget* gtk_grab_get_current();
}

namespace zy::test {

void UsersWindow::Fill(int row, int column, const std::string& text) {
    ClickCell(row, column);
    Type(text);
    WaitForEditor(text);
    Press(WXK_RETURN);
    WaitForText(row, column, text);
}

void UsersWindow::OpenMenuAt(const wxPoint& place) {
    hands->RightClick(place);
    WaitUntil("the menu is open", [] { return gtk_grab_get_current() != nullptr; });
}

void UsersWindow::ChooseFromMenu(int key) {
    Press(key);
    Press(WXK_RETURN);
    WaitUntil("the menu is closed", [] { return gtk_grab_get_current() == nullptr; });
}

void UsersWindow::WaitForDialog(const std::string& name) {
    WaitUntil(name + " is open", [&] {
        auto* dialog = RealDialog(name);
        return dialog != nullptr && dialog->IsShownOnScreen() && dialog->IsActive();
    });
}

void UsersWindow::WaitForNoDialog(const std::string& name) {
    WaitUntil(name + " is gone", [&] { return RealDialog(name) == nullptr; });
}

void UsersWindow::ClickIn(const std::string& control) {
    hands->Click(InWindow([&] {
        const auto place = RealNamed(control).GetScreenRect();
        return place.GetPosition() + place.GetSize() / 2;
    }));
}

void UsersWindow::WaitForFocusIn(const std::string& control) {
    WaitUntil(control + " has the focus", [&] { return HoldsFocus(RealNamed(control)); });
}

wxPoint UsersWindow::PlaceOfHeader() {
    return InWindow([&] {
        const auto place = RealGrid().GetGridColLabelWindow()->GetScreenRect();
        return place.GetPosition() + place.GetSize() / 2;
    });
}

wxWindow& UsersWindow::RealNamed(const std::string& name) {
    auto* window = wxWindow::FindWindowByName(ToShown(Windows1252(), name));
    if (window == nullptr) {
        throw GaveUp("No real control called " + name);
    }
    return *window;
}

wxDialog* UsersWindow::RealDialog(const std::string& name) {
    return dynamic_cast<wxDialog*>(wxWindow::FindWindowByName(ToShown(Windows1252(), name)));
}

} // namespace zy::test
