#include "Monkey.h"

#include <chrono>

#include "platform/CodePage.h"

namespace zy::test {
namespace {

/// As wide as they are on the paper in memory.
Lettering AnyLetters() {
    constexpr int kLetter = 100;
    return {2 * kLetter, [](std::string_view text) { return static_cast<int>(text.size()) * kLetter; }};
}

} // namespace

void Monkey::Collect(const Container& container, std::vector<Control*>& found) {
    for (Control* child : container.Children()) {
        if (const auto* inner = dynamic_cast<Container*>(child)) {
            Collect(*inner, found);
        } else if (child->IsUsable()) {
            found.push_back(child);
        }
    }
}

void Monkey::ActOn(Form& form) {
    constexpr int kSeldom = 30;
    if (chance_.OneIn(kSeldom)) {
        Resize(form);
        return;
    }
    std::vector<Control*> controls;
    Collect(form, controls);
    if (!controls.empty()) {
        Do(*chance_.Of(controls));
    }
}

void Monkey::Resize(Form& form) {
    constexpr int kMostTwips = 30000;
    form.SetState(static_cast<WindowState>(chance_.Below(3)));
    const Size size{chance_.Below(kMostTwips), chance_.Below(kMostTwips)};
    chance_.Note("size " + std::to_string(size.width) + " x " + std::to_string(size.height));
    form.SetInnerSize(size);
}

void Monkey::ChooseFrom(const MenuItem& menu) {
    if (menu.Entries().empty()) {
        return;
    }
    MenuItem& entry = *chance_.Of(menu.Entries());
    if (!entry.Entries().empty()) {
        ChooseFrom(entry);
    } else if (!entry.IsSeparator()) {
        chance_.Note("menu " + entry.Name());
        entry.Click();
    }
}

void Monkey::Do(Control& control) {
    chance_.Note(control.Window().Name() + "." + control.Name());
    if (auto* button = dynamic_cast<CommandButton*>(&control)) {
        button->Click();
    } else if (auto* box = dynamic_cast<TextBox*>(&control)) {
        DoTo(*box);
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        combo->Pick(chance_.Below(static_cast<int>(combo->Items().size())));
    } else if (auto* list = dynamic_cast<ListView*>(&control)) {
        DoTo(*list);
    } else if (auto* grid = dynamic_cast<Grid*>(&control)) {
        DoTo(*grid);
    } else if (auto* arrows = dynamic_cast<UpDown*>(&control)) {
        chance_.OneIn(2) ? arrows->PressUp() : arrows->PressDown();
    } else if (auto* link = dynamic_cast<LinkLabel*>(&control)) {
        link->Click();
    } else if (auto* calendar = dynamic_cast<MonthCalendar*>(&control)) {
        DoTo(*calendar);
    } else if (auto* picture = dynamic_cast<DrawingBox*>(&control)) {
        constexpr int kMostTwips = 9000;
        picture->DrawingIn({chance_.Below(kMostTwips), chance_.Below(kMostTwips)}, AnyLetters());
    }
}

void Monkey::DoTo(TextBox& box) {
    const auto size = static_cast<int>(box.Text().size());
    switch (chance_.Below(4)) {
    case 0:
        box.TakeFocus();
        box.Select(static_cast<std::size_t>(chance_.Below(size + 1)),
                   static_cast<std::size_t>(chance_.Below(5)));
        break;
    case 1:
        box.Enter(chance_.Line());
        break;
    default:
        box.Type(chance_.Line());
    }
}

void Monkey::DoTo(ListView& list) {
    switch (chance_.Below(4)) {
    case 0:
        list.Press(AnyKey());
        break;
    case 1:
        list.AskForMenu();
        static_cast<void>(list.Copy());
        break;
    default:
        if (list.Count() > 0) {
            list.Pick(1 + chance_.Below(list.Count()));
        }
    }
}

void Monkey::DoTo(Grid& grid) {
    const int rows = grid.cells.Rows();
    const int columns = grid.cells.Columns();
    switch (chance_.Below(10)) {
    case 0:
    case 1:
        grid.Press(AnyKey());
        break;
    case 2:
        TypeOver(grid);
        break;
    case 3:
        grid.OpenEditor();
        break;
    case 4:
        grid.PressMouse(chance_.OneIn(2) ? MouseButton::Right : MouseButton::Left,
                        chance_.Below(rows + 1) - 1, chance_.Below(columns + 1) - 1);
        break;
    case 5:
        if (grid.TakeFocus() && grid.selection.IsInData()) {
            grid.selection.SelectTo(1 + chance_.Below(rows - 1), chance_.Below(columns));
        }
        break;
    case 6:
        chance_.OneIn(4) ? grid.SelectAll() : grid.Paste(Pasted());
        break;
    case 7:
        static_cast<void>(grid.block.Copy());
        break;
    default:
        if (grid.editor.IsOpen()) {
            DoInEditor(grid);
        } else {
            grid.Pick(chance_.Below(rows), chance_.Below(columns));
        }
    }
}

/// As the view does: a cell that has a list takes its items alone.
void Monkey::TypeOver(Grid& grid) {
    grid.TypeOver(chance_.Line());
    grid.editor.CorrectText([](std::string_view text) { return Windows1252().UCase(text); });
}

void Monkey::DoInEditor(Grid& grid) {
    auto& editor = grid.editor;
    if (editor.List().HasItems()) {
        editor.ChooseItem(chance_.Of(editor.List().Items()));
    } else if (chance_.OneIn(3)) {
        editor.PressButton();
    } else {
        const auto text = chance_.Line();
        editor.Enter(text, text.size(), 0);
    }
}

void Monkey::DoTo(MonthCalendar& calendar) {
    constexpr int kMostDays = 4000;
    const auto day =
        std::chrono::sys_days(calendar.Value()) + std::chrono::days(chance_.Below(kMostDays) - 100);
    calendar.Pick(day);
}

KeyPress Monkey::AnyKey() {
    constexpr int kKeys = static_cast<int>(Key::Digit3) + 1;
    return {.key = static_cast<Key>(chance_.Below(kKeys)),
            .ctrl = chance_.OneIn(4),
            .alt = chance_.OneIn(6),
            .shift = chance_.OneIn(4)};
}

/// Some rows as a spreadsheet copies them.
std::string Monkey::Pasted() {
    std::string text;
    for (int row = chance_.Below(3); row >= 0; --row) {
        text += chance_.Text() + "\t" + chance_.Text() + (chance_.OneIn(3) ? "\n" : "\r\n");
    }
    return text;
}

} // namespace zy::test
