#include <wx/dialog.h>

#include "UnitsWindow.h"
#include "units/UnitsFileText.h"

namespace zy::test {
namespace {

constexpr auto kTheirs = "Kilogrammes,kg\r\nMetres,m\r\nSeconds,s\r\n";
constexpr auto kMerge = "frmMerge";
constexpr auto kChanges = "frmChanges";
constexpr auto kVersions = "frmVersions";

/// The units editor in its window, whose file another program changes.
class ChangesByOthersWindow : public UnitsWindow {
  protected:
    ChangesByOthersWindow() { PutUnits(ThreeUnits()); }

    void ChangeFile() {
        InWindow([&] { world.files.Put(R"(C:\SYS\ZYUNITS.SYS)", kTheirs); });
    }
    /// As if the user had been in another program meanwhile.
    void ComeBack() {
        InWindow([&] {
            wxActivateEvent comes(wxEVT_ACTIVATE, true);
            RealFrame().GetEventHandler()->ProcessEvent(comes);
        });
        WaitUntil("the notice is shown", [&] { return program->form.fraNotice.Visible(); });
    }
    void EditDescription(int row, const std::string& text) {
        InWindow([&] { grid().selection.Select(row, kUnitDescription); });
        Type(text);
        Press(WXK_RETURN);
    }
    void OpenFromEdit(char key, const std::string& dialog) {
        Press('E', wxMOD_ALT);
        WaitForMenu();
        Press(key);
        WaitForDialog(dialog);
    }
    std::string Unit(int row) {
        return InWindow([&] { return std::string(grid().cells.Text(row, kUnitDescription)); });
    }
    static wxRect PlaceOnScreen(const std::string& control) {
        return InWindow([&] { return RealNamed(control).GetScreenRect(); });
    }
};

TEST_F(ChangesByOthersWindow, ShowsItsNoticeInTheStatusBarWithoutMovingAnythingOrTheKeyboard) {
    Play([&] {
        WaitForFocus(grid());
        const auto before = PlaceOnScreen("grdUnits");
        ChangeFile();
        ComeBack();
        const auto bar = InWindow([] { return RealFrame().GetStatusBar()->GetScreenRect(); });
        for (const auto* part : {"lblNotice", "lblShow", "lblLoad", "lblIgnore"}) {
            const auto place = PlaceOnScreen(part);
            EXPECT_TRUE(bar.Contains(place)) << part;
            const auto best = InWindow([&] { return RealNamed(part).GetBestSize(); });
            EXPECT_GE(place.width, best.x) << part;
        }
        EXPECT_EQ(PlaceOnScreen("grdUnits"), before);
        WaitForFocus(grid());
    });
}

TEST_F(ChangesByOthersWindow, F6AndEnterShowTheChangeAndEscapeLeavesIt) {
    Play([&] {
        WaitForFocus(grid());
        ChangeFile();
        ComeBack();
        Press(WXK_F6);
        WaitForFocus(program->form.lblShow);
        Press(WXK_RETURN);
        WaitForDialog(kMerge);
        ExpectRoomForEveryPart(kMerge);
        Press(WXK_ESCAPE);
        WaitForWindow();
        Press(WXK_F6);
        WaitForFocus(grid());
        EXPECT_EQ(Unit(1), "Kilograms");
    });
}

TEST_F(ChangesByOthersWindow, TabGoesOnFromLinkToLinkAndLoadTakesTheFile) {
    Play([&] {
        WaitForFocus(grid());
        ChangeFile();
        ComeBack();
        Press(WXK_F6);
        WaitForFocus(program->form.lblShow);
        Press(WXK_TAB);
        WaitForFocus(program->form.lblLoad);
        Press(WXK_RETURN);
        WaitForFocus(grid());
        EXPECT_EQ(Unit(1), "Kilogrammes");
        EXPECT_FALSE(InWindow([&] { return program->form.fraNotice.Visible(); }));
    });
}

TEST_F(ChangesByOthersWindow, AClickOnIgnoreTakesTheNoticeAway) {
    Play([&] {
        WaitForFocus(grid());
        ChangeFile();
        ComeBack();
        Click(program->form.lblIgnore);
        WaitUntil("the notice is gone", [&] { return !program->form.fraNotice.Visible(); });
        EXPECT_EQ(Unit(1), "Kilograms");
    });
}

TEST_F(ChangesByOthersWindow, ASaveMergesByEnterAlone) {
    Play([&] {
        WaitForFocus(grid());
        EditDescription(3, "Hours");
        WaitUntil("the edit is done", [&] { return grid().cells.Text(3, kUnitDescription) == "Hours"; });
        ChangeFile();
        Press('S', wxMOD_CONTROL);
        WaitForDialog(kMerge);
        Press(WXK_RETURN);
        WaitForWindow();
        WaitForStatus("Saved");
        EXPECT_EQ(InWindow([&] { return File(); }), "Kilogrammes,kg\r\nMetres,m\r\nHours,s\r\n");
    });
}

TEST_F(ChangesByOthersWindow, TheUnsavedChangesCanBeTakenBackByKeys) {
    Play([&] {
        WaitForFocus(grid());
        EditDescription(3, "Hours");
        WaitUntil("the edit is done", [&] { return grid().cells.Text(3, kUnitDescription) == "Hours"; });
        OpenFromEdit('N', kChanges);
        ExpectRoomForEveryPart(kChanges);
        Press('R', wxMOD_ALT);
        Press('R', wxMOD_ALT);
        WaitUntil("it is as the file has it",
                  [&] { return grid().cells.Text(3, kUnitDescription) == "Seconds"; });
        Press(WXK_ESCAPE);
        WaitForWindow();
    });
}

TEST_F(ChangesByOthersWindow, TheRowThatIsPickedInABoxIsTheOneThatItsButtonTakes) {
    Play([&] {
        WaitForFocus(grid());
        EditDescription(3, "Hours");
        WaitUntil("the edit is done", [&] { return grid().cells.Text(3, kUnitDescription) == "Hours"; });
        OpenFromEdit('N', kChanges);
        WaitForFocusIn("lstChanges");
        Press(WXK_DOWN); // from what was removed to what was added
        Press('R', wxMOD_ALT);
        WaitUntil("what was added is gone", [&] { return grid().cells.Rows() == 3; });
        Press(WXK_ESCAPE);
        WaitForWindow();
    });
}

TEST_F(ChangesByOthersWindow, AnEarlierVersionComesBackByKeys) {
    Play([&] {
        WaitForFocus(grid());
        EditDescription(3, "Hours");
        Press('S', wxMOD_CONTROL);
        WaitForStatus("Saved");
        OpenFromEdit('E', kVersions);
        ExpectRoomForEveryPart(kVersions);
        Press('R', wxMOD_ALT);
        WaitForWindow();
        WaitUntil("it is as it was", [&] { return grid().cells.Text(3, kUnitDescription) == "Seconds"; });
    });
}

TEST_F(ChangesByOthersWindow, ItsBoxesGrowWithTheListInThem) {
    Play([&] {
        WaitForFocus(grid());
        OpenFromEdit('N', kChanges);
        const auto before = PlaceOnScreen("lstChanges").height;
        const auto close = PlaceOnScreen("cmdClose");
        InWindow([&] {
            auto* dialog = RealDialog(kChanges);
            dialog->SetSize(dialog->GetSize() + wxSize(60, 80));
        });
        WaitUntil("the list is taller",
                  [&] { return RealNamed("lstChanges").GetScreenRect().height >= before + 70; });
        EXPECT_NE(PlaceOnScreen("cmdClose"), close);
        ExpectRoomForEveryPart(kChanges);
        Press(WXK_ESCAPE);
        WaitForWindow();
    });
}

} // namespace
} // namespace zy::test
