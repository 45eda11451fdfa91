#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "basics/RuntimeError.h"
#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/StatusBar.h"
#include "controls/TextBox.h"
#include "controls/UpDown.h"
#include "support/RaisedError.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A visible form, and a list of what its controls announced.
class ControlsTest : public ::testing::Test {
  protected:
    ControlsTest() { form.SetVisible(true); }

    std::function<void()> Note(const std::string& what) {
        return [this, what] { notes.push_back(what); };
    }

    Form form{"frm"};
    std::vector<std::string> notes;
};

TEST_F(ControlsTest, AControlTellsOnlyRealChangesOfItsAppearance) {
    Control control(&form, "c", "Caption");
    control.appearanceChanged.Connect(Note("changed"));
    control.SetCaption("Caption");
    control.SetEnabled(true);
    control.SetVisible(true);
    control.SetBounds({});
    EXPECT_THAT(notes, IsEmpty());
    control.SetCaption("Other");
    control.SetEnabled(false);
    control.SetVisible(false);
    control.SetBounds({1, 2, 3, 4});
    EXPECT_EQ(notes.size(), 4U);
    EXPECT_EQ(control.Bounds().Right(), 4);
    EXPECT_EQ(control.Bounds().Bottom(), 6);
}

TEST_F(ControlsTest, ATextBoxForgetsWhatWasSelectedWhenItGetsAnotherText) {
    TextBox box(&form, "txt", "");
    box.SetText("abcdef");
    box.Select(4, 2);
    box.SetText("xy");
    EXPECT_EQ(box.SelStart(), 0U);
    EXPECT_EQ(box.SelLength(), 0U);
    box.Type("1");
    EXPECT_EQ(box.Text(), "1xy");
}

TEST_F(ControlsTest, AFormRaisesResizeForEverySizeItIsGiven) {
    form.resize.Connect(Note("resize"));
    form.SetInnerSize({100, 50});
    form.SetInnerSize({100, 50});
    EXPECT_EQ(notes.size(), 2U);
    EXPECT_EQ(form.InnerSize(), (Size{100, 50}));
}

TEST_F(ControlsTest, AFormTellsAChangeOfItsState) {
    form.stateChanged.Connect(Note("state"));
    form.SetState(WindowState::Maximized);
    form.SetState(WindowState::Maximized);
    EXPECT_THAT(notes, ElementsAre("state"));
    EXPECT_EQ(form.State(), WindowState::Maximized);
}

class TextBoxTest : public ControlsTest {
  protected:
    TextBoxTest() { box.change.Connect(Note("change")); }

    TextBox box{&form, "txt"};
};

TEST_F(TextBoxTest, RaisesChangeForTheUsersTextAndForTheProgramsAlike) {
    box.SetText("a");
    box.Type("b");
    box.Enter("c");
    EXPECT_EQ(notes.size(), 3U);
}

TEST_F(TextBoxTest, RaisesNoChangeWhenTheTextStays) {
    box.SetText("a");
    notes.clear();
    box.SetText("a");
    box.Enter("a");
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TextBoxTest, TypesOverTheSelection) {
    box.SetText("abcd");
    box.Select(1, 2);
    box.Type("X");
    EXPECT_EQ(box.Text(), "aXd");
    box.Type("Y");
    EXPECT_EQ(box.Text(), "aXYd");
}

TEST_F(TextBoxTest, CutsASelectionAtTheEndOfItsText) {
    box.SetText("abc");
    box.Select(2, 99);
    EXPECT_EQ(box.SelLength(), 1U);
    box.Select(99, 99);
    EXPECT_EQ(box.SelStart(), 3U);
    EXPECT_EQ(box.SelLength(), 0U);
}

TEST_F(TextBoxTest, TakesNothingTypedWhileDisabled) {
    box.SetEnabled(false);
    box.Type("x");
    box.Enter("y");
    EXPECT_EQ(box.Text(), "");
}

class ComboBoxTest : public ControlsTest {
  protected:
    ComboBoxTest() { box.click.Connect(Note("click")); }

    ComboBox box{&form, "cbo", {"one", "two"}};
};

TEST_F(ComboBoxTest, StartsWithoutASelection) {
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), "");
}

TEST_F(ComboBoxTest, RaisesClickWhenTheSelectionChangesWhoeverChangesIt) {
    box.SetListIndex(0);
    box.Pick(1);
    box.Pick(1);
    EXPECT_EQ(notes.size(), 2U);
    EXPECT_EQ(box.Text(), "two");
}

TEST_F(ComboBoxTest, CanBeLeftWithoutASelectionAgain) {
    box.SetListIndex(1);
    box.SetListIndex(-1);
    EXPECT_EQ(box.Text(), "");
}

TEST_F(ComboBoxTest, RaisesSubscriptOutOfRangeForAnItemItDoesNotHave) {
    EXPECT_EQ(ErrorNumber([&] { box.SetListIndex(2); }), 9);
    EXPECT_EQ(ErrorNumber([&] { box.SetListIndex(-2); }), 9);
    EXPECT_EQ(box.ListIndex(), -1);
}

class ListViewTest : public ControlsTest {
  protected:
    ListViewTest() {
        list.itemClick.Connect([this](int item) { notes.push_back("click " + std::to_string(item)); });
        list.itemRemoved.Connect([this](int item) { notes.push_back("removed " + std::to_string(item)); });
        list.Refill(3);
    }

    ListView list{&form, "lst", {{"A", 100}, {"B", 200}}, [](int item, int) {
                      return item == 1 ? std::string_view("first") : std::string_view("other");
                  }};
};

TEST_F(ListViewTest, AsksItsSourceForTheCells) {
    EXPECT_EQ(list.CellText(1, 0), "first");
    EXPECT_EQ(list.CellText(2, 1), "other");
}

TEST_F(ListViewTest, SelectsNothingAfterARefill) {
    list.Select(2);
    list.Refill(3);
    EXPECT_EQ(list.Selected(), 0);
}

TEST_F(ListViewTest, RaisesItemClickForTheUsersChoiceAlone) {
    list.Select(2);
    EXPECT_THAT(notes, IsEmpty());
    list.Pick(3);
    EXPECT_THAT(notes, ElementsAre("click 3"));
}

TEST_F(ListViewTest, DoesNotChooseTheSelectedItemAgain) {
    list.Pick(2);
    list.Pick(2);
    EXPECT_THAT(notes, ElementsAre("click 2"));
}

TEST_F(ListViewTest, KeepsItsSelectionWhenAnotherControlKeepsTheFocus) {
    TextBox box(&form, "txt");
    box.validate = [] { return false; };
    box.Type("x");
    list.Select(1);
    int told = 0;
    const auto subscription = list.selectionChanged.Observe([&] { ++told; });
    list.Pick(2);
    EXPECT_EQ(list.Selected(), 1);
    EXPECT_EQ(told, 1) << "the view has to put its selection back";
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(ListViewTest, CopiesTheSelectedItemAsASpreadsheetDoesARow) {
    EXPECT_EQ(list.Copy(), "");
    list.Select(1);
    EXPECT_EQ(list.Copy(), "first\tfirst\r\n");
}

TEST_F(ListViewTest, RemovesTheSelectedItem) {
    list.Select(2);
    list.RemoveSelected();
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Selected(), 0);
    EXPECT_THAT(notes, ElementsAre("removed 2"));
}

TEST_F(ListViewTest, RaisesSubscriptOutOfRangeForAnItemItDoesNotHave) {
    EXPECT_EQ(ErrorNumber([&] { list.Select(4); }), 9);
    EXPECT_EQ(ErrorNumber([&] { list.Select(-1); }), 9);
    EXPECT_EQ(ErrorNumber([&] { list.RemoveSelected(); }), 9);
}

TEST_F(ListViewTest, HandsKeysOnWhileItCanTakeTheFocus) {
    int pressed = 0;
    list.keyDown.Connect([&](const KeyPress& press) { pressed += press.alt ? 1 : 0; });
    list.Press({Key::Up, false, true, false});
    list.SetEnabled(false);
    list.Press({Key::Up, false, true, false});
    EXPECT_EQ(pressed, 1);
}

TEST_F(ListViewTest, TellsAChangedColumnWidthOnce) {
    list.appearanceChanged.Connect(Note("appearance"));
    list.SetColumnWidth(1, 300);
    list.SetColumnWidth(1, 300);
    EXPECT_THAT(notes, ElementsAre("appearance"));
    EXPECT_EQ(list.Columns()[1].width, 300);
}

TEST_F(ControlsTest, ArrowsTellWhichOneWasPressed) {
    UpDown arrows(&form, "ud");
    arrows.upClick.Connect(Note("up"));
    arrows.downClick.Connect(Note("down"));
    arrows.PressUp();
    arrows.PressDown();
    arrows.SetEnabled(false);
    arrows.PressUp();
    arrows.PressDown();
    EXPECT_THAT(notes, ElementsAre("up", "down"));
}

TEST_F(ControlsTest, AStatusBarTellsANewText) {
    StatusBar bar(&form, "sb");
    bar.change.Connect(Note("change"));
    bar.SetText("a");
    bar.SetText("a");
    EXPECT_THAT(notes, ElementsAre("change"));
    EXPECT_EQ(bar.Text(), "a");
}

TEST_F(ControlsTest, ALabelKnowsItsAccessKeyAndTheControlItNames) {
    TextBox box(&form, "txt");
    const Label label(&form, "lbl", "Rule ID:", 'R', box);
    EXPECT_EQ(label.AccessKey(), 'R');
    EXPECT_EQ(&label.Buddy(), &box);
}

TEST_F(ControlsTest, AMenuHoldsItsEntriesInOrder) {
    MenuItem menu("mnu", "&Menu");
    MenuItem entry(menu, "mnuEntry", "&Entry");
    MenuItem separator(menu, "mnuSeparator", MenuItem::kSeparator);
    EXPECT_THAT(menu.Entries(), ElementsAre(&entry, &separator));
    EXPECT_TRUE(separator.IsSeparator());
    EXPECT_FALSE(entry.IsSeparator());
}

TEST_F(ControlsTest, AMenuEntryTellsANewCaptionOnce) {
    MenuItem entry("mnu", "Entry");
    int told = 0;
    entry.captionChanged.Connect([&] { ++told; });
    entry.SetCaption("Other");
    entry.SetCaption("Other");
    EXPECT_EQ(entry.Caption(), "Other");
    EXPECT_EQ(told, 1);
}

TEST_F(ControlsTest, ADisabledMenuEntryDoesNothing) {
    MenuItem entry("mnu", "Entry");
    entry.click.Connect(Note("click"));
    entry.enabledChanged.Connect(Note("enabled"));
    entry.Click();
    entry.SetEnabled(false);
    entry.SetEnabled(false);
    entry.Click();
    EXPECT_THAT(notes, ElementsAre("click", "enabled"));
}

} // namespace
} // namespace zy::test
