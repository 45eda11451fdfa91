#pragma once

#include <wx/defs.h>

#include "desktop/AccessibleObject.h"
#include "desktop/AccessibleTable.h"

namespace zy {

/// Has the window system present the widget of a grid's cells as a table with this content, to be called
/// before anybody has asked for the widget's accessible object. What is returned is that object.
HeldObject MakeTableObject(GtkWidget* cells, TableContent& content);
/// Takes the content away. The table is empty from now on, and its cells are defunct.
void DropContent(AtkObject* table);

/// Makes the object of the current cell, which the table holds until there is another one: whoever asks for
/// that cell gets the same.
AtkObject* MakeCurrentObject(AtkObject* table, const Cell& cell);

/// What a table shows; null when its content or its window is gone.
TableContent* ContentOf(AtkObject* table);
/// Whether the table's window has the keyboard.
bool HasKeyboard(AtkObject* table);

} // namespace zy
