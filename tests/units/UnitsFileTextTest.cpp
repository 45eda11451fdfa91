#include "units/UnitsFileText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "shell/mZYGlobal.h"

namespace zy::test {
namespace {

std::vector<std::string> CellsOf(std::string_view text) {
    TextParts cells(text);
    AppendUnitCells(text, "path", cells);
    std::vector<std::string> texts;
    for (std::size_t cell = 0; cell < cells.Count(); ++cell) {
        texts.emplace_back(cells[cell]);
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
    TextParts cells(kText);
    cells.Append(kText.substr(1, 1));
    AppendUnitCells(kText, "path", cells);
    ASSERT_EQ(cells.Count(), 3U);
    EXPECT_EQ(cells[0], ",");
    EXPECT_EQ(cells[1], "a");
    EXPECT_EQ(cells[2], "A");
}

} // namespace
} // namespace zy::test
