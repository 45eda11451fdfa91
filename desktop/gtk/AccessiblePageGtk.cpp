#include "desktop/AccessiblePage.h"

#include <wx/nativewin.h>
#include <wx/weakref.h>
#include <wx/window.h>

#include <string>
#include <tuple>
#include <vector>

#include "desktop/AccessibleObject.h"
#include "desktop/GtkFunctions.h"
#include "desktop/Native.h"

extern "C" {
GType gtk_drawing_area_get_type();
GType gtk_widget_accessible_get_type();
void gtk_widget_set_has_window(GtkWidget* widget, int hasWindow);
}

namespace zy {
namespace {

constexpr const char* kContent = "zy-content";
constexpr int kGone = -1;

/// What a document, or one of its parts, tells of.
struct Shown {
    wxWindow& page;
    PageContent& content;
};

const Shown* ShownBy(gpointer document) {
    return static_cast<const Shown*>(g_object_get_data(static_cast<GObject*>(document), kContent));
}

// A paragraph, a heading or a link of the page.

struct PartObject {
    AtkObject base;
    AtkObject* document;
    int number; ///< kGone when the page has been left
    std::string* text;
};

template <typename T>
PartObject& Part(T* object) {
    return *reinterpret_cast<PartObject*>(object);
}

template <typename T>
const Shown* ShownAround(T* part) {
    return Part(part).number == kGone ? nullptr : ShownBy(Part(part).document);
}

const char* NameOfPart(AtkObject* part) {
    const auto* shown = ShownAround(part);
    *Part(part).text = shown == nullptr ? "" : shown->content.Text(Part(part).number).utf8_string();
    return Part(part).text->c_str();
}

AtkObject* ParentOfPart(AtkObject* part) {
    return Part(part).document;
}

int IndexOfPart(AtkObject* part) {
    return Part(part).number;
}

AtkRole RoleOfPart(AtkObject* part) {
    const auto* shown = ShownAround(part);
    switch (shown == nullptr ? PageContent::Kind::Paragraph : shown->content.KindOf(Part(part).number)) {
    case PageContent::Kind::Title:
    case PageContent::Kind::Heading:
        return ATK_ROLE_HEADING;
    case PageContent::Kind::Link:
        return ATK_ROLE_LINK;
    case PageContent::Kind::Paragraph:
        break;
    }
    return ATK_ROLE_PARAGRAPH;
}

AtkAttributeSet* AttributesOfPart(AtkObject* part) {
    if (RoleOfPart(part) != ATK_ROLE_HEADING) {
        return nullptr;
    }
    const bool isTitle = ShownAround(part)->content.KindOf(Part(part).number) == PageContent::Kind::Title;
    auto* level = g_new(AtkAttribute, 1);
    *level = {.name = g_strdup("level"), .value = g_strdup(isTitle ? "1" : "2")};
    return g_slist_prepend(nullptr, level);
}

AtkStateSet* StatesOfPart(AtkObject* part) {
    auto* set = atk_state_set_new();
    const auto* shown = ShownAround(part);
    if (shown == nullptr) {
        Add(set, ATK_STATE_DEFUNCT);
        return set;
    }
    Add(set, ATK_STATE_ENABLED, ATK_STATE_SENSITIVE, ATK_STATE_VISIBLE);
    if (RoleOfPart(part) != ATK_ROLE_PARAGRAPH) {
        // A paragraph that can be focused is to a screen reader a text field that nobody may edit.
        Add(set, ATK_STATE_FOCUSABLE);
    }
    if (shown->page.GetScreenRect().Intersects(shown->content.PlaceOf(Part(part).number))) {
        Add(set, ATK_STATE_SHOWING);
    }
    if (shown->content.Current() == Part(part).number && shown->page.wxWindow::HasFocus()) {
        Add(set, ATK_STATE_FOCUSED);
    }
    return set;
}

void GetExtents(AtkComponent* part, int* x, int* y, int* width, int* height, AtkCoordType kind) {
    const auto* shown = ShownAround(part);
    wxRect place = shown == nullptr ? wxRect() : shown->content.PlaceOf(Part(part).number);
    if (shown != nullptr && kind != ATK_XY_SCREEN) {
        place.Offset(-wxGetTopLevelParent(&shown->page)->GetScreenPosition());
    }
    std::tie(*x, *y, *width, *height) = std::tie(place.x, place.y, place.width, place.height);
}

void InitComponent(gpointer interface, gpointer /*unused*/) {
    static_cast<AtkComponentIface*>(interface)->get_extents = GetExtents;
}

int CountActions(AtkAction* part) {
    return RoleOfPart(reinterpret_cast<AtkObject*>(part)) == ATK_ROLE_LINK ? 1 : 0;
}

const char* NameOfAction(AtkAction* /*part*/, int /*action*/) {
    return "jump";
}

gboolean DoAction(AtkAction* part, int /*action*/) {
    const auto* shown = ShownAround(part);
    if (shown != nullptr) {
        shown->content.Follow(Part(part).number);
    }
    return shown == nullptr ? 0 : 1;
}

void InitAction(gpointer interface, gpointer /*unused*/) {
    auto* answers = static_cast<AtkActionIface*>(interface);
    answers->get_n_actions = CountActions;
    answers->get_name = NameOfAction;
    answers->do_action = DoAction;
}

void FinalizePart(GObject* part) {
    delete Part(part).text;
    g_object_unref(Part(part).document);
    KnownClass<GObjectClass>(ATK_TYPE_OBJECT).finalize(part);
}

void InitPartClass(gpointer type, gpointer /*unused*/) {
    static_cast<GObjectClass*>(type)->finalize = FinalizePart;
    auto* answers = static_cast<AtkObjectClass*>(type);
    answers->get_name = NameOfPart;
    answers->get_parent = ParentOfPart;
    answers->get_index_in_parent = IndexOfPart;
    answers->get_role = RoleOfPart;
    answers->get_attributes = AttributesOfPart;
    answers->ref_state_set = StatesOfPart;
}

GType RegisterPart() {
    const GType type =
        RegisterKind(ATK_TYPE_OBJECT, "ZyPagePart", InitPartClass, sizeof(PartObject) - sizeof(AtkObject));
    AddInterface(type, ATK_TYPE_COMPONENT, InitComponent);
    AddInterface(type, ATK_TYPE_ACTION, InitAction);
    return type;
}

AtkObject* MakePart(AtkObject* document, int number) {
    static const GType kType = RegisterPart();
    auto* part = static_cast<AtkObject*>(g_object_new(kType, nullptr));
    Part(part).document = Ref(document);
    Part(part).number = number;
    Part(part).text = new std::string;
    return part;
}

// The whole page: the accessible object of a widget of its own that nobody sees, for the page's widget is of
// a class with all that the toolkit paints.

constexpr const char* kParts = "zy-parts";

using Parts = std::vector<HeldObject>;

Parts& PartsIn(AtkObject* document) {
    return *static_cast<Parts*>(g_object_get_data(reinterpret_cast<GObject*>(document), kParts));
}

int CountParts(AtkObject* document) {
    return ShownBy(document) == nullptr ? 0 : static_cast<int>(PartsIn(document).size());
}

AtkObject* RefPart(AtkObject* document, int number) {
    const bool isThere = number >= 0 && number < CountParts(document);
    return isThere ? Ref(PartsIn(document)[static_cast<std::size_t>(number)].get()) : nullptr;
}

void InitDocumentClass(gpointer type, gpointer /*unused*/) {
    auto* answers = static_cast<AtkObjectClass*>(type);
    answers->get_n_children = CountParts;
    answers->ref_child = RefPart;
}

void InitWidgetClass(gpointer type, gpointer /*unused*/) {
    gtk_widget_class_set_accessible_type(
        static_cast<_GtkWidgetClass*>(type),
        RegisterKind(gtk_widget_accessible_get_type(), "ZyDocument", InitDocumentClass));
}

GtkWidget* MakeWidget() {
    static const GType kType = RegisterKind(gtk_drawing_area_get_type(), "ZyPageWidget", InitWidgetClass);
    auto* widget = static_cast<GtkWidget*>(g_object_new(kType, nullptr));
    gtk_widget_set_has_window(widget, 0);
    return widget;
}

/// Holds that widget, and leaves the keyboard to the page.
class Holder final : public wxNativeWindow {
  public:
    // The page asks while it is created.
    bool AcceptsFocus() const override { return false; }
    bool AcceptsFocusFromKeyboard() const override { return false; }
    bool AcceptsFocusRecursively() const override { return false; }
};

class Document final : public AccessiblePage {
  public:
    Document(wxWindow& page, PageContent& content) : page_(&page), shown_{.page = page, .content = content} {
        auto* widget = MakeWidget();
        auto* holder = new Holder;
        holder->Create(&page, wxID_ANY, widget);
        holder->SetSize(1, 1);
        object_.reset(Ref(gtk_widget_get_accessible(widget)));
        atk_object_set_role(object_.get(), ATK_ROLE_DOCUMENT_FRAME);
        Attach(&shown_, new Parts);
        SetAccessibleName(page, "Page");
        SetAccessibleDescription(page, content.Description());
        page.Bind(wxEVT_SET_FOCUS, &Document::TakeFocus, this);
    }
    ~Document() override {
        LetGo();
        Attach(nullptr, nullptr);
        if (page_) {
            page_->Unbind(wxEVT_SET_FOCUS, &Document::TakeFocus, this);
        }
    }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    void TellCurrent() override {
        const int current = shown_.content.Current();
        if (current >= 0 && page_->wxWindow::HasFocus()) {
            const HeldObject part(RefPart(object_.get(), current));
            atk_object_notify_state_change(part.get(), ATK_STATE_FOCUSED, 1);
        }
    }
    void TellPage() override {
        LetGo();
        atk_object_set_name(object_.get(), shown_.content.Name().utf8_str());
        for (int part = 0; part < shown_.content.Count(); ++part) {
            PartsIn(object_.get()).emplace_back(MakePart(object_.get(), part));
        }
        TellCurrent();
    }

  private:
    void Attach(Shown* shown, Parts* parts) {
        auto* object = reinterpret_cast<GObject*>(object_.get());
        g_object_set_data(object, kContent, shown);
        g_object_set_data_full(object, kParts, parts,
                               [](gpointer kept) { delete static_cast<Parts*>(kept); });
    }
    /// The parts of the page that is left.
    void LetGo() {
        for (auto& part : PartsIn(object_.get())) {
            Part(part.get()).number = kGone;
            atk_object_notify_state_change(part.get(), ATK_STATE_DEFUNCT, 1);
        }
        PartsIn(object_.get()).clear();
    }
    void TakeFocus(wxFocusEvent& event) {
        event.Skip();
        // Behind the window system's own word, which is of the page's window.
        page_->CallAfter([this] { TellCurrent(); });
    }

    wxWeakRef<wxWindow> page_;
    Shown shown_;
    HeldObject object_;
};

} // namespace

std::unique_ptr<AccessiblePage> MakeAccessiblePage(wxWindow& page, PageContent& content) {
    return std::make_unique<Document>(page, content);
}

} // namespace zy
