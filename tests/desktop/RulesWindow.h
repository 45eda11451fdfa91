#pragma once

#include <optional>

#include "GridWindow.h"

class wxDataViewCtrl;

namespace zy::test {

/// The rules editor in its real window.
class RulesWindow : public GridWindow {
  protected:
    RulesWindow() : GridWindow("@RULES") {}

    /// Puts a rules file on the disk, each rule given as "code|min|max|cond|zone|description".
    void PutRules(const std::vector<std::string>& rules);
    /// Some rules that differ in all their fields.
    static std::vector<std::string> ThreeRules();
    static std::vector<std::string> ManyRules(int count);
    /// The bytes of a rules file.
    static std::string FileOf(const std::vector<std::string>& rules);
    std::optional<std::string> File() const { return world.files.Get(R"(C:\SYS\ZYRules.sys)"); }

    // What the user does.
    void ClickRow(int item) { hands->Click(PlaceOfRow(item)); }
    void ClickUp() { WindowTest::ClickUp(page().cmdUpDown); }
    void ClickDown() { WindowTest::ClickDown(page().cmdUpDown); }
    using GridWindow::Fill;
    /// Replaces the text of a box, as typed.
    void Fill(const TextBox& box, const std::string& text);
    /// Picks an item of a drop-down list with the mouse.
    void PickItem(const ComboBox& box, int index);

    // What the user sees.
    std::string TextIn(const TextBox& box);
    std::string ItemIn(const ComboBox& box);
    std::vector<std::string> Row(int item);
    int SelectedRow();
    bool IsRowVisible(int item);
    wxPoint PlaceOfRow(int item);
    /// The same once the list has scrolled as far as it goes.
    wxPoint PlaceAtRest(int item);

    void WaitForSelection(int item);

    /// The controls as the user reads them, and Tab goes. The arrows are one control with two stops.
    std::vector<const Control*> ControlsInOrder();

    /// The real list. For the window's thread.
    wxDataViewCtrl& RealList();

    RulesControls& page() { return program->rulesPage.controls; }
    Grid& grid() override { return page().grdRules; }

  private:
    wxPoint RealPlaceOfRow(int item);
};

} // namespace zy::test
