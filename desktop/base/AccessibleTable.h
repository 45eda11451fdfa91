#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <memory>

#include "controls/GridSelection.h"

class wxWindow;

namespace zy {

/// What assistive technology reads of a grid, and what it does there for the user.
///
/// It is asked at the moment in which somebody wants to know, of as few cells as that needs: a grid may have
/// 32,767 rows. Cells count as in the model, whose row 0 is the header. Any cell may be asked for; where
/// there is none, texts and places are empty and nothing is done.
class TableContent {
  public:
    virtual ~TableContent() = default;

    /// What the whole table is called.
    virtual wxString Name() const = 0;
    /// How many rows there are, the header counted.
    virtual int Rows() const = 0;
    virtual int Columns() const = 0;
    /// The text of a cell, or of a column's header.
    virtual wxString Text(const Cell& cell) const = 0;
    /// What there is to know of a cell beside its text: the choices of one that is a list, and, at the
    /// current cell, how much is selected where that is more than this one.
    virtual wxString Description(const Cell& cell) const = 0;
    /// Whether a cell is picked from a list and not typed.
    virtual bool HasChoices(const Cell& cell) const = 0;

    /// The current cell; none when its row is less than 1.
    virtual Cell Current() const = 0;
    /// The selected cells, the current one counted; none when the last row is less than the first.
    virtual CellRange Selected() const = 0;

    /// Where a cell is on the screen, be it scrolled out of sight.
    virtual wxRect PlaceOf(const Cell& cell) const = 0;
    /// Whether some of a cell is in sight.
    virtual bool IsSeen(const Cell& cell) const = 0;
    /// The cell, or header, at a place on the screen; its row is -1 where there is none.
    virtual Cell CellAt(const wxPoint& onScreen) const = 0;

    /// Moves the keyboard to a cell. It happens a little later.
    virtual void Pick(const Cell& cell) = 0;
    /// Moves there and opens its editor, or drops its list, likewise.
    virtual void Open(const Cell& cell) = 0;
};

/// A grid as assistive technology meets it: as a table with cells of its own.
///
/// Whoever shows the grid tells of the changes, behind them; who listens asks the content then. It costs
/// nothing where nobody does. That the keyboard comes to the grid's cells it notices itself.
class AccessibleTable {
  public:
    virtual ~AccessibleTable() = default;

    /// Another cell is current, or none any more.
    virtual void TellCurrent() = 0;
    /// The text of the current cell is another one.
    virtual void TellText() = 0;
    /// Another block is selected around the current cell.
    virtual void TellSelected() = 0;
    /// Rows came or went, or were all put in anew; before there were so many, the header counted.
    virtual void TellRows(int before) = 0;
};

/// Makes the window of a grid's cells such a table, to be done before the window is first shown. The content
/// must outlive what is returned; the window may go before it.
std::unique_ptr<AccessibleTable> MakeAccessibleTable(wxWindow& cells, TableContent& content);

} // namespace zy
