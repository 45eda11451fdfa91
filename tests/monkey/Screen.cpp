#include "Screen.h"

namespace zy::test {
namespace {

std::string RowOf(const ListView& list, int item) {
    std::string row;
    for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
        row.append(list.CellText(item, column)).append("|");
    }
    return row;
}

std::vector<std::string> RowsOf(const ListView& list) {
    std::vector<std::string> rows;
    for (int item = 1; item <= list.Count(); ++item) {
        rows.push_back(RowOf(list, item));
    }
    return rows;
}

std::vector<std::vector<std::string>> RowsOf(const Grid& grid) {
    std::vector<std::vector<std::string>> rows;
    for (int row = 0; row < grid.cells.Rows(); ++row) {
        auto& cells = rows.emplace_back();
        for (int column = 0; column < grid.cells.Columns(); ++column) {
            cells.emplace_back(grid.cells.Text(row, column));
        }
    }
    return rows;
}

std::string Looks(const Control& control) {
    return control.Caption() + (control.Enabled() ? ", enabled" : ", grey") +
           (control.Visible() ? "" : ", hidden");
}

} // namespace

Screen::Screen(Container& form, const std::vector<MenuItem*>& menus) {
    AddControl(form);
    Add(form);
    for (auto* menu : menus) {
        AddMenu(*menu);
    }
}

void Screen::Add(Container& container) {
    for (auto* child : container.Children()) {
        AddControl(*child);
        if (auto* inner = dynamic_cast<Container*>(child)) {
            Add(*inner);
        }
    }
}

Screen::Part& Screen::AddPart(const std::string& name, std::function<std::string()> now) {
    auto& part = parts_.emplace_back(Part{name, std::move(now), {}});
    part.shown = part.now();
    return part;
}

void Screen::AddMenu(MenuItem& menu) {
    for (auto* entry : menu.Entries()) {
        auto& part =
            AddPart(entry->Name(), [entry] { return entry->Caption() + (entry->Enabled() ? "" : ", grey"); });
        entry->captionChanged.Connect([&part] { part.shown = part.now(); });
        entry->enabledChanged.Connect([&part] { part.shown = part.now(); });
        AddMenu(*entry);
    }
}

void Screen::AddControl(Control& control) {
    auto& part = AddPart(control.Name(), [&control] { return Looks(control); });
    control.appearanceChanged.Connect([&part] { part.shown = part.now(); });
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        auto& text = AddPart(control.Name() + "'s text", [box] { return box->Text(); });
        box->change.Connect([&text] { text.shown = text.now(); });
    } else if (auto* bar = dynamic_cast<StatusBar*>(&control)) {
        auto& text = AddPart(control.Name() + "'s text", [bar] { return bar->Text(); });
        bar->change.Connect([&text] { text.shown = text.now(); });
    } else if (auto* list = dynamic_cast<ListView*>(&control)) {
        AddList(*list);
    } else if (auto* grid = dynamic_cast<Grid*>(&control)) {
        AddGrid(*grid);
    }
}

void Screen::AddList(ListView& list) {
    auto& shown = lists_.emplace_back(ListOnScreen{&list, RowsOf(list)});
    list.refilled.Connect([&shown] { shown.rows = RowsOf(*shown.list); });
    list.itemRemoved.Connect([&shown](int item) { shown.rows.erase(shown.rows.begin() + item - 1); });
    list.itemChanged.Connect(
        [&shown](int item) { shown.rows.at(static_cast<std::size_t>(item) - 1) = RowOf(*shown.list, item); });
}

void Screen::AddGrid(Grid& grid) {
    auto& shown = grids_.emplace_back(GridOnScreen{&grid, RowsOf(grid)});
    grid.cells.rowsChanged.Connect([&shown] { shown.rows = RowsOf(*shown.grid); });
    grid.cells.cellChanged.Connect([&shown](int row, int column) {
        // One that came just now is drawn when the rows are announced.
        if (row < static_cast<int>(shown.rows.size())) {
            shown.rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column)) =
                shown.grid->cells.Text(row, column);
        }
    });
}

std::string Screen::FirstOutdated() const {
    for (const auto& part : parts_) {
        if (part.shown != part.now()) {
            return part.name + ": shown is '" + part.shown + "', it is '" + part.now() + "'";
        }
    }
    for (const auto& shown : lists_) {
        if (shown.rows != RowsOf(*shown.list)) {
            return shown.list->Name() + ": other rows are shown than there are";
        }
    }
    for (const auto& shown : grids_) {
        if (shown.rows != RowsOf(*shown.grid)) {
            return shown.grid->Name() + ": other rows are shown than there are";
        }
    }
    return {};
}

} // namespace zy::test
