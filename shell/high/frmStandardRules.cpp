#include "shell/frmStandardRules.h"

#include <algorithm>
#include <utility>

#include "rules/RuleDrawing.h"
#include "rules/RulePicture.h"
#include "shell/ListDialogLayout.h"
#include "shell/PageLayout.h"

namespace zy {
namespace {

constexpr auto kExplanation = "The rules are added at the end of the list. Your charts have to\r\n"
                              "show control limits (UCL, LCL) at 3 SD and warning limits\r\n"
                              "(UWL, LWL) at 2 SD.";

std::string SourceOf(const StandardSet& set) {
    return "Source: " + std::string(set.source);
}

std::vector<ListView::Column> RuleColumns() {
    constexpr int kNarrow = 750; // the first one has a longer header
    std::vector<ListView::Column> columns;
    for (const auto& field : kRuleFields) {
        const int width = columns.empty() ? field.listWidth : std::min(field.listWidth, kNarrow);
        columns.push_back({std::string(field.listHeader), width});
    }
    return columns;
}

const StandardSet& SetOf(int item) {
    return StandardSets()[static_cast<std::size_t>(item) - 1];
}

} // namespace

frmStandardRules::frmStandardRules(const RuleList& list, const CodePage& codePage)
    : Form("frmStandardRules"), lblText(this, "lblText"), lblSource(this, "lblSource"),
      fraSets(this, "fraSets", "Sets"),
      lstSets(&fraSets, "lstSets", {{"Set", 2600}}, [](int item, int) { return SetOf(item).name; }),
      fraSetRules(this, "fraSetRules", "Rules of the Set"),
      lstSetRules(&fraSetRules, "lstSetRules", RuleColumns(),
                  [this](int item, int column) -> std::string_view {
                      return Offered(item).rule.*PropertyIn(column);
                  }),
      picRule(this, "picRule", "Picture of the rule"), cmdInsertSet(this, "cmdInsertSet", "Insert Set", 'S'),
      cmdInsertRule(this, "cmdInsertRule", "Insert Rule", 'R'), cmdCancel(this, "cmdCancel", "Cancel", 'C'),
      list_(list), codePage_(codePage) {
    SetCaption("ZY Setup - Standard Rules");
    leastInnerSize = [] { return ListDialogLayout::Least(); };
    lblText.SetCaption(kExplanation);
    SetKeyButtons(&cmdInsertSet, &cmdCancel);
    Connect();
    lstSets.Refill(static_cast<int>(StandardSets().size()));
    lstSets.Select(1);
    lstSets_ItemClick();
    lstSets.SetFocus();
}

void frmStandardRules::Connect() {
    resize.Connect([this] { Form_Resize(); });
    lstSets.itemClick.Connect([this](int) { lstSets_ItemClick(); });
    lstSetRules.itemClick.Connect([this](int) { lstSetRules_ItemClick(); });
    lstSetRules.isGrey = [this](int item) { return !Offered(item).whyNot.empty(); };
    cmdInsertSet.click.Connect([this] { End(offered_); });
    cmdInsertRule.click.Connect([this] { End({Offered(lstSetRules.Selected())}); });
    cmdCancel.click.Connect([this] { End({}); });
}

void frmStandardRules::Form_Resize() {
    constexpr int kSetsWidth = 3200;
    constexpr int kPictureHeight = 1900;
    constexpr int kUsualHeight = 8400;
    ListDialogLayout layout(*this, kUsualHeight);
    layout.Add(lblText);
    layout.Add(lblSource);
    layout.Add({&cmdInsertSet, &cmdInsertRule, &cmdCancel});
    const Rect room = layout.Rooms(1).front();
    const int height = std::max(kPictureHeight, picRule.Preferred().height);
    const Rect lists{room.left, room.top, room.width, std::max(room.height - height - kGap, 0)};
    PlaceList(fraSets, lstSets, {lists.left, lists.top, kSetsWidth, lists.height});
    const int left = lists.left + kSetsWidth + kGap;
    PlaceList(fraSetRules, lstSetRules, {left, lists.top, lists.Right() - left, lists.height});
    picRule.SetBounds({room.left, lists.Bottom() + kGap, room.width, height});
}

void frmStandardRules::lstSets_ItemClick() {
    const auto& set = SetOf(lstSets.Selected());
    lblSource.SetCaption(SourceOf(set));
    offered_ = RulesOf(set, list_, codePage_);
    lstSetRules.Refill(static_cast<int>(offered_.size()));
    lstSetRules.Select(1);
    lstSetRules_ItemClick();
}

void frmStandardRules::lstSetRules_ItemClick() {
    const auto& offered = Offered(lstSetRules.Selected());
    auto picture = PictureOf(offered.rule, '.');
    if (!offered.whyNot.empty()) {
        picture.sentence = offered.rule.Description;
    }
    Show(picRule, std::move(picture));
    cmdInsertRule.SetEnabled(offered.whyNot.empty());
}

void frmStandardRules::End(const std::vector<OfferedRule>& chosen) {
    for (const auto& offered : chosen) {
        if (offered.whyNot.empty()) {
            chosen_.push_back(offered.rule);
        }
    }
    SetVisible(false);
}

} // namespace zy
