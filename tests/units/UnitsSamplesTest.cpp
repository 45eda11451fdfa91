#include <set>

#include "UnitsTest.h"
#include "support/Samples.h"

namespace zy::test {
namespace {

/// The sample units, loaded as the program loads them.
class UnitsSamples : public UnitsTest {
  protected:
    UnitsSamples() { OpenOver(bytes); }

    std::set<std::string> ColumnOf(int column) const {
        std::set<std::string> texts;
        for (int row = 1; row < grid.cells.Rows(); ++row) {
            texts.emplace(grid.cells.Text(row, column));
        }
        return texts;
    }

    const std::string bytes = SampleBytes("ZYUNITS.SYS");
};

TEST_F(UnitsSamples, HoldTheBaseUnitsAndTheSpecialCharacters) {
    EXPECT_THAT(ColumnOf(kUnit), ::testing::IsSupersetOf({"m", "kg", "s", "A", "K", "mol", "cd",
                                                          "\xB0"
                                                          "C",
                                                          "m\xB2", "m\xB3", "\xB5m"}));
}

TEST_F(UnitsSamples, AreTheSameBytesAfterALoadAndASave) {
    ASSERT_FALSE(bytes.empty());
    world.files.Take(kUnitsFile);
    ChooseSave();
    EXPECT_EQ(File(), bytes);
}

TEST_F(UnitsSamples, PassEveryCheck) {
    EXPECT_TRUE(page.units.ValidateUnits());
}

TEST_F(UnitsSamples, AreAllDifferentAndAllDescribed) {
    const auto units = static_cast<std::size_t>(grid.cells.Rows() - 1);
    EXPECT_EQ(ColumnOf(kUnit).size(), units);
    EXPECT_EQ(ColumnOf(kUnitDescription).size(), units);
    EXPECT_FALSE(ColumnOf(kUnitDescription).contains(""));
}

} // namespace
} // namespace zy::test
