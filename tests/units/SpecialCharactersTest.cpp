#include "UnitsTest.h"

namespace zy::test {
namespace {

class SpecialCharacters : public UnitsTest {
  protected:
    SpecialCharacters() { OpenThreeUnits(); }

    static KeyPress Ctrl(Key key) { return {key, true}; }
    void Press(const KeyPress& press) { grid.Press(press); }
};

TEST_F(SpecialCharacters, AreTypedIntoAUnitByCtrlWithADigit) {
    BeginEdit(1, kUnit, "");
    Press(Ctrl(Key::Digit0));
    EXPECT_EQ(grid.editor.Text(), "\xB0");
    Press(Ctrl(Key::Digit2));
    EXPECT_EQ(grid.editor.Text(), "\xB0\xB2");
    Press(Ctrl(Key::Digit3));
    EXPECT_EQ(grid.editor.Text(), "\xB0\xB2\xB3");
}

TEST_F(SpecialCharacters, ReplaceTheEditorsSelectionAndLeaveTheCaretBehind) {
    BeginEdit(1, kUnit, "");
    grid.editor.Enter("kg/mX/s", 4, 1);
    Press(Ctrl(Key::Digit2));
    EXPECT_EQ(grid.editor.Text(), "kg/m\xB2/s");
    EXPECT_EQ(grid.editor.SelStart(), 5U);
    EXPECT_EQ(grid.editor.SelLength(), 0U);
}

TEST_F(SpecialCharacters, GoInWhereTheCaretIs) {
    BeginEdit(1, kUnit, "");
    grid.editor.Enter("C", 0, 0);
    Press(Ctrl(Key::Digit0));
    EXPECT_EQ(grid.editor.Text(), "\xB0"
                                  "C");
    grid.editor.Enter("m", 1, 0);
    Press(Ctrl(Key::Digit3));
    EXPECT_EQ(grid.editor.Text(), "m\xB3");
}

TEST_F(SpecialCharacters, ReplaceTheWholeTextOnlyWhenItIsAllSelected) {
    grid.Pick(1, kUnit);
    grid.OpenEditor();
    Press(Ctrl(Key::Digit2));
    EXPECT_EQ(grid.editor.Text(), "\xB2");
}

TEST_F(SpecialCharacters, NeedCtrlAlone) {
    BeginEdit(1, kUnit, "m");
    for (const Key key : {Key::Digit0, Key::Digit2, Key::Digit3}) {
        Press({key});
        Press({key, false, true});
        Press({key, false, false, true});
        Press({key, true, true});
        Press({key, true, false, true});
        Press({key, true, true, true});
    }
    EXPECT_EQ(grid.editor.Text(), "m");
}

TEST_F(SpecialCharacters, AreNotTypedIntoADescription) {
    BeginEdit(1, kUnitDescription, "text");
    Press(Ctrl(Key::Digit0));
    Press(Ctrl(Key::Digit2));
    Press(Ctrl(Key::Digit3));
    EXPECT_EQ(grid.editor.Text(), "text");
}

TEST_F(SpecialCharacters, NeedAnOpenEditor) {
    grid.Pick(1, kUnit);
    Press(Ctrl(Key::Digit2));
    EXPECT_FALSE(grid.editor.IsOpen());
    EXPECT_EQ(grid.cells.Text(1, kUnit), "a");
    ExpectChanged(false);
}

TEST_F(SpecialCharacters, ComeFromNoOtherKey) {
    BeginEdit(1, kUnit, "m");
    Press(Ctrl(Key::Home));
    Press(Ctrl(Key::Delete));
    EXPECT_EQ(grid.editor.Text(), "m");
}

TEST_F(SpecialCharacters, MarkTheListOnlyWhenTheEditIsTakenOver) {
    BeginEdit(1, kUnit, "m");
    Press(Ctrl(Key::Digit2));
    ExpectChanged(false);
    Press({Key::Enter});
    ExpectChanged(true);
}

TEST_F(SpecialCharacters, AreOneByteInTheFile) {
    Add();
    Press(Ctrl(Key::Digit0));
    grid.TypeOver("C");
    Press({Key::Tab});
    grid.TypeOver("Degrees Celsius");
    Add();
    grid.TypeOver("m");
    Press(Ctrl(Key::Digit2));
    Add();
    grid.TypeOver("m");
    Press(Ctrl(Key::Digit3));
    Save();
    EXPECT_EQ(File(), "A,a\r\nB,b\r\nC,c\r\nDegrees Celsius,\xB0"
                      "C\r\n,m\xB2\r\n,m\xB3\r\n");
}

} // namespace
} // namespace zy::test
