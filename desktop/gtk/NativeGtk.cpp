#include <glib-object.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dataview.h>
#include <wx/filedlg.h>
#include <wx/frame.h>
#include <wx/hyperlink.h>
#include <wx/notebook.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "desktop/Contrast.h"
#include "desktop/GtkFunctions.h"
#include "desktop/Native.h"
#include "platform/glib/Waiting.h"

namespace zy {
namespace {

/// What a hook answers that is to be asked the next time, too.
constexpr gboolean kGoesOn = 1;

constexpr double kUsualDotsPerInch = 96;

/// How long a window manager has to answer: as long as the toolkit itself waits for it.
constexpr std::chrono::seconds kWindowManagersTime{1};

struct FreePath {
    void operator()(_GtkTreePath* path) const { gtk_tree_path_free(path); }
};

GtkRectangle AllocationOf(GtkWidget* widget) {
    GtkRectangle allocation{};
    gtk_widget_get_allocation(widget, &allocation);
    return allocation;
}

/// The widget that takes the focus, and so is the one that a screen reader meets.
GtkWidget* FocusWidgetOf(wxWindow& window) {
    if (auto* list = dynamic_cast<wxDataViewCtrl*>(&window)) {
        return list->GtkGetTreeView();
    }
    // What the toolkit paints stands inside its scroll bars.
    return window.m_wxwindow != nullptr ? window.m_wxwindow : window.GetConnectWidget();
}

AtkObject* AccessibleOf(wxWindow& window) {
    return gtk_widget_get_accessible(FocusWidgetOf(window));
}

AtkRole RoleOf(AccessibleRole role) {
    switch (role) {
    case AccessibleRole::Dialog:
        return ATK_ROLE_DIALOG;
    case AccessibleRole::StatusBar:
        return ATK_ROLE_STATUSBAR;
    case AccessibleRole::Notice:
        return ATK_ROLE_NOTIFICATION;
    case AccessibleRole::Link:
        return ATK_ROLE_LINK;
    case AccessibleRole::Calendar:
        return ATK_ROLE_CALENDAR;
    case AccessibleRole::Picture:
        return ATK_ROLE_IMAGE;
    }
    return ATK_ROLE_INVALID;
}

wxString EntryOf(const wxTreeCtrl& tree) {
    const auto entry = tree.GetSelection();
    if (!entry.IsOk()) {
        return {};
    }
    const wxString text = tree.GetItemText(entry);
    return !tree.ItemHasChildren(entry) ? text : text + (tree.IsExpanded(entry) ? ", open" : ", closed");
}

constexpr guint kAnyButton = 0;
constexpr int kOnTheWayDown = 1;

using Observer = std::function<void()>;

void CallMoved(_GtkWindow* /*window*/, GtkWidget* /*focused*/, gpointer moved) {
    (*static_cast<Observer*>(moved))();
}

void CallPressed(_GtkGesture* /*gesture*/, int /*count*/, double /*x*/, double /*y*/, gpointer pressed) {
    (*static_cast<Observer*>(pressed))();
}

void DeleteObserver(gpointer observer, GClosure* /*closure*/) {
    delete static_cast<Observer*>(observer);
}

void UnmakeButton(_GtkTreeViewColumn* column, GParamSpec* /*property*/, gpointer /*unused*/) {
    gtk_tree_view_column_set_clickable(column, 0);
}

/// A notebook's pages get their size when GTK lays the notebook out. By then it has laid out what stands on
/// them, and complains of scroll bars that have no room.
void GiveSizeToPages(const wxWindow& window) {
    const bool isNotebook = dynamic_cast<const wxNotebook*>(&window) != nullptr;
    for (auto* child : window.GetChildren()) {
        if (isNotebook) {
            child->SetSize(window.GetClientSize());
        }
        GiveSizeToPages(*child);
    }
}

/// The menu, or list of a combo box, that has all keys and clicks to itself; none when there is no such.
_GtkMenuShell* MenuInCharge() {
    GtkWidget* holder = gtk_grab_get_current();
    const bool isMenu =
        holder != nullptr && g_type_is_a(G_OBJECT_TYPE(holder), gtk_menu_shell_get_type()) != 0;
    return isMenu ? reinterpret_cast<_GtkMenuShell*>(holder) : nullptr;
}

bool IsUnseenMenuInCharge() {
    auto* menu = reinterpret_cast<GtkWidget*>(MenuInCharge());
    return menu != nullptr && gtk_widget_get_mapped(menu) == 0;
}

gboolean LeaveUnseenMenu(gpointer /*unused*/) {
    if (IsUnseenMenuInCharge()) {
        // With the bar that it belongs to. One that does not know that it is open keeps what it took.
        while (auto* menu = MenuInCharge()) {
            const std::unique_ptr<void, decltype(&g_object_unref)> held(g_object_ref(menu), g_object_unref);
            gtk_menu_shell_cancel(menu);
            gtk_grab_remove(reinterpret_cast<GtkWidget*>(menu));
        }
    }
    return G_SOURCE_REMOVE;
}

/// GTK complains of a menu that takes all keys and clicks before it is real.
void MakeMenusReal(_GtkMenuShell* bar) {
    const std::unique_ptr<GList, decltype(&g_list_free)> items(
        gtk_container_get_children(reinterpret_cast<_GtkContainer*>(bar)), g_list_free);
    for (const GList* item = items.get(); item != nullptr; item = item->next) {
        auto* menuItem = static_cast<_GtkMenuItem*>(item->data);
        if (GtkWidget* menu = gtk_menu_item_get_submenu(menuItem)) {
            gtk_widget_realize(menu);
        }
    }
}

gboolean FollowMenus(GSignalInvocationHint* /*signal*/, guint /*count*/, const GValue* /*values*/,
                     gpointer /*unused*/) {
    if (IsUnseenMenuInCharge()) {
        // GTK is in the midst of it; the next key or click must not get lost, though.
        g_idle_add_full(G_PRIORITY_HIGH, LeaveUnseenMenu, nullptr, nullptr);
    } else if (auto* menu = MenuInCharge()) {
        MakeMenusReal(menu);
    }
    return kGoesOn;
}

gboolean TellThatItIsClosed(gpointer menu) {
    if (gtk_widget_get_mapped(static_cast<GtkWidget*>(menu)) == 0) {
        g_signal_emit_by_name(menu, "hide");
    }
    return G_SOURCE_REMOVE;
}

gboolean MakeContextMenuReal(GSignalInvocationHint* /*signal*/, guint /*count*/, const GValue* values,
                             gpointer /*unused*/) {
    auto* menu = static_cast<GtkWidget*>(g_value_get_object(values + 1));
    gtk_widget_realize(menu);
    // A search in a list waits for the end of its menu before it ends itself, and would wait for ever for one
    // that cannot open.
    g_idle_add_full(G_PRIORITY_DEFAULT_IDLE, TellThatItIsClosed, g_object_ref(menu), g_object_unref);
    return kGoesOn;
}

void OfferNone(_GtkEntry* entry, gpointer /*unused*/) {
    g_signal_stop_emission_by_name(entry, "insert-emoji");
}

bool IsEntry(gpointer widget) {
    return g_type_is_a(G_OBJECT_TYPE(widget), gtk_entry_get_type()) != 0;
}

gboolean LeaveEmojiOut(GSignalInvocationHint* /*signal*/, guint /*count*/, const GValue* values,
                       gpointer /*unused*/) {
    constexpr unsigned kNoEmoji = 1U << 10U;
    gpointer widget = g_value_get_object(values);
    if (IsEntry(widget)) {
        g_object_set(widget, "input-hints", kNoEmoji, nullptr);
        g_signal_connect_data(widget, "insert-emoji", G_CALLBACK(OfferNone), nullptr, nullptr,
                              GConnectFlags{});
    }
    return kGoesOn;
}

void MoveInOrder(_GtkEntry* entry, int step, int count, gboolean select, gpointer /*unused*/) {
    constexpr int kInOrder = 0;
    constexpr int kAsSeen = 1;
    if (step == kAsSeen) {
        g_signal_stop_emission_by_name(entry, "move-cursor");
        g_signal_emit_by_name(entry, "move-cursor", kInOrder, count, select);
    }
}

gboolean LetCaretGo(gpointer entry) {
    g_object_thaw_notify(static_cast<GObject*>(entry));
    return G_SOURCE_REMOVE;
}

/// GTK tells of the focus once when it comes and again when there is nothing else to do, and in between it
/// selects the text. A screen reader takes the last word, by which time it has gone to the caret.
gboolean HoldCaretBack(GSignalInvocationHint* /*signal*/, guint /*count*/, const GValue* values,
                       gpointer /*unused*/) {
    constexpr int kBehindGtk = G_PRIORITY_LOW;
    gpointer widget = g_value_get_object(values);
    if (IsEntry(widget)) {
        g_object_freeze_notify(static_cast<GObject*>(widget));
        g_idle_add_full(kBehindGtk, LetCaretGo, g_object_ref(widget), g_object_unref);
    }
    return kGoesOn;
}

/// Otherwise the toolkit would show a window at once.
bool CanAskForBorders() {
    return wxGetDisplayInfo().type == wxDisplayX11 &&
           gdk_x11_screen_supports_net_wm_hint(gdk_screen_get_default(),
                                               gdk_atom_intern("_NET_REQUEST_FRAME_EXTENTS", 0)) != 0;
}

constexpr unsigned kAboveTheThemes = 600;

void AddStyle(const std::string& style, const std::function<void(_GtkStyleProvider*)>& add) {
    auto* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, style.c_str(), std::ssize(style), nullptr);
    add(reinterpret_cast<_GtkStyleProvider*>(provider));
    g_object_unref(provider);
}

/// The toolkit puts that off until there is nothing else to do, and a label leads to its control only then:
/// an access key that is pressed sooner would be lost.
void SettleTabOrder(wxWindow& window) {
    window.OnInternalIdle();
    for (auto* child : window.GetChildren()) {
        SettleTabOrder(*child);
    }
}

/// The kind that was chosen is shown with its ending, as in "SVG (*.svg)".
void TakeEnding(_GtkFileChooser* chooser, GParamSpec* /*property*/, void* /*data*/) {
    auto* kind = gtk_file_chooser_get_filter(chooser);
    const std::unique_ptr<char, decltype(&g_free)> typed(gtk_file_chooser_get_current_name(chooser), g_free);
    if (kind == nullptr || typed == nullptr || *typed == '\0') {
        return;
    }
    const std::string name(typed.get());
    std::string ending = gtk_file_filter_get_name(kind);
    ending = ending.substr(ending.rfind('.'), ending.rfind(')') - ending.rfind('.'));
    gtk_file_chooser_set_current_name(chooser, (name.substr(0, name.rfind('.')) + ending).c_str());
}

} // namespace

bool HasFont() {
    const std::unique_ptr<_PangoContext, decltype(&g_object_unref)> context(gdk_pango_context_get(),
                                                                            &g_object_unref);
    const std::unique_ptr<_PangoFontDescription, decltype(&pango_font_description_free)> any(
        pango_font_description_from_string("Sans"), &pango_font_description_free);
    const std::unique_ptr<_PangoFont, decltype(&g_object_unref)> font(
        pango_context_load_font(context.get(), any.get()), &g_object_unref);
    return font != nullptr;
}

double DotsPerInch() {
    const double resolution = gdk_screen_get_resolution(gdk_screen_get_default());
    return resolution > 0 ? resolution : kUsualDotsPerInch;
}

double DotsPerInch(const wxWindow& /*window*/) {
    return DotsPerInch();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the other system keeps it
void ObserveDotsPerInch(wxWindow& /*window*/, std::function<void()> /*changed*/) {
    // It is the same on all screens.
}

void LearnBorders() {
    if (!CanAskForBorders()) {
        return;
    }
    auto* probe = new wxFrame(nullptr, wxID_ANY, "");
    // The toolkit asks, and shows the window only when the answer has come. By then nobody wants to see it
    // any more.
    probe->Show();
    probe->Hide();
    WaitOn(nullptr, kWindowManagersTime, [&] { return probe->m_decorSize.top != 0; });
    delete probe;
}

void TellFocusFirst() {
    const guint signal = g_signal_lookup("focus-in-event", gtk_entry_get_type());
    g_signal_add_emission_hook(signal, 0, HoldCaretBack, nullptr, nullptr);
}

void CloseMenusThatFailed() {
    // GTK has such a menu take all keys and clicks even so.
    const guint taken = g_signal_lookup("grab-notify", gtk_widget_get_type());
    g_signal_add_emission_hook(taken, 0, FollowMenus, nullptr, nullptr);
    // Its signals are there once the kind of widget is.
    g_type_class_unref(g_type_class_ref(gtk_entry_get_type()));
    const guint opening = g_signal_lookup("populate-popup", gtk_entry_get_type());
    g_signal_add_emission_hook(opening, 0, MakeContextMenuReal, nullptr, nullptr);
}

void OfferNoEmoji() {
    // Neither in the context menu nor by Ctrl+full stop.
    const guint made = g_signal_lookup("realize", gtk_widget_get_type());
    g_signal_add_emission_hook(made, 0, LeaveEmojiOut, nullptr, nullptr);
}

void StrengthenFaintColours() {
    // The usual themes paint the mark at a third of the text's strength, the headers at half of it,
    // and what is selected on a ground that is too pale for white.
    const std::string style = "*:focus { outline-color: currentColor; }"
                              "entry:focus { border-color: currentColor; }"
                              "treeview.view header button { color: @theme_text_color; }"
                              "treeview.view:selected { background-color: " +
                              SelectionGround().GetAsString(wxC2S_HTML_SYNTAX).ToStdString() + "; }";
    AddStyle(style, [](_GtkStyleProvider* provider) {
        gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), provider, kAboveTheThemes);
    });
}

void SetAccessibleName(wxWindow& window, const wxString& name) {
    atk_object_set_name(AccessibleOf(window), name.utf8_str());
}

void SetAccessibleTreeName(wxTreeCtrl& tree, const wxString& name) {
    const auto tell = [&tree](wxTreeEvent& event) {
        event.Skip();
        SetAccessibleName(tree, EntryOf(tree));
    };
    tree.Bind(wxEVT_TREE_SEL_CHANGED, tell);
    tree.Bind(wxEVT_TREE_ITEM_EXPANDED, tell);
    tree.Bind(wxEVT_TREE_ITEM_COLLAPSED, tell);
    SetAccessibleDescription(tree, name);
    atk_object_set_role(AccessibleOf(tree), ATK_ROLE_TREE_ITEM);
    SetAccessibleName(tree, EntryOf(tree));
}

void SetAccessibleDescription(wxWindow& window, const wxString& description) {
    atk_object_set_description(AccessibleOf(window), description.utf8_str());
}

void SetAccessibleRole(wxWindow& window, AccessibleRole role) {
    // A top-level window's own widget bears the role, not the one in it that is painted.
    auto* widget = window.IsTopLevel() ? window.GetHandle() : FocusWidgetOf(window);
    atk_object_set_role(gtk_widget_get_accessible(widget), RoleOf(role));
}

void AnnounceNotice(wxWindow& notice) {
    // Screen readers say notices that come into sight.
    atk_object_notify_state_change(AccessibleOf(notice), ATK_STATE_SHOWING, 1);
}

void LetNameFollowKind(wxFileDialog& dialog) {
    g_signal_connect_data(dialog.m_widget, "notify::filter", G_CALLBACK(TakeEnding), nullptr, nullptr,
                          static_cast<GConnectFlags>(0));
}

void StopWatchingName(wxFileDialog& dialog) {
    // A moment after the name has changed GTK looks for it in its list of files, on a busy machine also when
    // that list is gone and the rest of the dialog only waits for the disk. The end of that rest needs the
    // timer as it is.
    constexpr gint64 kNever = -1;
    const std::unique_ptr<GList, decltype(&g_list_free)> parts(
        gtk_container_get_children(reinterpret_cast<_GtkContainer*>(
            gtk_dialog_get_content_area(reinterpret_cast<_GtkDialog*>(dialog.m_widget)))),
        g_list_free);
    for (const GList* part = parts.get(); part != nullptr; part = part->next) {
        if (GSource* look = g_main_context_find_source_by_user_data(nullptr, part->data)) {
            g_source_set_ready_time(look, kNever);
        }
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the other system keeps it
void RunBehindEvent(wxEvtHandler& owner, const std::function<void()>& work) {
    owner.CallAfter(work); // runs between two events
}

void FollowByEnter(wxHyperlinkCtrl& /*link*/, const std::function<void()>& /*follow*/) {
    // A link is a button to GTK, which Enter presses.
}

void IgnoreWheelWhileClosed(wxChoice& choice) {
    // A list that has dropped down is a window of its own.
    choice.Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

char DigitOn(const wxKeyEvent& event) {
    guint* symbols = nullptr;
    int count = 0;
    gdk_keymap_get_entries_for_keycode(gdk_keymap_get_for_display(gdk_display_get_default()),
                                       event.GetRawKeyFlags(), nullptr, &symbols, &count);
    const std::unique_ptr<guint, decltype(&g_free)> kept(symbols, g_free);
    const auto* end = symbols + count;
    const auto* digit = std::find_if(const_cast<const guint*>(symbols), end,
                                     [](guint symbol) { return symbol >= '0' && symbol <= '9'; });
    return digit == end ? '\0' : static_cast<char>(*digit);
}

void SetPasswordCharacter(wxTextCtrl& box, char character) {
    gtk_entry_set_invisible_char(reinterpret_cast<_GtkEntry*>(box.GetHandle()),
                                 static_cast<unsigned char>(character));
}

void LayOutUnseen(wxTopLevelWindow& window) {
    SettleTabOrder(window);
    // A window that first appears without a size has GTK complain of menus that do not fit in. One that got
    // its size before it is real never hears of it, and gives room to nothing that is shown
    // later.
    GiveSizeToPages(window);
    gtk_widget_realize(window.m_widget);
    GtkSizeNeeded needed{};
    gtk_widget_get_preferred_size(window.m_widget, nullptr, &needed);
    // Within the borders: what gets another size later is laid out once more.
    const wxSize given = window.GetSize();
    const auto& borders = window.m_decorSize;
    GtkRectangle size{0, 0, given.x - borders.left - borders.right, given.y - borders.top - borders.bottom};
    gtk_widget_size_allocate(window.m_widget, &size);
}

BoxInside InsideOf(wxStaticBox& box) {
    if (box.m_wxwindow == nullptr) {
        // A box gets its inside with its first child.
        delete new wxWindow(&box, wxID_ANY);
    }
    // GTK knows the inside only of a frame that has been given a size, whatever size that is.
    GtkSizeNeeded needed{};
    gtk_widget_get_preferred_size(box.m_widget, nullptr, &needed);
    GtkRectangle size{0, 0, needed.width, needed.height};
    gtk_widget_size_allocate(box.m_widget, &size);
    const auto outer = AllocationOf(box.m_widget);
    const auto inner = AllocationOf(box.m_wxwindow);
    const wxPoint origin(inner.x - outer.x, inner.y - outer.y);
    return {.origin = origin, .above = origin.y};
}

void ObserveFocus(wxWindow& window, std::function<void()> moved) {
    auto* kept = new Observer(std::move(moved));
    g_signal_connect_data(window.m_widget, "set-focus", G_CALLBACK(CallMoved), kept, DeleteObserver,
                          G_CONNECT_AFTER);
}

void ObserveMousePress(wxWindow& window, std::function<void()> pressed) {
    // It sees each press on its way down to the widget under the mouse, and leaves it alone.
    auto* gesture = gtk_gesture_multi_press_new(window.m_widget);
    gtk_gesture_single_set_button(reinterpret_cast<_GtkGestureSingle*>(gesture), kAnyButton);
    gtk_event_controller_set_propagation_phase(reinterpret_cast<_GtkEventController*>(gesture),
                                               kOnTheWayDown);
    g_signal_connect_data(gesture, "pressed", G_CALLBACK(CallPressed), new Observer(std::move(pressed)),
                          DeleteObserver, GConnectFlags{});
    g_signal_connect_data(window.m_widget, "destroy", G_CALLBACK(g_object_unref), gesture, nullptr,
                          G_CONNECT_SWAPPED);
}

void KeepMenuBarClosed(wxWindow& /*window*/) {
    // Alt alone does not open it.
}

bool HoldsFocus(const wxWindow& control) {
    auto* window = reinterpret_cast<_GtkWindow*>(gtk_widget_get_toplevel(control.m_widget));
    GtkWidget* focused = gtk_window_get_focus(window);
    return focused != nullptr &&
           (focused == control.m_widget || gtk_widget_is_ancestor(focused, control.m_widget) != 0);
}

void KeepFocusAway(wxButton& button) {
    button.SetCanFocus(false);
}

void HandOnAccessKey(wxWindow& window, wxKeyEvent& event) {
    constexpr int kAlt = 8;
    // GTK itself takes the key for done with the control that had it.
    gtk_window_mnemonic_activate(reinterpret_cast<_GtkWindow*>(gtk_widget_get_toplevel(window.m_widget)),
                                 gdk_keyval_to_lower(event.GetRawKeyCode()), kAlt);
}

long EveryKeyStyle() {
    return 0; // it gets every key anyhow
}

void DressLink(wxHyperlinkCtrl& link) {
    // It has that colour, and the room round it of a button.
    AddStyle("* { padding: 0; min-height: 0; min-width: 0; }", [&link](_GtkStyleProvider* provider) {
        gtk_style_context_add_provider(gtk_widget_get_style_context(link.GetHandle()), provider,
                                       kAboveTheThemes);
    });
    link.InvalidateBestSize();
}

void TakeLineEnds(wxTextCtrl& /*box*/) {
    // It takes them by itself.
}

void MoveQuickly(wxTextCtrl& box) {
    // GTK looks for the character that is seen to the left or right, which may be another one than the last
    // or the next only where a writing runs from right to left, and takes the square of the text's length for
    // it.
    g_signal_connect_data(box.GetHandle(), "move-cursor", G_CALLBACK(MoveInOrder), nullptr, nullptr,
                          GConnectFlags{});
}

void CloseDropDown(const wxChoice& choice) {
    gtk_combo_box_popdown(reinterpret_cast<_GtkComboBox*>(choice.m_widget));
}

void PrepareDropDown(const wxChoice& choice) {
    // Otherwise GTK complains of one that cannot open and is not real yet. Where the user's theme has it be
    // no menu, there is none.
    if (const GList* menus = gtk_menu_get_for_attach_widget(choice.m_widget)) {
        gtk_widget_realize(static_cast<GtkWidget*>(menus->data));
    }
}

void MakeHeaderPlain(wxDataViewColumn& column) {
    // The toolkit makes it a button once the list is real.
    g_signal_connect_data(column.GetGtkHandle(), "notify::clickable", G_CALLBACK(UnmakeButton), nullptr,
                          nullptr, GConnectFlags{});
    gtk_tree_view_column_set_clickable(reinterpret_cast<_GtkTreeViewColumn*>(column.GetGtkHandle()), 0);
}

wxWindow& KeyboardPart(wxDataViewCtrl& list) {
    return list;
}

void GoToRow(wxDataViewCtrl& list, int row) {
    constexpr int kEndOfIndices = -1;
    const std::unique_ptr<_GtkTreePath, FreePath> path(gtk_tree_path_new_from_indices(row, kEndOfIndices));
    gtk_tree_view_set_cursor(reinterpret_cast<_GtkTreeView*>(list.GtkGetTreeView()), path.get(), nullptr, 0);
}

} // namespace zy
