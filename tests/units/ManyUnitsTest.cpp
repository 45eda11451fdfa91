#include "UnitsTest.h"

namespace zy::test {
namespace {

constexpr int kMost = 32767;

std::string FileOf(int units) {
    std::string text;
    for (int i = 1; i <= units; ++i) {
        text += "Unit " + std::to_string(i) + ",u" + std::to_string(i) + "\r\n";
    }
    return text;
}

class ManyUnits : public UnitsTest {
  protected:
    template <typename Action>
    void ExpectOverflow(const Action& action) {
        const auto error = RaisedBy(action);
        EXPECT_EQ(error.Number(), 6);
        EXPECT_EQ(error.Description(), "Overflow");
    }
    const std::string most = FileOf(kMost);
};

TEST_F(ManyUnits, AreLoadedCheckedAndSavedUpToTheLastOne) {
    OpenOver(most);
    ASSERT_EQ(grid.cells.Rows() - 1, kMost);
    EXPECT_EQ(grid.cells.Text(kMost, kUnit), "u32767");
    EXPECT_TRUE(page.units.ValidateUnits());
    world.files.Take(kUnitsFile);
    ChooseSave();
    EXPECT_EQ(File(), most);
}

TEST_F(ManyUnits, HaveTheirLastOneCheckedToo) {
    OpenOver(most);
    Edit(kMost, kUnit, "");
    ExpectInvalid("Unit cannot be blank");
    Save();
    EXPECT_EQ(File(), most);
}

TEST_F(ManyUnits, BeyondTheLastOneAreAnOverflowAtLoading) {
    const std::string bytes = most + "One more,more\r\n";
    int shown = 0;
    grid.cells.rowsChanged.Connect([&] { ++shown; });
    ExpectOverflow([&] { OpenOver(bytes); });
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(File(), bytes);
}

TEST_F(ManyUnits, MayEndInATextWithoutALineEnd) {
    OpenOver(most + "One more,more");
    EXPECT_EQ(grid.cells.Rows() - 1, kMost);
}

TEST_F(ManyUnits, CanBeMadeByAddingTheLastOne) {
    OpenOver(FileOf(kMost - 1));
    AddUnit("u32767", "Unit 32767");
    EXPECT_EQ(grid.cells.Rows() - 1, kMost);
    Save();
    EXPECT_EQ(File(), most);
}

TEST_F(ManyUnits, BeyondTheLastOneAreNotAdded) {
    OpenOver(most);
    grid.Pick(2, kUnit);
    Add();
    EXPECT_EQ(Status(), "32767 units   -   Not added: the list is as long as it can be");
    EXPECT_EQ(grid.cells.Rows() - 1, kMost);
    ExpectCurrent(2, kUnit);
    EXPECT_FALSE(grid.editor.IsOpen());
    ExpectChanged(false);
    EXPECT_EQ(File(), most);
}

TEST_F(ManyUnits, KeepTheirEditsWhenOneMoreIsRefused) {
    OpenOver(most);
    Edit(1, kUnit, "edited");
    Add();
    EXPECT_EQ(grid.cells.Text(1, kUnit), "edited");
    ExpectChanged(true);
    Save();
    EXPECT_EQ(Status(), "Saved");
}

TEST_F(ManyUnits, CanBePastedUpToTheLastOne) {
    OpenOver("A,a\r\n");
    grid.Pick(1, 0);
    std::string block;
    for (int i = 1; i <= kMost; ++i) {
        block += "u" + std::to_string(i) + "\tUnit " + std::to_string(i) + "\r\n";
    }
    grid.Paste(block);
    Save();
    EXPECT_EQ(File(), most);
}

TEST_F(ManyUnits, BeyondTheLastOneAreNotPasted) {
    OpenOver(most);
    grid.Pick(kMost, 0);
    grid.Paste("x\r\ny\r\n");
    EXPECT_EQ(Status(), "32767 units   -   Not pasted: the list would get longer than it can be");
    EXPECT_EQ(grid.cells.Rows() - 1, kMost);
    EXPECT_EQ(grid.cells.Text(kMost, kUnit), "u32767");
    EXPECT_EQ(File(), most);
    ExpectChanged(false);
}

TEST_F(ManyUnits, BeyondTheLastOneAreAnOverflowAtSavingAndTheFileIsUntouched) {
    OpenOver(most);
    grid.cells.SetRows(kMost + 2);
    world.files.Plan({});
    ExpectOverflow([&] { ChooseSave(); });
    ExpectOverflow([&] { page.units.Write_Units(); });
    EXPECT_EQ(world.files.Operations().Count(), 0U);
    EXPECT_EQ(File(), most);
}

} // namespace
} // namespace zy::test
