#include "desktop/PaintedDrawing.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/graphics.h>
#include <wx/math.h>
#include <wx/pen.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "desktop/Contrast.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

wxColour ColourOf(Ink ink, const Paints& paints) {
    const wxColour kYellow(0xE8, 0xC0, 0x00);
    const wxColour kRed(0xD0, 0x20, 0x20);
    const wxColour kGreen(0x20, 0xA0, 0x40);
    switch (ink) {
    case Ink::White:
        return ColourNoticedOn(paints.ground, *wxWHITE);
    case Ink::Yellow:
        return ColourNoticedOn(paints.ground, kYellow);
    case Ink::Red:
        return ColourNoticedOn(paints.ground, kRed);
    case Ink::Green:
        return ColourNoticedOn(paints.ground, kGreen);
    case Ink::Text:
        break;
    }
    return paints.text;
}

/// One drawing on one canvas.
class Painter {
  public:
    Painter(wxGraphicsContext& canvas, const Paints& paints) : canvas_(canvas), paints_(paints) {}

    void Paint(const DrawnLine& line) {
        const double width = Units(line.width);
        canvas_.SetPen(
            canvas_.CreatePen(wxGraphicsPenInfo(ColourOf(line.ink, paints_)).Width(width).Cap(wxCAP_BUTT)));
        const wxPoint2DDouble from(Units(line.from.x), Units(line.from.y));
        const wxPoint2DDouble to(Units(line.to.x), Units(line.to.y));
        const auto dashes = DashesOf(line.stroke);
        if (dashes.empty()) {
            canvas_.StrokeLine(from.m_x, from.m_y, to.m_x, to.m_y);
        } else {
            PaintDashes(from, to, dashes, width);
        }
    }

    void Paint(const DrawnMark& mark) {
        const double radius = Units(mark.radius);
        const double x = Units(mark.centre.x);
        const double y = Units(mark.centre.y);
        const wxColour colour = ColourOf(mark.ink, paints_);
        canvas_.SetPen(canvas_.CreatePen(wxGraphicsPenInfo(colour).Width(Units(kOutline))));
        if (mark.shape == DrawnMark::Shape::Ring) {
            canvas_.SetBrush(wxBrush(paints_.ground));
            canvas_.DrawEllipse(x - radius, y - radius, 2 * radius, 2 * radius);
        } else {
            canvas_.SetBrush(wxBrush(colour));
            wxGraphicsPath path = canvas_.CreatePath();
            path.MoveToPoint(x, y - radius);
            path.AddLineToPoint(x + radius, y);
            path.AddLineToPoint(x, y + radius);
            path.AddLineToPoint(x - radius, y);
            path.CloseSubpath();
            canvas_.DrawPath(path);
        }
    }

  private:
    static constexpr double kOutline = 15; // in twips

    double Units(double twips) const { return twips * paints_.unitsPerTwip; }

    /// One by one: what pens make of dashes differs from system to system.
    void PaintDashes(const wxPoint2DDouble& from, const wxPoint2DDouble& to,
                     const std::vector<double>& dashes, double width) {
        const double length = from.GetDistance(to);
        const wxPoint2DDouble step = (to - from) / length;
        wxGraphicsPath path = canvas_.CreatePath();
        double at = 0;
        for (std::size_t part = 0; at < length; ++part) {
            const double end = std::min(at + dashes[part % dashes.size()] * width, length);
            if (part % 2 == 0) {
                path.MoveToPoint(from + step * at);
                path.AddLineToPoint(from + step * end);
            }
            at = end;
        }
        canvas_.StrokePath(path);
    }

    wxGraphicsContext& canvas_;
    const Paints& paints_;
};

void PaintShapes(wxDC& canvas, const Drawing& drawing, const Paints& paints) {
    const std::unique_ptr<wxGraphicsContext> shapes(wxGraphicsContext::CreateFromUnknownDC(canvas));
    if (!shapes) {
        return;
    }
    Painter painter(*shapes, paints);
    for (const auto& line : drawing.lines) {
        painter.Paint(line);
    }
    for (const auto& mark : drawing.marks) {
        painter.Paint(mark);
    }
}

/// As all other texts of the window are painted: what paints the shapes does not know every font of Windows,
/// and leaves texts in others out.
void PaintTexts(wxDC& canvas, const Drawing& drawing, const Paints& paints, const CodePage& codePage) {
    canvas.SetFont(paints.font);
    canvas.SetTextForeground(paints.text);
    for (const auto& [leftTop, text] : drawing.texts) {
        canvas.DrawText(ToShown(codePage, text), wxRound(leftTop.x * paints.unitsPerTwip),
                        wxRound(leftTop.y * paints.unitsPerTwip));
    }
}

} // namespace

void Paint(wxDC& canvas, const Drawing& drawing, const Paints& paints, const CodePage& codePage) {
    PaintShapes(canvas, drawing, paints);
    PaintTexts(canvas, drawing, paints, codePage);
}

} // namespace zy
