#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <stdexcept>

#include "ImagePoints.h"
#include "RulesWindow.h"
#include "desktop/DesktopPaper.h"
#include "desktop/Printout.h"

namespace zy::test {
namespace {

constexpr int kPointsPerInch = 72;
constexpr int kWidth = 8 * kPointsPerInch;
constexpr int kHeight = 11 * kPointsPerInch;

/// A sheet of paper as a printer takes it from the program, in memory.
class PrintedPaper : public RulesWindow {
  protected:
    using Work = std::function<void(Printout&, wxMemoryDC&)>;

    static void Print(const Printout::MakePages& make, const Work& work) {
        EventGate gate;
        wxBitmap bitmap;
        bitmap.Create(kWidth, kHeight);
        wxMemoryDC canvas(bitmap);
        canvas.SetBackground(*wxWHITE_BRUSH);
        canvas.Clear();
        Printout printout("Rules", Windows1252(), gate, make);
        printout.SetDC(&canvas);
        printout.SetPPIPrinter(kPointsPerInch, kPointsPerInch);
        printout.OnPreparePrinting();
        work(printout, canvas);
        printout.SetDC(nullptr);
        picture = bitmap.ConvertToImage();
    }
    static int DarkPointsIn(const wxRect& place) {
        return CountPoints(picture.GetSubImage(place),
                           [](int red, int /*green*/, int /*blue*/) { return red < 128; });
    }
    /// One line and one text, both an inch from the top, half an inch long or less, an inch from the left.
    static Pages OnePage() {
        return {1, [](int /*page*/) {
                    Drawing drawing;
                    drawing.lines.push_back({{1440, 1440}, {2160, 1440}, 60});
                    drawing.texts.push_back({{1440, 2880}, "mm"});
                    return drawing;
                }};
    }

    inline static wxImage picture;
};

TEST_F(PrintedPaper, HasTheSizeOfThePrintersPageInTwips) {
    Play([] {
        InWindow([] {
            Size page;
            Print(
                [&](const Size& size, const Lettering& letters) {
                    page = size;
                    EXPECT_NEAR(letters.height, 230, 60) << "ten points and what stands between lines";
                    EXPECT_GT(letters.width("mm"), letters.width("i"));
                    return OnePage();
                },
                [](Printout&, wxMemoryDC&) {});
            EXPECT_EQ(page, (Size{8 * 1440, 11 * 1440}));
        });
    });
}

TEST_F(PrintedPaper, ShowsShapesAndTextsInTheirSizesAtTheirPlaces) {
    Play([] {
        InWindow([] {
            Print([](const Size&, const Lettering&) { return OnePage(); },
                  [](Printout& printout, wxMemoryDC&) { EXPECT_TRUE(printout.OnPrintPage(1)); });
            const wxRect line(72, 69, 36, 6);
            const wxRect text(70, 142, 40, 20);
            EXPECT_NEAR(DarkPointsIn(line), 36 * 3, 40);
            EXPECT_GT(DarkPointsIn(text), 15);
            EXPECT_EQ(DarkPointsIn({0, 0, kWidth, kHeight}), DarkPointsIn(line) + DarkPointsIn(text));
        });
    });
}

TEST_F(PrintedPaper, HasThePagesThatAreMadeForIt) {
    Play([] {
        InWindow([] {
            Print(
                [](const Size&, const Lettering&) {
                    return Pages{3, {}};
                },
                [](Printout& printout, wxMemoryDC&) {
                    int least = 0;
                    int most = 0;
                    int from = 0;
                    int to = 0;
                    printout.GetPageInfo(&least, &most, &from, &to);
                    EXPECT_EQ(std::vector({least, most, from, to}), std::vector({1, 3, 1, 3}));
                    EXPECT_FALSE(printout.HasPage(0));
                    EXPECT_TRUE(printout.HasPage(3));
                    EXPECT_FALSE(printout.HasPage(4));
                });
        });
    });
}

TEST_F(PrintedPaper, EndsAtAPageThatCannotBeMade) {
    Play([] {
        InWindow([] {
            const auto fails = [](int /*page*/) -> Drawing { throw std::runtime_error("no page"); };
            Print(
                [&](const Size&, const Lettering&) {
                    return Pages{2, fails};
                },
                [](Printout& printout, wxMemoryDC&) { EXPECT_FALSE(printout.OnPrintPage(1)); });
        });
    });
}

/// A sheet as a file of points.
class PngOfASheet : public RulesWindow {
  protected:
    static std::optional<std::string> PngOf(const Sheet& sheet) {
        EventGate gate;
        return DesktopPaper(Windows1252(), gate).PngOf([&](const Lettering&) { return sheet; });
    }
    /// A number of four bytes, the highest first.
    static std::uint32_t NumberAt(const std::string& bytes, std::size_t place) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            number = number << 8 | static_cast<unsigned char>(bytes.at(place + i));
        }
        return number;
    }
};

TEST_F(PngOfASheet, HasTenthsOfItsTwipsAsPoints) {
    Play([] {
        InWindow([] {
            const auto png = PngOf({{}, {1440, 700}}).value_or("");
            ASSERT_GT(png.size(), 24U);
            EXPECT_EQ(png.substr(0, 16), std::string("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR", 16));
            EXPECT_EQ(NumberAt(png, 16), 144U);
            EXPECT_EQ(NumberAt(png, 20), 70U);
        });
    });
}

TEST_F(PngOfASheet, IsNotMadeBeyondThirtyThousandPoints) {
    Play([] {
        InWindow([] {
            EXPECT_TRUE(PngOf({{}, {100, 300000}}));
            EXPECT_FALSE(PngOf({{}, {100, 300010}}));
            EXPECT_FALSE(PngOf({{}, {300010, 100}}));
        });
    });
}

} // namespace
} // namespace zy::test
