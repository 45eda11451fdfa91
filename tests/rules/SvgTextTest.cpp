#include "rules/SvgText.h"

#include <gmock/gmock.h>

#include "platform/CodePage.h"

namespace zy::test {
namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string SvgOf(const Drawing& drawing) {
    return zy::SvgOf(drawing, {9000, 3000}, "Rules", Windows1252());
}

TEST(SvgText, IsAPictureOfItsSizeOnWhiteWithATitle) {
    EXPECT_EQ(SvgOf({}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"450pt\" height=\"150pt\""
              " viewBox=\"0 0 9000 3000\">\n"
              "<title>Rules</title>\n"
              "<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n"
              "<g font-family=\"Helvetica, Arial, 'Liberation Sans', sans-serif\" font-size=\"200\""
              " fill=\"#000000\">\n"
              "</g>\n</svg>\n");
}

TEST(SvgText, HasEachShapeInItsColour) {
    Drawing drawing;
    drawing.lines.push_back({{10, 20}, {30.25, 40}, 20, Ink::Red, Stroke::Dashed});
    drawing.lines.push_back({{10, 20}, {30, 40}, 12});
    drawing.marks.push_back({{100, 50}, 30});
    drawing.marks.push_back({{100, 50}, 30, Ink::Red, DrawnMark::Shape::Diamond});
    EXPECT_THAT(SvgOf(drawing),
                AllOf(HasSubstr("<path d=\"M10 20 L30.2 40\" stroke=\"#C01818\" stroke-width=\"20\""
                                " stroke-dasharray=\"100 60\"/>\n"),
                      HasSubstr("<path d=\"M10 20 L30 40\" stroke=\"#000000\" stroke-width=\"12\"/>\n"),
                      HasSubstr("<circle cx=\"100\" cy=\"50\" r=\"30\" fill=\"#FFFFFF\" stroke=\"#000000\""),
                      HasSubstr("<path d=\"M100 20 L130 50 L100 80 L70 50 Z\" fill=\"#C01818\"/>\n")));
}

TEST(SvgText, TellsTheLinesApartWithoutTheirColours) {
    const auto dashesOf = [](Stroke stroke) {
        Drawing drawing;
        drawing.lines.push_back({{0, 0}, {1, 1}, 10, Ink::Text, stroke});
        return SvgOf(drawing);
    };
    EXPECT_THAT(dashesOf(Stroke::Dotted), HasSubstr("stroke-dasharray=\"10 20\""));
    EXPECT_THAT(dashesOf(Stroke::DashDotted), HasSubstr("stroke-dasharray=\"60 20 10 20\""));
    EXPECT_THAT(dashesOf(Stroke::LongDashed), HasSubstr("stroke-dasharray=\"120 40\""));
    EXPECT_THAT(dashesOf(Stroke::Solid), Not(HasSubstr("dasharray")));
}

TEST(SvgText, HasItsWordsInUtf8WithNothingOfThemTakenForMarkup) {
    Drawing drawing;
    drawing.texts.push_back({{100, 200}, "a<b> & \xB0\x01 \"c\""});
    EXPECT_THAT(SvgOf(drawing),
                HasSubstr("<text x=\"100\" y=\"380\">a&lt;b&gt; &amp; \xC2\xB0  \"c\"</text>\n"));
}

TEST(SvgText, KnowsHowWideTheLettersOfTheUsualFontsAre) {
    const auto letters = SvgLettering();
    EXPECT_EQ(letters.width(""), 0);
    EXPECT_EQ(letters.width("W"), 189);
    EXPECT_EQ(letters.width("il "), 145);
    EXPECT_EQ(letters.width("\xB0"), 112);
    EXPECT_GT(letters.height, 200);
}

} // namespace
} // namespace zy::test
