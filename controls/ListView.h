#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"
#include "controls/Key.h"

namespace zy {

/// A list of items in columns, one of which can be selected. Items count from 1, columns from 0.
///
/// The list holds no texts: it asks its source for the cells that are shown, so that the number of items
/// costs nothing at filling.
class ListView : public Control {
  public:
    struct Column {
        std::string header;
        int width = 0; ///< in twips
    };
    using Source = std::function<std::string_view(int item, int column)>;

    ListView(Container* parent, std::string name, std::vector<Column> columns, Source source);

    const std::vector<Column>& Columns() const { return columns_; }
    /// In twips. The column, counted from 0, must exist.
    void SetColumnWidth(std::size_t column, int width);
    /// The source's text; both numbers must be those of a cell.
    std::string_view CellText(int item, int column) const { return source_(item, column); }

    int Count() const { return count_; }
    /// The selected item; 0 when none is.
    int Selected() const { return selected_; }

    /// Shows `count` items anew; none is selected.
    void Refill(int count);
    /// Takes the selected item out of the list; none is selected afterwards. Run-time
    /// error 9 when none is selected.
    void RemoveSelected();
    /// Selects from code, 0 for none: `itemClick` is not raised. Run-time error 9 for an item that the list
    /// does not have.
    void Select(int item);
    /// Asks the view to scroll the selected item into sight, where it is selected already, too.
    void Reveal() { revealAsked.Raise(); }
    /// Announces that an item's texts changed.
    void RefreshItem(int item) { itemChanged.Raise(item); }

    /// The selected item as a spreadsheet copies a row: cells separated by TAB, CR LF behind them. Empty when
    /// none is.
    std::string Copy() const;

    /// The user chooses an item. The one that is selected already is not chosen again. Run-time error 9
    /// for an item that the list does not have.
    void Pick(int item);
    /// The user asks for a context menu.
    void AskForMenu();
    /// The user presses a key while the list has the focus.
    void Press(const KeyPress& press);

    /// What there is to tell of an item that the mouse rests on; nothing where that is empty.
    std::function<std::string(int item)> hint;

    /// Whether an item is one of those that cannot be used, and so is shown paler.
    std::function<bool(int item)> isGrey;

    Event<int> itemClick; ///< the user chose this item
    Event<const KeyPress&> keyDown;
    Event<> menuAsked; ///< the user wants the menu of the selected item, or of the list
    Event<> refilled;
    Event<int> itemRemoved; ///< the item that stood there was taken out
    Event<int> itemChanged;
    /// An item was selected, or the user tried to: what a view shows selected may be out of date.
    Event<> selectionChanged;
    Event<> revealAsked;

  private:
    std::vector<Column> columns_;
    Source source_;
    int count_ = 0;
    int selected_ = 0;
};

} // namespace zy
