#include "UnitsTest.h"

namespace zy::test {
namespace {

constexpr auto kBefore = "A,a\r\nB,b\r\nC,c\r\n";

class CloseUnits : public UnitsTest {
  protected:
    void OpenAndEdit(std::string_view unit) {
        OpenThreeUnits();
        Edit(1, kUnit, unit);
    }
    void ExpectClosed() { EXPECT_FALSE(form.Visible()); }
};

TEST_F(CloseUnits, WithoutChangesAsksNothing) {
    OpenThreeUnits();
    EXPECT_TRUE(window.Unload());
    ExpectClosed();
    EXPECT_EQ(File(), kBefore);
}

TEST_F(CloseUnits, WithoutAFileAndWithoutChangesAsksNothingAndWritesNothing) {
    Open();
    EXPECT_TRUE(window.Unload());
    ExpectClosed();
    EXPECT_EQ(File(), std::nullopt);
}

TEST_F(CloseUnits, AfterASaveAsksNothing) {
    OpenAndEdit("aa");
    Save();
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(File(), "A,aa\r\nB,b\r\nC,c\r\n");
}

TEST_F(CloseUnits, OnYesWritesTheFile) {
    OpenAndEdit("aa");
    ExpectWishToSave(Answer::Yes);
    window.menu.mnuExit.Click();
    ExpectClosed();
    EXPECT_EQ(File(), "A,aa\r\nB,b\r\nC,c\r\n");
}

TEST_F(CloseUnits, OnNoDiscardsTheChangesEvenWhenAUnitIsInvalid) {
    OpenAndEdit("");
    ExpectWishToSave(Answer::No);
    EXPECT_TRUE(window.Unload());
    ExpectClosed();
    EXPECT_EQ(File(), kBefore);
}

TEST_F(CloseUnits, OnYesWithAnInvalidUnitStaysOpenAndWritesNothing) {
    OpenAndEdit("");
    ExpectWishToSave(Answer::Yes);
    ExpectInvalid("Unit cannot be blank");
    EXPECT_FALSE(window.Unload());
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(File(), kBefore);
    ExpectChanged(true);
}

TEST_F(CloseUnits, CanBeDoneOnceTheUnitIsCorrected) {
    OpenAndEdit("");
    ExpectWishToSave(Answer::Yes);
    ExpectInvalid("Unit cannot be blank");
    EXPECT_FALSE(window.Unload());
    Edit(1, kUnit, "corrected");
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(File(), "A,corrected\r\nB,b\r\nC,c\r\n");
}

TEST_F(CloseUnits, AfterARefusedDeletionAsksAllTheSame) {
    OpenThreeUnits();
    grid.Pick(1, 0);
    Delete(Answer::No);
    ExpectWishToSave(Answer::Yes);
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(File(), kBefore);
}

TEST_F(CloseUnits, AfterASaveThatFailedAsksNothing) {
    OpenAndEdit("aa");
    world.files.SetHeldOpen(kUnitsFile);
    Save();
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(File(), kBefore);
}

} // namespace
} // namespace zy::test
