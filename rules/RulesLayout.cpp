#include "rules/RulesLayout.h"

#include <algorithm>
#include <initializer_list>

#include "shell/PageLayout.h"

namespace zy {
namespace {

constexpr int kColumnGap = 240; // between two fields of a row
constexpr int kButtonHeight = 375;
constexpr int kFieldHeight = 315;
constexpr int kShortField = 900; // a code or a count
constexpr int kLeastDescription = 1500;
constexpr int kLeastListWidth = 4500;

using Controls = std::initializer_list<const Control*>;

int Widest(Controls controls, int least) {
    for (const auto* control : controls) {
        least = std::max(least, control->Preferred().width);
    }
    return least;
}

int Tallest(Controls controls, int least) {
    for (const auto* control : controls) {
        least = std::max(least, control->Preferred().height);
    }
    return least;
}

int FieldHeight(const RulesControls& c) {
    return Tallest({&c.txtCode, &c.txtMin, &c.txtMax, &c.cboCondition, &c.cboZone, &c.txtDescription},
                   kFieldHeight);
}

int LabelsWidth(const RulesControls& c) {
    return Widest({&c.lblCode, &c.lblCondition, &c.lblZone, &c.lblDescription}, 0);
}

Size LeastDetails(const RulesControls& c) {
    constexpr int kRows = 4;
    const int labels = LabelsWidth(c);
    const int besideCode = c.lblMin.Preferred().width + c.lblMax.Preferred().width;
    const int shortFields = 3 * (kGap + kShortField) + 2 * kColumnGap + besideCode;
    const int lists = kGap + Widest({&c.cboCondition, &c.cboZone}, 0);
    return {kGap + labels + std::max(shortFields, lists) + kGap,
            ContentTop(c.FraRuleDetails) + kRows * (FieldHeight(c) + kGap)};
}

/// The room to the right of the fields, down to the description; hidden where that is too small for a
/// picture.
void PlacePicture(RulesControls& c) {
    constexpr int kLeastWidth = 3900;
    constexpr int kLeastHeight = 900;
    const auto& needed = c.picRule.Preferred();
    const int left = c.cboZone.Bounds().Right() + kColumnGap;
    const int top = ContentTop(c.FraRuleDetails);
    const Rect room{left, top, c.FraRuleDetails.Bounds().width - kGap - left,
                    c.txtDescription.Bounds().top - kGap - top};
    const bool fits = room.width >= std::max(needed.width, kLeastWidth) &&
                      room.height >= std::max(needed.height, kLeastHeight);
    if (fits) {
        c.picRule.SetBounds(room);
    }
    c.picRule.SetVisible(fits);
}

Size ButtonSize(const RulesControls& c) {
    const Controls buttons{&c.cmdAddList, &c.cmdDeleteList, &c.cmdSaveRules, &c.cmdHelpRules};
    return {Widest(buttons, CommandButton::kUsualWidth), Tallest(buttons, kButtonHeight)};
}

Size ArrowsSize(const RulesControls& c) {
    const int button = ButtonSize(c).height;
    return {Widest({&c.cmdUpDown}, button), Tallest({&c.cmdUpDown}, 2 * button)};
}

Size LeastList(const RulesControls& c) {
    constexpr int kButtons = 4;
    const Size button = ButtonSize(c);
    return {kGap + kLeastListWidth + kColumnGap + button.width + kGap,
            ContentTop(c.fraRulesList) + ArrowsSize(c).height + kGap + kButtons * (button.height + kGap) +
                kGap};
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

/// Places the buttons from that line down.
void PlaceButtons(RulesControls& c, int left, int top) {
    const Size button = ButtonSize(c);
    const Size arrows = ArrowsSize(c);
    c.cmdUpDown.SetBounds({left + (button.width - arrows.width) / 2, top, arrows.width, arrows.height});
    top += arrows.height + 2 * kGap;
    for (auto* each : {&c.cmdAddList, &c.cmdDeleteList, &c.cmdSaveRules, &c.cmdHelpRules}) {
        each->SetBounds({left, top, button.width, button.height});
        top += button.height + kGap;
    }
}

/// Gives the last column what the others leave of the list's width.
} // namespace

Size LeastRulesPage(const RulesControls& c) {
    const Size list = LeastList(c);
    const Size details = LeastDetails(c);
    return {std::max(list.width, details.width) + 2 * kPageMargin,
            list.height + kGap + details.height + 2 * kPageMargin};
}

void LayOutRuleFrames(RulesControls& c, const Size& page) {
    const int width = std::max(page.width - 2 * kPageMargin, 0);
    const int height = std::max(page.height - 2 * kPageMargin, 0);
    const int details = LeastDetails(c).height;
    const int list = std::max(height - kGap - details, 0);
    c.fraRulesList.SetBounds({kPageMargin, kPageMargin, width, list});
    c.FraRuleDetails.SetBounds({kPageMargin, kPageMargin + list + kGap, width, details});
    c.fraGridMode.SetBounds({kPageMargin, kPageMargin, width, height});

    const int top = ContentTop(c.fraGridMode);
    c.grdRules.SetBounds({kGap, top, std::max(width - 2 * kGap, 0), std::max(height - top - kGap, 0)});
}

void LayOutRuleList(RulesControls& c) {
    const auto& frame = c.fraRulesList.Bounds();
    const int top = ContentTop(c.fraRulesList);
    const int buttonsLeft = frame.width - kGap - ButtonSize(c).width;
    PlaceButtons(c, buttonsLeft, top);
    c.lstRulesList.SetBounds(
        {kGap, top, std::max(buttonsLeft - kColumnGap - kGap, 0), std::max(frame.height - top - kGap, 0)});
    FillWithLastColumn(c.lstRulesList, kLeastDescription);
}

void LayOutRuleDetails(RulesControls& c) {
    const int height = FieldHeight(c);
    const int right = c.FraRuleDetails.Bounds().width - kGap;
    const int labels = LabelsWidth(c);
    const int fields = kGap + labels + kGap;
    int top = ContentTop(c.FraRuleDetails);

    int left = fields;
    const auto placeShort = [&](Label& label, TextBox& box, int labelLeft) {
        const int labelWidth = labelLeft == kGap ? labels : label.Preferred().width;
        PlaceLabel(label, labelLeft, top, height, labelWidth);
        left = labelLeft + labelWidth + kGap;
        PlaceField(box, left, top, height, kShortField);
        left = box.Bounds().Right() + kColumnGap;
    };
    placeShort(c.lblCode, c.txtCode, kGap);
    placeShort(c.lblMin, c.txtMin, left);
    placeShort(c.lblMax, c.txtMax, left);

    const auto placeLong = [&](Label& label, Control& field, int width) {
        top += height + kGap;
        PlaceLabel(label, kGap, top, height, labels);
        PlaceField(field, fields, top, height, std::min(width, right - fields));
    };
    const int listWidth = Widest({&c.cboCondition, &c.cboZone}, 0);
    placeLong(c.lblCondition, c.cboCondition, std::max(listWidth, c.txtMax.Bounds().Right() - fields));
    placeLong(c.lblZone, c.cboZone, std::max(listWidth, c.txtMax.Bounds().Right() - fields));
    placeLong(c.lblDescription, c.txtDescription, right - fields);
    PlacePicture(c);
}

} // namespace zy
