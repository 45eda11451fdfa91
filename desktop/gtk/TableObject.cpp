#include "desktop/TableObject.h"

#include <string>
#include <vector>

#include "desktop/CellObject.h"
#include "desktop/GtkFunctions.h"

namespace zy {
namespace {

constexpr const char* kAttached = "zy-table-content";

/// What stands behind a table's object.
struct Attached {
    TableContent& content;
    /// The headers of the columns, which nobody else holds.
    std::vector<HeldObject> headers;
    HeldObject current;
    Cell currentCell;
    std::string name; ///< the last one told, which has to be kept
};

template <typename T>
AtkObject* AsObject(T* object) {
    return reinterpret_cast<AtkObject*>(object);
}

Attached* AttachedTo(AtkObject* table) {
    const bool hasWindow = gtk_accessible_get_widget(reinterpret_cast<_GtkAccessible*>(table)) != nullptr;
    return hasWindow ? static_cast<Attached*>(g_object_get_data(reinterpret_cast<GObject*>(table), kAttached))
                     : nullptr;
}

template <typename T>
TableContent* ContentIn(T* table) {
    return ContentOf(AsObject(table));
}

/// The answers of the windows that are no tables.
AtkObjectClass& Usual() {
    return KnownClass<AtkObjectClass>(gtk_container_accessible_get_type());
}

int CountCells(const TableContent& content) {
    return content.Rows() * content.Columns();
}

Cell CellNumbered(int index, const TableContent& content) {
    return {.row = index / content.Columns(), .column = index % content.Columns()};
}

template <typename T>
AtkObject* RefCell(T* table, const Cell& cell) {
    const auto* attached = AttachedTo(AsObject(table));
    const bool isHeld = attached->current != nullptr && cell == attached->currentCell;
    return isHeld ? Ref(attached->current.get()) : MakeCellObject(AsObject(table), cell).release();
}

bool Has(const TableContent* content, const Cell& cell) {
    return content != nullptr && cell.row >= 0 && cell.row < content->Rows() && cell.column >= 0 &&
           cell.column < content->Columns();
}

// As an object. Its children are the headers, the cells row by row, and then what lies over them, such as an
// open editor.

const char* NameOf(AtkObject* table) {
    auto* attached = AttachedTo(table);
    if (attached == nullptr) {
        return Usual().get_name(table);
    }
    attached->name = attached->content.Name().utf8_string();
    return attached->name.c_str();
}

int CountChildren(AtkObject* table) {
    const auto* content = ContentOf(table);
    return Usual().get_n_children(table) + (content == nullptr ? 0 : CountCells(*content));
}

AtkObject* RefChild(AtkObject* table, int index) {
    const auto* content = ContentOf(table);
    const int cells = content == nullptr ? 0 : CountCells(*content);
    if (index < 0) {
        return nullptr;
    }
    return index < cells ? RefCell(table, CellNumbered(index, *content))
                         : Usual().ref_child(table, index - cells);
}

AtkStateSet* StatesOf(AtkObject* table) {
    auto* set = Usual().ref_state_set(table);
    Add(set, ATK_STATE_MANAGES_DESCENDANTS, ATK_STATE_MULTISELECTABLE);
    return set;
}

void InitTableClass(gpointer type, gpointer /*unused*/) {
    auto* answers = static_cast<AtkObjectClass*>(type);
    answers->get_name = NameOf;
    answers->get_n_children = CountChildren;
    answers->ref_child = RefChild;
    answers->ref_state_set = StatesOf;
}

// As a table, whose rows count without the header.

AtkObject* RefAt(AtkTable* table, int row, int column) {
    const Cell cell{.row = row + 1, .column = column};
    return row >= 0 && Has(ContentIn(table), cell) ? RefCell(table, cell) : nullptr;
}

int CountRows(AtkTable* table) {
    const auto* content = ContentIn(table);
    return content == nullptr ? 0 : content->Rows() - 1;
}

int CountColumns(AtkTable* table) {
    const auto* content = ContentIn(table);
    return content == nullptr ? 0 : content->Columns();
}

int IndexAt(AtkTable* table, int row, int column) {
    const Cell cell{.row = row + 1, .column = column};
    return Has(ContentIn(table), cell) ? cell.row * CountColumns(table) + column : -1;
}

/// The cell at an index, nowhere where there is none.
Cell CellAtIndex(AtkTable* table, int index) {
    const auto* content = ContentIn(table);
    const bool isThere = content != nullptr && index >= 0 && index < CountCells(*content);
    return isThere ? CellNumbered(index, *content) : Cell{.row = 0, .column = -1};
}

int RowAtIndex(AtkTable* table, int index) {
    return CellAtIndex(table, index).row - 1;
}

int ColumnAtIndex(AtkTable* table, int index) {
    return CellAtIndex(table, index).column;
}

int One(AtkTable* /*table*/, int /*row*/, int /*column*/) {
    return 1;
}

/// The table keeps it.
AtkObject* HeaderOf(AtkTable* table, int column) {
    const Cell header{.row = 0, .column = column};
    return Has(ContentIn(table), header)
               ? AttachedTo(AsObject(table))->headers[static_cast<std::size_t>(column)].get()
               : nullptr;
}

const char* NameOfColumn(AtkTable* table, int column) {
    auto* header = HeaderOf(table, column);
    return header == nullptr ? nullptr : atk_object_get_name(header);
}

gboolean IsSelected(AtkTable* table, int row, int column) {
    const auto* content = ContentIn(table);
    return content != nullptr && content->Selected().Contains({.row = row + 1, .column = column}) ? 1 : 0;
}

void InitTable(gpointer interface, gpointer /*unused*/) {
    auto* answers = static_cast<AtkTableIface*>(interface);
    answers->ref_at = RefAt;
    answers->get_n_rows = CountRows;
    answers->get_n_columns = CountColumns;
    answers->get_index_at = IndexAt;
    answers->get_row_at_index = RowAtIndex;
    answers->get_column_at_index = ColumnAtIndex;
    answers->get_row_extent_at = One;
    answers->get_column_extent_at = One;
    answers->get_column_header = HeaderOf;
    answers->get_column_description = NameOfColumn;
    answers->is_selected = IsSelected;
}

// Its selection: a block of cells, counted row by row.

struct BlockSize {
    int rows = 0;
    int columns = 0;
};

BlockSize SizeOf(const CellRange& range) {
    return {.rows = range.last.row - range.first.row + 1,
            .columns = range.last.column - range.first.column + 1};
}

int CountSelected(AtkSelection* table) {
    const auto* content = ContentIn(table);
    const auto size = content == nullptr ? BlockSize() : SizeOf(content->Selected());
    return size.rows * size.columns;
}

AtkObject* RefSelected(AtkSelection* table, int index) {
    if (index < 0 || index >= CountSelected(table)) {
        return nullptr;
    }
    const auto block = ContentIn(table)->Selected();
    const int columns = SizeOf(block).columns;
    return RefCell(
        table, {.row = block.first.row + index / columns, .column = block.first.column + index % columns});
}

gboolean IsChildSelected(AtkSelection* table, int index) {
    const auto cell = CellAtIndex(reinterpret_cast<AtkTable*>(table), index);
    return cell.row > 0 && ContentIn(table)->Selected().Contains(cell) ? 1 : 0;
}

void InitSelection(gpointer interface, gpointer /*unused*/) {
    auto* answers = static_cast<AtkSelectionIface*>(interface);
    answers->get_selection_count = CountSelected;
    answers->ref_selection = RefSelected;
    answers->is_child_selected = IsChildSelected;
}

AtkObject* RefAtPoint(AtkComponent* table, int x, int y, AtkCoordType kind) {
    const auto* content = ContentIn(table);
    if (content == nullptr) {
        return nullptr;
    }
    wxPoint own;
    wxPoint onScreen;
    atk_component_get_extents(table, &own.x, &own.y, nullptr, nullptr, kind);
    atk_component_get_extents(table, &onScreen.x, &onScreen.y, nullptr, nullptr, ATK_XY_SCREEN);
    const auto cell = content->CellAt(wxPoint(x, y) - own + onScreen);
    return cell.row < 0 ? nullptr : RefCell(table, cell);
}

void InitComponent(gpointer interface, gpointer /*unused*/) {
    // Asking each child in turn, which is what a window does, would take for ever.
    static_cast<AtkComponentIface*>(interface)->ref_accessible_at_point = RefAtPoint;
}

// The kinds of objects. All windows that the toolkit draws itself are of one class, and a class has one kind
// of accessible object. So that a panel is no table, that kind is the usual one, under another name, until a
// table is asked for.

constexpr const char* kWanted = "zy-table-wanted";

GType RegisterUsual();
GType TableKind();

GType UsualKind() {
    static const GType type = RegisterUsual();
    return type;
}

GObject* Construct(GType kind, guint count, GObjectConstructParam* properties) {
    const bool isTable = g_type_get_qdata(UsualKind(), g_quark_from_static_string(kWanted)) != nullptr;
    return reinterpret_cast<GObjectClass&>(Usual()).constructor(isTable ? TableKind() : kind, count,
                                                                properties);
}

void InitUsualClass(gpointer type, gpointer /*unused*/) {
    static_cast<GObjectClass*>(type)->constructor = Construct;
}

GType RegisterUsual() {
    return RegisterKind(gtk_container_accessible_get_type(), "ZyDrawnWindow", InitUsualClass);
}

GType RegisterTable() {
    const GType type = RegisterKind(UsualKind(), "ZyTable", InitTableClass);
    AddInterface(type, ATK_TYPE_TABLE, InitTable);
    AddInterface(type, ATK_TYPE_SELECTION, InitSelection);
    AddInterface(type, ATK_TYPE_COMPONENT, InitComponent);
    return type;
}

GType TableKind() {
    static const GType type = RegisterTable();
    return type;
}

/// The next object that is made is to be a table, or no longer.
void Want(TableContent* table) {
    g_type_set_qdata(UsualKind(), g_quark_from_static_string(kWanted), table);
}

} // namespace

HeldObject MakeTableObject(GtkWidget* cells, TableContent& content) {
    gtk_widget_class_set_accessible_type(reinterpret_cast<_GtkWidgetClass*>(G_OBJECT_GET_CLASS(cells)),
                                         UsualKind());
    Want(&content);
    HeldObject table(Ref(gtk_widget_get_accessible(cells)));
    Want(nullptr);
    atk_object_set_role(table.get(), ATK_ROLE_TABLE);
    auto* attached =
        new Attached{.content = content, .headers = {}, .current = {}, .currentCell = {}, .name = {}};
    for (int column = 0; column < content.Columns(); ++column) {
        attached->headers.push_back(MakeCellObject(table.get(), {.row = 0, .column = column}));
    }
    g_object_set_data(reinterpret_cast<GObject*>(table.get()), kAttached, attached);
    return table;
}

void DropContent(AtkObject* table) {
    delete static_cast<Attached*>(g_object_steal_data(reinterpret_cast<GObject*>(table), kAttached));
}

AtkObject* MakeCurrentObject(AtkObject* table, const Cell& cell) {
    auto* attached = AttachedTo(table);
    attached->current = MakeCellObject(table, cell);
    attached->currentCell = cell;
    return attached->current.get();
}

TableContent* ContentOf(AtkObject* table) {
    auto* attached = AttachedTo(table);
    return attached == nullptr ? nullptr : &attached->content;
}

bool HasKeyboard(AtkObject* table) {
    auto* widget = gtk_accessible_get_widget(reinterpret_cast<_GtkAccessible*>(table));
    return widget != nullptr && gtk_widget_has_focus(widget) != 0;
}

} // namespace zy
