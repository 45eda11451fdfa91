#include "desktop/GridContent.h"

#include "basics/Text.h"
#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

std::string CountedIfMore(int count, std::string_view noun) {
    return count > 1 ? Counted(static_cast<std::size_t>(count), noun) : std::string();
}

} // namespace

bool GridContent::Has(const Cell& cell) const {
    return grid_.HasCell(cell) && cell.row < model_.cells.Rows();
}

wxString GridContent::Name() const {
    return ToShown(context_.codePage, model_.Caption());
}

wxString GridContent::Text(const Cell& cell) const {
    if (!Has(cell)) {
        return {};
    }
    return cell.row == 0 ? grid_.GetColLabelValue(cell.column)
                         : grid_.GetCellValue(cell.row - 1, cell.column);
}

wxString GridContent::Description(const Cell& cell) const {
    if (!Has(cell) || cell.row == 0) {
        return {};
    }
    std::string text = model_.cells.Text(cell.row, cell.column).empty() ? "empty" : "";
    Join(text, "; ", DescribeChoices(cell));
    Join(text, "; ", cell == Current() ? DescribeBlock() : std::string());
    return ToShown(context_.codePage, text);
}

bool GridContent::HasChoices(const Cell& cell) const {
    return Has(cell) && cell.row > 0 && model_.columns.List(cell.column).HasItems();
}

std::string GridContent::DescribeChoices(const Cell& cell) const {
    std::string choices;
    for (const auto& item : model_.columns.List(cell.column).Items()) {
        Join(choices, ", ", Trim(item));
    }
    return choices.empty() ? choices : "list of " + choices;
}

std::string GridContent::DescribeBlock() const {
    const auto [first, last] = Selected();
    std::string text = CountedIfMore(last.row - first.row + 1, "row");
    Join(text, ", ", CountedIfMore(last.column - first.column + 1, "column"));
    return text.empty() ? text : text + " selected";
}

Cell GridContent::Current() const {
    return Has(model_.selection.Current()) ? model_.selection.Current() : Cell();
}

CellRange GridContent::Selected() const {
    return Current().row < 1 ? CellRange{.first = {.row = 1}, .last = {.row = 0}} : model_.selection.Block();
}

void GridContent::Pick(const Cell& cell) {
    context_.gate.ActLater([this, cell] {
        if (Has(cell)) {
            model_.Pick(cell.row, cell.column);
        }
        return model_.HasFocus();
    });
}

void GridContent::Open(const Cell& cell) {
    Pick(cell);
    context_.gate.ActLater([this, cell] {
        if (Current() == cell) {
            model_.OpenEditor();
            // A list that drops down keeps the keyboard until it is closed again: first the editor is shown.
            grid_.CallAfter([this] { editor_.DropList(); });
        }
        return true;
    });
}

} // namespace zy
