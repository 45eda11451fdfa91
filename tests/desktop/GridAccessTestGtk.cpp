#include <wx/app.h>
#include <wx/grid.h>

#include <map>
#include <memory>

#include <atk/atk.h>

#include "UnitsWindow.h"
#include "desktop/CellObject.h"
#include "desktop/GtkFunctions.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

/// The units grid as assistive technology meets it, asked in the program's own process.
class GridAccess : public UnitsWindow {
  protected:
    GridAccess() { PutUnits(ThreeUnits()); }

    using HeldStates = std::unique_ptr<AtkStateSet, Unref>;

    static AtkObject* ObjectOf(const wxWindow& window) {
        return gtk_widget_get_accessible(window.GetHandle());
    }
    AtkObject* Table() { return ObjectOf(*RealGrid().GetGridWindow()); }
    HeldObject CellAt(int row, int column) {
        return HeldObject(atk_table_ref_at(ATK_TABLE(Table()), row - 1, column));
    }
    static bool HasState(AtkObject* object, AtkStateType state) {
        const HeldStates states(atk_object_ref_state_set(object));
        return atk_state_set_contains_state(states.get(), state) != 0;
    }
    /// Notes the signals of the table from now on.
    void Listen() {
        for (const char* name : {"row-inserted", "row-deleted", "model-changed", "children-changed",
                                 "active-descendant-changed", "state-change::focused"}) {
            ListenTo(Table(), name);
        }
    }
    void ListenTo(AtkObject* object, const char* name) {
        signals_[name] = 0;
        g_signal_connect_swapped(object, name, G_CALLBACK(Count), &signals_[name]);
    }
    int Heard(const std::string& name) {
        return InWindow([&] { return signals_.at(name); });
    }
    void Have(const std::function<void()>& action) {
        InWindow([&] { desktop.Gate().Act(action); });
    }

    std::map<std::string, int> signals_;

  private:
    static void Count(int* signals) { ++*signals; }
};

TEST_F(GridAccess, IsATableAndNoOtherWindowIs) {
    Play([&] {
        EXPECT_EQ(InWindow([&] { return atk_object_get_role(Table()); }), ATK_ROLE_TABLE);
        EXPECT_TRUE(InWindow([&] { return ATK_IS_TABLE(Table()); }));
        EXPECT_FALSE(InWindow([&] { return ATK_IS_TABLE(ObjectOf(*RealGrid().GetGridColLabelWindow())); }));
        EXPECT_FALSE(InWindow([&] { return ATK_IS_TABLE(ObjectOf(*RealGrid().GetParent())); }));
    });
}

TEST_F(GridAccess, MakesACellForWhomeverAsksAndKeepsNone) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        const bool isGone = InWindow([&] {
            auto cell = CellAt(3, 1);
            gpointer watched = cell.get();
            g_object_add_weak_pointer(reinterpret_cast<GObject*>(cell.get()), &watched);
            EXPECT_STREQ(atk_object_get_name(cell.get()), "Seconds");
            cell.reset();
            return watched == nullptr;
        });
        EXPECT_TRUE(isGone);
    });
}

TEST_F(GridAccess, HasNoCellsBesideItsOwn) {
    Play([&] {
        EXPECT_EQ(InWindow([&] { return CellAt(4, 0); }), nullptr);
        EXPECT_EQ(InWindow([&] { return CellAt(1, 2); }), nullptr);
        const auto childAt = [&](int index) {
            return HeldObject(atk_object_ref_accessible_child(Table(), index));
        };
        EXPECT_NE(InWindow([&] { return childAt(7); }), nullptr);
        EXPECT_EQ(InWindow([&] { return childAt(8); }), nullptr);
    });
}

TEST_F(GridAccess, TellsOfRowsAndNotOfTheirCells) {
    Play([&] {
        InWindow([&] { Listen(); });
        Have([&] {
            grid().cells.SetRedraw(false);
            grid().cells.SetRows(1);
            for (int row = 0; row < 1000; ++row) {
                grid().cells.AddItem("u\tUnit");
            }
            grid().cells.SetRedraw(true);
        });
        EXPECT_EQ(Heard("row-inserted"), 1);
        EXPECT_EQ(Heard("model-changed"), 1);
        Have([&] { grid().cells.RemoveItem(5); });
        EXPECT_EQ(Heard("row-inserted"), 1);
        EXPECT_EQ(Heard("row-deleted"), 1);
        EXPECT_EQ(Heard("model-changed"), 2);
        EXPECT_EQ(Heard("children-changed"), 0);
    });
}

TEST_F(GridAccess, SaysOnceWhereTheKeyboardHasCome) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        InWindow([&] { Listen(); });
        Press(WXK_DOWN);
        WaitForCell(2, 0);
        EXPECT_EQ(Heard("active-descendant-changed"), 1);
        Press(WXK_F2);
        WaitForEditor("m");
        Press(WXK_TAB);
        WaitForCell(2, 1);
        EXPECT_EQ(Heard("active-descendant-changed"), 2);
        Press(WXK_F2);
        WaitForEditor("Metres");
        Press(WXK_ESCAPE);
        WaitForCell(2, 1);
        WaitUntil("the focus is told", [&] { return signals_.at("active-descendant-changed") == 3; });
    });
}

TEST_F(GridAccess, TellsOfANewTextInTheCurrentCell) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        InWindow([&] { ListenTo(CellAt(1, 0).get(), "notify::accessible-name"); });
        const auto namesAfter = [&](int row, const std::string& text) {
            Have([&] { grid().cells.SetText(row, 0, text); });
            return Heard("notify::accessible-name");
        };
        EXPECT_EQ(namesAfter(1, "t"), 1);
        EXPECT_EQ(namesAfter(1, "t"), 1);
        EXPECT_EQ(namesAfter(2, "km"), 1);
        EXPECT_EQ(namesAfter(1, ""), 2);
    });
}

TEST_F(GridAccess, ACellIsDefunctWhenItsRowHasGone) {
    Play([&] {
        const auto cell = InWindow([&] { return std::shared_ptr<AtkObject>(CellAt(3, 1)); });
        EXPECT_FALSE(InWindow([&] { return HasState(cell.get(), ATK_STATE_DEFUNCT); }));
        Have([&] { grid().cells.RemoveItem(1); });
        EXPECT_TRUE(InWindow([&] { return HasState(cell.get(), ATK_STATE_DEFUNCT); }));
        EXPECT_EQ(InWindow([&] { return std::string(atk_object_get_name(cell.get())); }), "");
    });
}

TEST_F(GridAccess, ACellThatSomebodyHoldsOutlivesTheWindowAsADefunctOne) {
    HeldObject cell;
    HeldObject table;
    Play([&] {
        InWindow([&] {
            cell = CellAt(2, 0);
            table.reset(Ref(Table()));
        });
    });
    EXPECT_TRUE(HasState(cell.get(), ATK_STATE_DEFUNCT));
    EXPECT_STREQ(atk_object_get_name(cell.get()), "");
    EXPECT_EQ(atk_object_get_index_in_parent(cell.get()), -1);
    EXPECT_EQ(atk_component_grab_focus(ATK_COMPONENT(cell.get())), 0);
    EXPECT_EQ(atk_action_do_action(ATK_ACTION(cell.get()), 0), 0);
    EXPECT_EQ(atk_table_get_n_rows(ATK_TABLE(table.get())), 0);
    EXPECT_EQ(atk_selection_get_selection_count(ATK_SELECTION(table.get())), 0);
}

TEST_F(GridAccess, TheSelectionIsTheBlock) {
    Play([&] {
        ClickCell(1, 0);
        WaitForCell(1, 0);
        Press(WXK_DOWN, wxMOD_SHIFT);
        Press(WXK_RIGHT, wxMOD_SHIFT);
        const auto selected = [&] {
            std::vector<std::string> texts;
            auto* selection = ATK_SELECTION(Table());
            for (int i = 0; i < atk_selection_get_selection_count(selection); ++i) {
                texts.emplace_back(
                    atk_object_get_name(HeldObject(atk_selection_ref_selection(selection, i)).get()));
            }
            return texts;
        };
        WaitUntil("the block is stretched", [&] { return selected().size() == 4; });
        EXPECT_THAT(InWindow(selected), ElementsAre("kg", "Kilograms", "m", "Metres"));
        EXPECT_TRUE(InWindow([&] { return atk_table_is_selected(ATK_TABLE(Table()), 1, 1) != 0; }));
        EXPECT_FALSE(InWindow([&] { return atk_table_is_selected(ATK_TABLE(Table()), 2, 1) != 0; }));
        EXPECT_EQ(InWindow([&] { return std::string(atk_object_get_description(CellAt(1, 0).get())); }),
                  "2 rows, 2 columns selected");
    });
}

} // namespace
} // namespace zy::test
