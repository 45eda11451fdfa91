#include "RulesWindow.h"

#include <wx/choice.h>
#include <wx/dataview.h>
#include <wx/textctrl.h>

#include "NativeLook.h"

namespace zy::test {
namespace {

std::vector<std::string> Split(const std::string& text) {
    std::vector<std::string> fields(1);
    for (const char character : text) {
        if (character == '|') {
            fields.emplace_back();
        } else {
            fields.back() += character;
        }
    }
    return fields;
}

} // namespace

void RulesWindow::PutRules(const std::vector<std::string>& rules) {
    world.files.Put(R"(C:\SYS\ZYRules.sys)", FileOf(rules));
}

std::vector<std::string> RulesWindow::ThreeRules() {
    return {"R1|1|2|>|UCL|First rule", "R2|3|4|<=|LWL|Second rule", "R3|5|6|=|-3S|Third rule"};
}

std::vector<std::string> RulesWindow::ManyRules(int count) {
    std::vector<std::string> rules;
    for (int i = 1; i <= count; ++i) {
        rules.push_back(std::to_string(i % 1000) + "|1|2|>|UCL|Rule number " + std::to_string(i));
    }
    return rules;
}

std::string RulesWindow::FileOf(const std::vector<std::string>& rules) {
    std::string text;
    for (const auto& rule : rules) {
        const auto fields = Split(rule);
        text += "[RULE]\r\n   CODE         = " + fields[0] + "\r\n   MIN          = " + fields[1] +
                "\r\n   MAX          = " + fields[2] + "\r\n   COND         = " + fields[3] +
                "\r\n   ZONE         = " + fields[4] + "\r\n   DESC1        = " + fields[5] +
                "\r\n   DESC2        = \r\n   DESC3        = \r\n";
    }
    return text;
}

void RulesWindow::Fill(const TextBox& box, const std::string& text) {
    Enter(box);
    Press('A', wxMOD_CONTROL);
    Press(WXK_DELETE);
    WaitUntil("the box is empty", [&] { return box.Text().empty(); });
    Type(text);
    WaitUntil("the box holds \"" + text + "\"", [&] { return box.Text() == text; });
}

void RulesWindow::PickItem(const ComboBox& box, int index) {
    Click(box);
    WaitUntil("the list has dropped down",
              [&] { return HasDroppedDown(dynamic_cast<wxChoice&>(Real(box))); });
    Press(WXK_HOME);
    for (int i = 0; i < index; ++i) {
        Press(WXK_DOWN);
    }
    Press(WXK_RETURN);
    WaitUntil("the item is picked", [&] { return box.ListIndex() == index; });
}

std::string RulesWindow::TextIn(const TextBox& box) {
    return InWindow([&] { return dynamic_cast<wxTextCtrl&>(Real(box)).GetValue().utf8_string(); });
}

std::string RulesWindow::ItemIn(const ComboBox& box) {
    return InWindow([&] { return dynamic_cast<wxChoice&>(Real(box)).GetStringSelection().utf8_string(); });
}

std::vector<std::string> RulesWindow::Row(int item) {
    return InWindow([&] {
        std::vector<std::string> cells;
        for (unsigned column = 0; column < RealList().GetColumnCount(); ++column) {
            wxVariant value;
            const auto& rows = static_cast<wxDataViewVirtualListModel&>(*RealList().GetModel());
            rows.GetValueByRow(value, static_cast<unsigned>(item - 1), column);
            cells.push_back(value.GetString().utf8_string());
        }
        return cells;
    });
}

int RulesWindow::SelectedRow() {
    return InWindow([&] {
        const auto selected = RealList().GetSelection();
        return selected.IsOk() ? static_cast<int>(wxPtrToUInt(selected.GetID())) : 0;
    });
}

bool RulesWindow::IsRowVisible(int item) {
    const auto place = PlaceOfRow(item);
    return InWindow([&] { return RealList().GetScreenRect().Contains(place); });
}

wxPoint RulesWindow::RealPlaceOfRow(int item) {
    const wxDataViewItem row(wxUIntToPtr(static_cast<unsigned>(item)));
    const wxRect place = RealList().GetItemRect(row, RealList().GetColumn(0));
    return RealList().ClientToScreen(wxPoint(place.x + place.width / 2, place.y + place.height / 2));
}

wxPoint RulesWindow::PlaceOfRow(int item) {
    return InWindow([&] { return RealPlaceOfRow(item); });
}

wxPoint RulesWindow::PlaceAtRest(int item) {
    wxPoint last;
    WaitUntil("the list stands still", [&] {
        const wxPoint before = last;
        last = RealPlaceOfRow(item);
        return last == before;
    });
    return last;
}

void RulesWindow::WaitForSelection(int item) {
    WaitUntil("row " + std::to_string(item) + " is selected", [&] {
        const auto selected = RealList().GetSelection();
        return page().lstRulesList.Selected() == item && selected.IsOk() &&
               wxPtrToUInt(selected.GetID()) == static_cast<unsigned>(item);
    });
}

std::vector<const Control*> RulesWindow::ControlsInOrder() {
    auto& c = page();
    return {&c.lstRulesList, &c.cmdUpDown,    &c.cmdUpDown,     &c.cmdAddList, &c.cmdDeleteList,
            &c.cmdSaveRules, &c.cmdHelpRules, &c.txtCode,       &c.txtMin,     &c.txtMax,
            &c.cboCondition, &c.cboZone,      &c.txtDescription};
}

wxDataViewCtrl& RulesWindow::RealList() {
    return dynamic_cast<wxDataViewCtrl&>(Real(page().lstRulesList));
}

} // namespace zy::test
