#include "desktop/DrawingBoxBinding.h"

#include <wx/dcbuffer.h>
#include <wx/settings.h>

#include "desktop/Native.h"
#include "desktop/PaintedDrawing.h"

namespace zy {
namespace {

/// Takes neither the keyboard nor the place of a stop of Tab.
class Canvas final : public wxWindow {
  public:
    explicit Canvas(wxWindow* parent) {
        SetBackgroundStyle(wxBG_STYLE_PAINT);
        Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxFULL_REPAINT_ON_RESIZE);
    }

    bool AcceptsFocus() const override { return false; }
};

} // namespace

DrawingBoxBinding::DrawingBoxBinding(const ViewContext& context, const Inside& inside, DrawingBox& model)
    : ControlBinding(context, inside, model), model_(model) {
    auto* window = new Canvas(Parent());
    window->Bind(wxEVT_PAINT, [this, window](wxPaintEvent&) {
        wxAutoBufferedPaintDC canvas(window);
        PaintOn(canvas);
    });
    window->Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        Idle();
    });
    window->Bind(wxEVT_SYS_COLOUR_CHANGED, [window](wxSysColourChangedEvent& event) {
        event.Skip();
        window->Refresh();
    });
    Keep(model_.changed.Observe([this] { ShowChange(); }));
    Attach(window);
    SetAccessibleName(*window, Shown(model_.Caption()));
    SetAccessibleRole(*window, AccessibleRole::Picture);
}

void DrawingBoxBinding::Measure() {
    constexpr int kLetters = 30; // more, and there is none in a window of the usual size
    constexpr int kLines = 5;
    const wxSize line = Window().GetTextExtent(wxString('x', kLetters));
    model_.SetPreferred(Context().scale.ToTwips(wxSize(line.x, kLines * line.y)));
}

void DrawingBoxBinding::ShowChange() {
    if (isOpen_) {
        Window().Refresh();
    }
}

void DrawingBoxBinding::Idle() {
    if (isBlankSeen_ && !isOpen_) {
        isOpen_ = true;
        Window().Refresh();
    }
    if (isOpen_ && described_ != model_.Description()) {
        described_ = model_.Description();
        SetAccessibleDescription(Window(), Shown(described_));
    }
}

void DrawingBoxBinding::PaintOn(wxDC& canvas) {
    const wxColour ground = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
    const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    canvas.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT)));
    canvas.SetBrush(wxBrush(ground));
    canvas.DrawRectangle(Window().GetClientSize());
    isBlankSeen_ = true;
    if (!isOpen_) {
        return;
    }
    const Paints paints{ground, text, Window().GetFont(), 1 / Context().scale.TwipsPerPixel()};
    Paint(canvas, DrawingForWindow(), paints, Context().codePage);
}

Drawing DrawingBoxBinding::DrawingForWindow() const {
    const auto& scale = Context().scale;
    const auto width = [this, &scale](std::string_view text) {
        return scale.ToTwips(Window().GetTextExtent(Shown(text)).x);
    };
    const Lettering letters{scale.ToTwips(Window().GetCharHeight()), width};
    Drawing drawing;
    Gate().Answer([&] { drawing = model_.DrawingIn(scale.ToTwips(Window().GetClientSize()), letters); });
    return drawing;
}

} // namespace zy
