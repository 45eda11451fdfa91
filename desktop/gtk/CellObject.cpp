#include "desktop/CellObject.h"

#include <string>
#include <tuple>

namespace zy {
namespace {

/// What an object knows of itself, and its last answers, which it has to keep.
struct Place {
    HeldObject table;
    Cell cell;
    std::string name;
    std::string description;
};

struct CellObject {
    AtkObject base;
    Place* place;
};

template <typename T>
Place& PlaceIn(T* object) {
    return *reinterpret_cast<CellObject*>(object)->place;
}

template <typename T>
TableContent* ContentAround(T* object) {
    return ContentOf(PlaceIn(object).table.get());
}

template <typename T>
bool IsGone(T* object) {
    const auto* content = ContentAround(object);
    return content == nullptr || PlaceIn(object).cell.row >= content->Rows();
}

const char* NameOf(AtkObject* object) {
    auto& [table, cell, name, description] = PlaceIn(object);
    name = IsGone(object) ? std::string() : ContentAround(object)->Text(cell).utf8_string();
    return name.c_str();
}

const char* DescriptionOf(AtkObject* object) {
    auto& [table, cell, name, description] = PlaceIn(object);
    description = IsGone(object) ? std::string() : ContentAround(object)->Description(cell).utf8_string();
    return description.c_str();
}

AtkObject* ParentOf(AtkObject* object) {
    return PlaceIn(object).table.get();
}

int IndexOf(AtkObject* object) {
    const auto& cell = PlaceIn(object).cell;
    return IsGone(object) ? -1 : cell.row * ContentAround(object)->Columns() + cell.column;
}

void AddCellStates(AtkStateSet* set, const Place& place, const TableContent& content) {
    Add(set, ATK_STATE_FOCUSABLE, ATK_STATE_SELECTABLE, ATK_STATE_EDITABLE);
    if (content.Selected().Contains(place.cell)) {
        Add(set, ATK_STATE_SELECTED);
    }
    if (place.cell == content.Current() && HasKeyboard(place.table.get())) {
        Add(set, ATK_STATE_FOCUSED);
    }
}

void AddStates(AtkStateSet* set, const Place& place, const TableContent& content) {
    Add(set, ATK_STATE_ENABLED, ATK_STATE_SENSITIVE, ATK_STATE_VISIBLE);
    if (content.IsSeen(place.cell)) {
        Add(set, ATK_STATE_SHOWING);
    }
    if (place.cell.row > 0) {
        AddCellStates(set, place, content);
    }
}

AtkStateSet* StatesOf(AtkObject* object) {
    auto* set = atk_state_set_new();
    // What is transient assistive technology keeps for a moment alone, and not for the program's life.
    Add(set, ATK_STATE_TRANSIENT);
    if (IsGone(object)) {
        Add(set, ATK_STATE_DEFUNCT);
    } else {
        AddStates(set, PlaceIn(object), *ContentAround(object));
    }
    return set;
}

void Init(GTypeInstance* instance, gpointer /*type*/) {
    reinterpret_cast<CellObject*>(instance)->place = new Place;
}

void Finalize(GObject* object) {
    delete reinterpret_cast<CellObject*>(object)->place;
    KnownClass<GObjectClass>(ATK_TYPE_OBJECT).finalize(object);
}

void InitClass(gpointer type, gpointer /*unused*/) {
    static_cast<GObjectClass*>(type)->finalize = Finalize;
    auto* answers = static_cast<AtkObjectClass*>(type);
    answers->get_name = NameOf;
    answers->get_description = DescriptionOf;
    answers->get_parent = ParentOf;
    answers->get_index_in_parent = IndexOf;
    answers->ref_state_set = StatesOf;
}

/// How far coordinates of a kind are from those of the screen.
wxPoint OffsetOf(AtkCoordType kind, AtkObject* table) {
    auto* component = reinterpret_cast<AtkComponent*>(table);
    wxPoint own;
    wxPoint onScreen;
    atk_component_get_extents(component, &onScreen.x, &onScreen.y, nullptr, nullptr, ATK_XY_SCREEN);
    if (kind != ATK_XY_PARENT) {
        atk_component_get_extents(component, &own.x, &own.y, nullptr, nullptr, kind);
    }
    return own - onScreen;
}

void GetExtents(AtkComponent* cell, int* x, int* y, int* width, int* height, AtkCoordType kind) {
    wxRect place;
    if (!IsGone(cell)) {
        place = ContentAround(cell)->PlaceOf(PlaceIn(cell).cell);
        place.Offset(OffsetOf(kind, PlaceIn(cell).table.get()));
    }
    std::tie(*x, *y, *width, *height) = std::tie(place.x, place.y, place.width, place.height);
}

gboolean GrabFocus(AtkComponent* cell) {
    if (IsGone(cell) || PlaceIn(cell).cell.row == 0) {
        return 0;
    }
    ContentAround(cell)->Pick(PlaceIn(cell).cell);
    return 1;
}

void InitComponent(gpointer interface, gpointer /*unused*/) {
    auto* answers = static_cast<AtkComponentIface*>(interface);
    answers->get_extents = GetExtents;
    answers->grab_focus = GrabFocus;
}

int One(AtkTableCell* /*cell*/) {
    return 1;
}

gboolean GetPosition(AtkTableCell* object, int* row, int* column) {
    const auto& cell = PlaceIn(object).cell;
    *row = cell.row - 1;
    *column = cell.column;
    return 1;
}

gboolean GetRowColumnSpan(AtkTableCell* cell, int* row, int* column, int* rows, int* columns) {
    *rows = 1;
    *columns = 1;
    return GetPosition(cell, row, column);
}

GPtrArray* NoHeaders(AtkTableCell* /*cell*/) {
    return g_ptr_array_new_with_free_func(g_object_unref);
}

GPtrArray* GetColumnHeaders(AtkTableCell* object) {
    const auto& [table, cell, name, description] = PlaceIn(object);
    auto* headers = NoHeaders(object);
    g_ptr_array_add(headers, MakeCellObject(table.get(), {.row = 0, .column = cell.column}).release());
    return headers;
}

AtkObject* GetTable(AtkTableCell* cell) {
    return Ref(PlaceIn(cell).table.get());
}

void InitTableCell(gpointer interface, gpointer /*unused*/) {
    auto* answers = static_cast<AtkTableCellIface*>(interface);
    answers->get_column_span = One;
    answers->get_row_span = One;
    answers->get_position = GetPosition;
    answers->get_row_column_span = GetRowColumnSpan;
    answers->get_column_header_cells = GetColumnHeaders;
    answers->get_row_header_cells = NoHeaders;
    answers->get_table = GetTable;
}

gboolean DoAction(AtkAction* cell, int /*action*/) {
    const bool isThere = !IsGone(cell);
    if (isThere) {
        ContentAround(cell)->Open(PlaceIn(cell).cell);
    }
    return isThere ? 1 : 0;
}

int CountActions(AtkAction* /*cell*/) {
    return 1;
}

const char* NameOfAction(AtkAction* /*cell*/, int action) {
    return action == 0 ? "edit" : nullptr;
}

const char* DescriptionOfAction(AtkAction* cell, int action) {
    if (action != 0 || IsGone(cell)) {
        return nullptr;
    }
    return ContentAround(cell)->HasChoices(PlaceIn(cell).cell) ? "Drops the list of the cell down"
                                                               : "Opens the cell for typing";
}

void InitAction(gpointer interface, gpointer /*unused*/) {
    auto* answers = static_cast<AtkActionIface*>(interface);
    answers->do_action = DoAction;
    answers->get_n_actions = CountActions;
    answers->get_name = NameOfAction;
    answers->get_description = DescriptionOfAction;
}

GType RegisterHeader() {
    const GType type = RegisterKind(ATK_TYPE_OBJECT, "ZyColumnHeader", InitClass,
                                    sizeof(CellObject) - sizeof(AtkObject), Init);
    AddInterface(type, ATK_TYPE_COMPONENT, InitComponent);
    return type;
}

GType HeaderType() {
    static const GType type = RegisterHeader();
    return type;
}

/// One that also knows its row, and can be edited.
GType RegisterCell() {
    const GType type = RegisterKind(HeaderType(), "ZyTableCell", nullptr);
    AddInterface(type, ATK_TYPE_TABLE_CELL, InitTableCell);
    AddInterface(type, ATK_TYPE_ACTION, InitAction);
    return type;
}

GType CellType() {
    static const GType type = RegisterCell();
    return type;
}

} // namespace

HeldObject MakeCellObject(AtkObject* table, const Cell& cell) {
    const bool isHeader = cell.row == 0;
    HeldObject object(static_cast<AtkObject*>(g_object_new(isHeader ? HeaderType() : CellType(), nullptr)));
    auto& place = PlaceIn(object.get());
    place.table.reset(Ref(table));
    place.cell = cell;
    atk_object_set_role(object.get(), isHeader ? ATK_ROLE_COLUMN_HEADER : ATK_ROLE_TABLE_CELL);
    return object;
}

} // namespace zy
