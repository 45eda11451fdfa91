#include "shell/frmVersions.h"

#include <utility>

#include "shell/ListDialogLayout.h"

namespace zy {
namespace {

std::string InCapitals(std::string_view noun) {
    std::string word(noun);
    word.front() = static_cast<char>(word.front() - 'a' + 'A');
    return word + "s";
}

} // namespace

frmVersions::frmVersions(const ListRecords& records, const std::string& text, int versions, Source source)
    : Form("frmVersions"), lblText(this, "lblText"), fraVersions(this, "fraVersions", "Earlier Versions"),
      lstVersions(&fraVersions, "lstVersions", {{"Replaced", 4000}, {InCapitals(records.Noun()), 2000}},
                  [this](int item, int column) -> std::string_view {
                      const auto& line = LineOf(item);
                      return column == 0 ? line.time : line.records;
                  }),
      fraChanges(this, "fraChanges", "What Restore Would Change"),
      lstChanges(&fraChanges, "lstChanges", RecordChanges::Columns(records, "Now", "Restored"),
                 [this](int item, int column) { return changes_.Text(item, column); }),
      cmdRestore(this, "cmdRestore", "Restore", 'R'), cmdClose(this, "cmdClose", "Close", 'C'),
      source_(std::move(source)), lines_(static_cast<std::size_t>(versions)) {
    SetCaption("ZY Setup - Earlier Versions");
    leastInnerSize = [] { return ListDialogLayout::Least(); };
    lblText.SetCaption(text);
    SetKeyButtons(&cmdClose, &cmdClose);
    resize.Connect([this] { Form_Resize(); });
    lstVersions.itemClick.Connect([this](int) { lstVersions_ItemClick(); });
    cmdClose.click.Connect([this] { SetVisible(false); });
    cmdRestore.click.Connect([this] {
        chosen_ = lstVersions.Selected();
        SetVisible(false);
    });
    lstVersions.Refill(versions);
    lstVersions.Select(versions == 0 ? 0 : 1);
    lstVersions_ItemClick();
    (versions == 0 ? static_cast<Control&>(cmdClose) : lstVersions).SetFocus();
}

const frmVersions::Line& frmVersions::LineOf(int version) {
    auto& line = lines_.at(static_cast<std::size_t>(version) - 1);
    if (line.time.empty()) {
        line = source_.line(version);
    }
    return line;
}

void frmVersions::Form_Resize() {
    ListDialogLayout layout(*this);
    layout.Add(lblText);
    layout.Add({&cmdRestore, &cmdClose});
    const auto rooms = layout.Rooms(2);
    PlaceList(fraVersions, lstVersions, rooms.front());
    PlaceList(fraChanges, lstChanges, rooms.back());
}

void frmVersions::lstVersions_ItemClick() {
    changes_ = lstVersions.Selected() == 0 ? RecordChanges() : source_.changes(lstVersions.Selected());
    lstChanges.Refill(changes_.Count());
    cmdRestore.SetEnabled(changes_.Count() != 0);
}

} // namespace zy
