#include "desktop/PaintedDrawing.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>

#include <functional>

#include "ImagePoints.h"
#include "RulesWindow.h"

namespace zy::test {
namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 60;

/// Paints in black on white, ten twips a point, in the letters of the window.
class PaintedDrawing : public RulesWindow {
  protected:
    static int DarkPoints(const Drawing& drawing) {
        return DarkPoints([&](wxDC& canvas) {
            Paint(canvas, drawing, {*wxWHITE, *wxBLACK, RealFrame().GetFont(), 0.1}, Windows1252());
        });
    }
    static int DarkPointsOnPaper(const Drawing& drawing) {
        return DarkPoints([&](wxDC& canvas) {
            PaintOnPaper(canvas, drawing, {*wxWHITE, *wxBLACK, RealFrame().GetFont(), 0.1}, Windows1252());
        });
    }

  private:
    static int DarkPoints(const std::function<void(wxDC&)>& paint) {
        wxBitmap bitmap;
        bitmap.Create(kWidth, kHeight);
        {
            wxMemoryDC canvas(bitmap);
            canvas.SetBackground(*wxWHITE_BRUSH);
            canvas.Clear();
            paint(canvas);
        }
        return CountPoints(bitmap.ConvertToImage(),
                           [](int red, int /*green*/, int /*blue*/) { return red < 128; });
    }
};

TEST_F(PaintedDrawing, ShowsTextsInTheLettersOfTheWindow) {
    Play([] {
        InWindow([] {
            Drawing drawing;
            EXPECT_EQ(DarkPoints(drawing), 0);
            drawing.texts.push_back({{100, 100}, "the upper control limit"});
            EXPECT_GT(DarkPoints(drawing), 50);
        });
    });
}

TEST_F(PaintedDrawing, ShowsEveryShapeOnTheScreenAndOnPaper) {
    Play([] {
        InWindow([] {
            for (const auto count : {&PaintedDrawing::DarkPoints, &PaintedDrawing::DarkPointsOnPaper}) {
                Drawing line;
                line.lines.push_back({{100, 300}, {1900, 300}, 20});
                const int solid = count(line);
                EXPECT_GT(solid, 300);
                line.lines.front().stroke = Stroke::Dotted;
                const int dotted = count(line);
                EXPECT_GT(dotted, 50);
                EXPECT_LT(dotted, solid / 2 + 50);
                Drawing mark;
                mark.marks.push_back({{1000, 300}, 100});
                const int ring = count(mark);
                EXPECT_GT(ring, 20);
                mark.marks.front().shape = DrawnMark::Shape::Diamond;
                EXPECT_GT(count(mark), ring);
            }
        });
    });
}

} // namespace
} // namespace zy::test
