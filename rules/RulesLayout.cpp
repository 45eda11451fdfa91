#include "rules/RulesLayout.h"

#include <algorithm>
#include <initializer_list>

namespace zy {
namespace {

constexpr int kMargin = 120;       // round the frames
constexpr int kPad = 150;          // inside a frame
constexpr int kGap = 90;           // between controls that belong together
constexpr int kColumnGap = 240;    // between two fields of a row
constexpr int kButtonWidth = 1215; // the classic button
constexpr int kButtonHeight = 375;
constexpr int kFieldHeight = 315;
constexpr int kShortField = 900; // a code or a count
constexpr int kListBorder = 360; // the list's scroll bar and frame
constexpr int kLeastDescription = 1500;

int Widest(std::initializer_list<const Control*> controls) {
    int width = 0;
    for (const auto* control : controls) {
        width = std::max(width, control->Preferred().width);
    }
    return width;
}

int Tallest(std::initializer_list<const Control*> controls, int least) {
    for (const auto* control : controls) {
        least = std::max(least, control->Preferred().height);
    }
    return least;
}

int FieldHeight(const RulesControls& c) {
    return Tallest({&c.txtCode, &c.txtMin, &c.txtMax, &c.cboCondition, &c.cboZone, &c.txtDescription},
                   kFieldHeight);
}

/// Where the content of a frame begins, below its caption.
int ContentTop(const Frame& frame) {
    return frame.Preferred().height + kGap;
}

int DetailsHeight(const RulesControls& c) {
    constexpr int kRows = 4;
    return ContentTop(c.FraRuleDetails) + kRows * FieldHeight(c) + (kRows - 1) * kGap + kPad;
}

/// Puts a label in front of a row, centred on its height.
void PlaceLabel(Label& label, int left, int rowTop, int rowHeight, int width) {
    const int height = std::min(std::max(label.Preferred().height, 1), rowHeight);
    label.SetBounds({left, rowTop + (rowHeight - height) / 2, width, height});
}

void PlaceField(Control& field, int left, int rowTop, int rowHeight, int width) {
    const int height = std::min(std::max(field.Preferred().height, kFieldHeight), rowHeight);
    field.SetBounds({left, rowTop + (rowHeight - height) / 2, std::max(width, 0), height});
}

} // namespace

void LayOutRuleFrames(RulesControls& c, const Size& page) {
    const int width = std::max(page.width - 2 * kMargin, 0);
    const int details = DetailsHeight(c);
    const int list = std::max(page.height - details - 3 * kMargin, 0);
    c.fraRulesList.SetBounds({kMargin, kMargin, width, list});
    c.FraRuleDetails.SetBounds({kMargin, kMargin + list + kMargin, width, details});
    c.fraGridMode.SetBounds({kMargin, kMargin, width, std::max(page.height - 2 * kMargin, 0)});

    const auto& grid = c.fraGridMode.Bounds();
    const int top = ContentTop(c.fraGridMode);
    c.grdRules.SetBounds(
        {kPad, top, std::max(grid.width - 2 * kPad, 0), std::max(grid.height - top - kPad, 0)});
}

void LayOutRuleList(RulesControls& c) {
    const auto& frame = c.fraRulesList.Bounds();
    const int top = ContentTop(c.fraRulesList);
    const auto buttons = {&c.cmdAddList, &c.cmdDeleteList, &c.cmdSaveRules, &c.cmdHelpRules};

    int buttonWidth = kButtonWidth;
    int buttonHeight = kButtonHeight;
    for (const auto* button : buttons) {
        buttonWidth = std::max(buttonWidth, button->Preferred().width);
        buttonHeight = std::max(buttonHeight, button->Preferred().height);
    }
    const int buttonLeft = frame.width - kPad - buttonWidth;
    const int arrowsHeight = std::max(c.cmdUpDown.Preferred().height, 2 * buttonHeight);
    const int arrowsWidth = std::max(c.cmdUpDown.Preferred().width, buttonHeight);
    c.cmdUpDown.SetBounds({buttonLeft + (buttonWidth - arrowsWidth) / 2, top, arrowsWidth, arrowsHeight});
    int buttonTop = c.cmdUpDown.Bounds().Bottom() + 2 * kGap;
    for (auto* button : buttons) {
        button->SetBounds({buttonLeft, buttonTop, buttonWidth, buttonHeight});
        buttonTop += buttonHeight + kGap;
    }

    const int listWidth = std::max(buttonLeft - kColumnGap - kPad, 0);
    c.lstRulesList.SetBounds({kPad, top, listWidth, std::max(frame.height - top - kPad, 0)});
    int others = kListBorder;
    for (std::size_t column = 0; column + 1 < c.lstRulesList.Columns().size(); ++column) {
        others += c.lstRulesList.Columns()[column].width;
    }
    c.lstRulesList.SetColumnWidth(c.lstRulesList.Columns().size() - 1,
                                  std::max(listWidth - others, kLeastDescription));
}

void LayOutRuleDetails(RulesControls& c) {
    const int height = FieldHeight(c);
    const int right = c.FraRuleDetails.Bounds().width - kPad;
    const int labels = Widest({&c.lblCode, &c.lblCondition, &c.lblZone, &c.lblDescription});
    const int fields = kPad + labels + kGap;
    int top = ContentTop(c.FraRuleDetails);

    int left = fields;
    const auto placeShort = [&](Label& label, TextBox& box, int labelLeft) {
        const int labelWidth = labelLeft == kPad ? labels : label.Preferred().width;
        PlaceLabel(label, labelLeft, top, height, labelWidth);
        left = labelLeft + labelWidth + kGap;
        PlaceField(box, left, top, height, kShortField);
        left = box.Bounds().Right() + kColumnGap;
    };
    placeShort(c.lblCode, c.txtCode, kPad);
    placeShort(c.lblMin, c.txtMin, left);
    placeShort(c.lblMax, c.txtMax, left);

    const auto placeLong = [&](Label& label, Control& field, int width) {
        top += height + kGap;
        PlaceLabel(label, kPad, top, height, labels);
        PlaceField(field, fields, top, height, std::min(width, right - fields));
    };
    const int listWidth = Widest({&c.cboCondition, &c.cboZone});
    placeLong(c.lblCondition, c.cboCondition, std::max(listWidth, c.txtMax.Bounds().Right() - fields));
    placeLong(c.lblZone, c.cboZone, std::max(listWidth, c.txtMax.Bounds().Right() - fields));
    placeLong(c.lblDescription, c.txtDescription, right - fields);
}

} // namespace zy
