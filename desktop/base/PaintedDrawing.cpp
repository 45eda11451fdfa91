#include "desktop/PaintedDrawing.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/graphics.h>
#include <wx/math.h>
#include <wx/pen.h>

#include <algorithm>
#include <iterator>
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

/// What shapes are painted by.
class Shapes {
  public:
    virtual ~Shapes() = default;

    virtual void Line(const wxPoint2DDouble& from, const wxPoint2DDouble& to, const wxColour& colour,
                      double width) = 0;
    virtual void Ring(const wxPoint2DDouble& centre, double radius, const wxColour& colour, double width,
                      const wxColour& inside) = 0;
    virtual void Area(const std::vector<wxPoint2DDouble>& corners, const wxColour& colour, double width) = 0;
};

/// With soft edges, between the points of the screen too.
class SoftShapes final : public Shapes {
  public:
    explicit SoftShapes(wxDC& canvas) : canvas_(wxGraphicsContext::CreateFromUnknownDC(canvas)) {}
    bool IsOk() const { return canvas_ != nullptr; }

    void Line(const wxPoint2DDouble& from, const wxPoint2DDouble& to, const wxColour& colour,
              double width) override {
        SetPen(colour, width);
        canvas_->StrokeLine(from.m_x, from.m_y, to.m_x, to.m_y);
    }
    void Ring(const wxPoint2DDouble& centre, double radius, const wxColour& colour, double width,
              const wxColour& inside) override {
        SetPen(colour, width);
        canvas_->SetBrush(wxBrush(inside));
        canvas_->DrawEllipse(centre.m_x - radius, centre.m_y - radius, 2 * radius, 2 * radius);
    }
    void Area(const std::vector<wxPoint2DDouble>& corners, const wxColour& colour, double width) override {
        SetPen(colour, width);
        canvas_->SetBrush(wxBrush(colour));
        wxGraphicsPath path = canvas_->CreatePath();
        path.MoveToPoint(corners.front());
        for (const auto& corner : corners) {
            path.AddLineToPoint(corner);
        }
        path.CloseSubpath();
        canvas_->DrawPath(path);
    }

  private:
    void SetPen(const wxColour& colour, double width) {
        canvas_->SetPen(canvas_->CreatePen(wxGraphicsPenInfo(colour).Width(width).Cap(wxCAP_BUTT)));
    }

    std::unique_ptr<wxGraphicsContext> canvas_;
};

/// By the canvas's own means, which alone keep to its units on every system's paper.
class PlainShapes final : public Shapes {
  public:
    explicit PlainShapes(wxDC& canvas) : canvas_(canvas) {}

    void Line(const wxPoint2DDouble& from, const wxPoint2DDouble& to, const wxColour& colour,
              double width) override {
        SetPen(colour, width);
        canvas_.DrawLine(Rounded(from), Rounded(to));
    }
    void Ring(const wxPoint2DDouble& centre, double radius, const wxColour& colour, double width,
              const wxColour& inside) override {
        SetPen(colour, width);
        canvas_.SetBrush(wxBrush(inside));
        canvas_.DrawCircle(Rounded(centre), wxRound(radius));
    }
    void Area(const std::vector<wxPoint2DDouble>& corners, const wxColour& colour, double width) override {
        SetPen(colour, width);
        canvas_.SetBrush(wxBrush(colour));
        std::vector<wxPoint> points;
        points.reserve(corners.size());
        std::transform(corners.begin(), corners.end(), std::back_inserter(points), Rounded);
        canvas_.DrawPolygon(static_cast<int>(points.size()), points.data());
    }

  private:
    static wxPoint Rounded(const wxPoint2DDouble& place) { return {wxRound(place.m_x), wxRound(place.m_y)}; }
    void SetPen(const wxColour& colour, double width) {
        wxPen pen(colour, wxRound(width));
        pen.SetCap(wxCAP_BUTT);
        canvas_.SetPen(pen);
    }

    wxDC& canvas_;
};

/// One drawing on one canvas.
class Painter {
  public:
    Painter(Shapes& shapes, const Paints& paints) : shapes_(shapes), paints_(paints) {}

    void Paint(const Drawing& drawing) {
        for (const auto& line : drawing.lines) {
            Paint(line);
        }
        for (const auto& mark : drawing.marks) {
            Paint(mark);
        }
    }

  private:
    static constexpr double kOutline = 15; // in twips

    double Units(double twips) const { return twips * paints_.unitsPerTwip; }

    void Paint(const DrawnLine& line) {
        const double width = Units(line.width);
        const wxColour colour = ColourOf(line.ink, paints_);
        const wxPoint2DDouble from(Units(line.from.x), Units(line.from.y));
        const wxPoint2DDouble to(Units(line.to.x), Units(line.to.y));
        const auto dashes = DashesOf(line.stroke);
        if (dashes.empty()) {
            shapes_.Line(from, to, colour, width);
        } else {
            PaintDashes(from, to, dashes, colour, width);
        }
    }

    void Paint(const DrawnMark& mark) {
        const double radius = Units(mark.radius);
        const double x = Units(mark.centre.x);
        const double y = Units(mark.centre.y);
        const wxColour colour = ColourOf(mark.ink, paints_);
        if (mark.shape == DrawnMark::Shape::Ring) {
            shapes_.Ring({x, y}, radius, colour, Units(kOutline), paints_.ground);
        } else {
            shapes_.Area({{x, y - radius}, {x + radius, y}, {x, y + radius}, {x - radius, y}}, colour,
                         Units(kOutline));
        }
    }

    /// One by one: what pens make of dashes differs from system to system.
    void PaintDashes(const wxPoint2DDouble& from, const wxPoint2DDouble& to,
                     const std::vector<double>& dashes, const wxColour& colour, double width) {
        const double length = from.GetDistance(to);
        const wxPoint2DDouble step = (to - from) / length;
        double at = 0;
        for (std::size_t part = 0; at < length; ++part) {
            const double end = std::min(at + dashes[part % dashes.size()] * width, length);
            if (part % 2 == 0) {
                shapes_.Line(from + step * at, from + step * end, colour, width);
            }
            at = end;
        }
    }

    Shapes& shapes_;
    const Paints& paints_;
};

/// As all other texts of the window are painted: what paints soft shapes does not know every font of Windows,
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
    if (SoftShapes shapes(canvas); shapes.IsOk()) {
        Painter(shapes, paints).Paint(drawing);
    }
    PaintTexts(canvas, drawing, paints, codePage);
}

void PaintOnPaper(wxDC& canvas, const Drawing& drawing, const Paints& paints, const CodePage& codePage) {
    PlainShapes shapes(canvas);
    Painter(shapes, paints).Paint(drawing);
    PaintTexts(canvas, drawing, paints, codePage);
}

} // namespace zy
