#include "units/UnitsFileText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "shell/mZYGlobal.h"

namespace zy::test {
namespace {

std::vector<std::string> CellsOf(std::string_view text) {
    std::vector<TextPlace> places;
    TextParts cells(text, places);
    AppendUnitCells(text, "path", cells);
    std::vector<std::string> texts;
    for (const auto place : places) {
        texts.emplace_back(place.In(text));
    }
    return texts;
}

TEST(UnitsFileText, GivesTheFirstTwoFieldsThatSplitFieldsGivesForEachLine) {
    constexpr unsigned kSeed = 410;
    std::mt19937 random(kSeed);
    constexpr std::string_view kCharacters = ",,\t \"ax\r\n\xB0";
    for (int file = 0; file < 300; ++file) {
        std::string text;
        std::vector<std::string> expected;
        for (auto lines = random() % 20; lines > 0; --lines) {
            std::string line;
            for (auto length = random() % 12; length > 0; --length) {
                line += kCharacters[random() % kCharacters.size()];
            }
            line += random() % 2 == 0 ? ',' : '\t'; // so that there are two fields
            line += 'z';                            // so that no line end begins here
            const auto fields = SplitFields(line);
            if (line.find("\r\n") == std::string::npos) {
                expected.emplace_back(fields.Text(2));
                expected.emplace_back(fields.Text(1));
                text += line + "\r\n";
            }
        }
        EXPECT_EQ(CellsOf(text), expected) << ::testing::PrintToString(text) << " of seed " << kSeed;
    }
}

TEST(UnitsFileText, AppendsToTheCellsThatAreThere) {
    constexpr std::string_view kText = "A,a\r\n";
    std::vector<TextPlace> places;
    TextParts cells(kText, places);
    cells.Append(kText.substr(1, 1));
    AppendUnitCells(kText, "path", cells);
    ASSERT_EQ(places.size(), 3U);
    EXPECT_EQ(places[0].In(kText), ",");
    EXPECT_EQ(places[1].In(kText), "a");
    EXPECT_EQ(places[2].In(kText), "A");
}

} // namespace
} // namespace zy::test
