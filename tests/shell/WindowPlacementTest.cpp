#include "support/ProgramTest.h"

namespace zy::test {
namespace {

using namespace std::string_literals; // for values that hold a NUL

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr auto kKey = R"(software\norvale\products\ZYSetup\Window)";

/// Where the main window was left, over a registry and a window without a screen.
class WindowPlacementTest : public ProgramTest {
  protected:
    void Store(std::string_view name, std::string_view text) { world.registry.Put(kKey, name, text); }
    void StorePlace(std::string_view height, std::string_view width, std::string_view top,
                    std::string_view left) {
        Store("Height", height);
        Store("Width", width);
        Store("Top", top);
        Store("Left", left);
    }
    MemoryRegistry::Values Stored() { return world.registry.Get(kKey).value_or(MemoryRegistry::Values()); }
    /// The rectangle as "left top width height".
    std::string Place() {
        const auto place = world.window.NormalRectangle();
        return std::to_string(place.left) + " " + std::to_string(place.top) + " " +
               std::to_string(place.right - place.left) + " " + std::to_string(place.bottom - place.top);
    }
    void PutAt(const PixelRect& place) { world.window.SetPosition(place, 0); }
    void Close() { EXPECT_TRUE(window().Unload()); }
};

TEST_F(WindowPlacementTest, LeavesTheWindowAtItsDesignedPlaceWithoutAStoredOne) {
    Start("@RULES");
    EXPECT_EQ(world.window.NormalRectangle(), MemoryNativeWindow::kDesigned);
    EXPECT_THAT(world.window.Calls(), ElementsAre("SetProcedure"));
    EXPECT_EQ(form().State(), WindowState::Normal);
}

TEST_F(WindowPlacementTest, CreatesTheKeyWithFiveValuesAtTheFirstClosing) {
    Start("@RULES");
    Close();
    using Pair = std::pair<const std::string, std::string>;
    EXPECT_THAT(Stored(), ElementsAre(Pair("HEIGHT", "9600"), Pair("LEFT", "1500"), Pair("STATE", "0"),
                                      Pair("TOP", "1200"), Pair("WIDTH", "12000")));
}

TEST_F(WindowPlacementTest, StoresTextsWithoutANulAndWithoutABlankInFront) {
    Start("@RULES");
    PutAt({1, 2, 601, 602});
    Close();
    EXPECT_EQ(Stored()["LEFT"], "15");
    EXPECT_EQ(Stored()["TOP"], "30");
}

TEST_F(WindowPlacementTest, StoresAPlaceLeftOfTheScreenWithItsSign) {
    Start("@RULES");
    PutAt({-10, -2, 590, 598});
    Close();
    EXPECT_EQ(Stored()["LEFT"], "-150");
    EXPECT_EQ(Stored()["TOP"], "-30");
    Start("@RULES");
    EXPECT_EQ(Place(), "-10 -2 600 600");
}

TEST_F(WindowPlacementTest, OpensTheWindowWhereItWasLeft) {
    Start("@UNITS");
    PutAt({200, 100, 900, 700});
    Close();
    PutAt(MemoryNativeWindow::kDesigned);
    Start("@UNITS");
    EXPECT_EQ(Place(), "200 100 700 600");
}

TEST_F(WindowPlacementTest, SetsTheHiddenWindowsPlaceAndThenShowsItInItsDefaultWay) {
    StorePlace("9000", "10500", "1500", "3000");
    Start("@RULES");
    EXPECT_THAT(world.window.Calls(),
                ElementsAre("SetProcedure", "SetPosition 200 100 700 600 flags 128", "Show 10"));
}

TEST_F(WindowPlacementTest, LoadsTheWindowBeforeItLooksAtTheArgument) {
    StorePlace("9000", "10500", "1500", "3000");
    Start("@RULES");
    const auto traces = Traces();
    ASSERT_GE(traces.size(), 4U);
    EXPECT_EQ(traces[2], "frmGlobalSettings Form_Load Start");
    EXPECT_EQ(traces[3], "mZYGlobal mMain Rules Mode Started");
}

TEST_F(WindowPlacementTest, ShowsNothingForAnUnknownArgumentAlthoughAPlaceIsStored) {
    StorePlace("9000", "10500", "1500", "3000");
    const auto before = Stored();
    EXPECT_EQ(Start("@OTHER"), StartUp::Ended);
    EXPECT_FALSE(form().Visible());
    EXPECT_EQ(Stored(), before);
}

TEST_F(WindowPlacementTest, ReopensMaximizedAtTheStoredNormalRectangle) {
    StorePlace("9000", "10500", "1500", "3000");
    Store("State", "2");
    Start("@RULES");
    EXPECT_EQ(form().State(), WindowState::Maximized);
    EXPECT_EQ(Place(), "200 100 700 600");
}

TEST_F(WindowPlacementTest, StaysNormalForEveryOtherState) {
    for (const auto* state : {"0", "1", "3", "-2", "", "two", "20"}) {
        SCOPED_TRACE(state);
        Store("State", state);
        Start("@RULES");
        EXPECT_EQ(form().State(), WindowState::Normal);
    }
}

TEST_F(WindowPlacementTest, StoresTheMaximizedStateWithTheNormalRectangle) {
    Start("@RULES");
    form().SetState(WindowState::Maximized);
    Close();
    EXPECT_EQ(Stored()["STATE"], "2");
    EXPECT_EQ(Stored()["WIDTH"], "12000");
}

TEST_F(WindowPlacementTest, StoresAMinimizedWindowAsANormalOne) {
    Start("@RULES");
    form().SetState(WindowState::Minimized);
    Close();
    EXPECT_EQ(Stored()["STATE"], "0");
    EXPECT_EQ(Stored()["HEIGHT"], "9600");
}

TEST_F(WindowPlacementTest, KeepsTheLeastSizeOfTheRegistryInTheWindowAndNeverWritesIt) {
    StorePlace("9000", "10500", "1500", "3000");
    Store("MinWidth", "111");
    Store("MinHeight", "222");
    Start("@RULES");
    EXPECT_EQ(form().MinWidth, 111);
    EXPECT_EQ(form().MinHeight, 222);
    form().MinWidth = 5;
    Close();
    EXPECT_EQ(Stored()["MINWIDTH"], "111");
    EXPECT_EQ(Stored()["MINHEIGHT"], "222");
    EXPECT_EQ(Stored().size(), 7U);
}

TEST_F(WindowPlacementTest, CutsAValueAtItsNul) {
    StorePlace("9000\0"s, "10500\0left over"s, "1500\0"s, "\0003000"s);
    Start("@RULES");
    EXPECT_EQ(Place(), "0 100 700 600");
}

TEST_F(WindowPlacementTest, TakesTheDigitsAtTheFrontAndNothingForNone) {
    StorePlace("9000 twips", "10500.9", "  1500", "abc3000");
    Start("@RULES");
    EXPECT_EQ(Place(), "0 100 700 600");
}

TEST_F(WindowPlacementTest, TakesAMissingAndAnEmptyValueAsZero) {
    Store("Height", "");
    Store("Top", "1500");
    Start("@RULES");
    EXPECT_EQ(Place(), "0 100 0 0");
}

TEST_F(WindowPlacementTest, DoesNotReadAValueThatIsLongerThanItsBuffer) {
    StorePlace("9000" + std::string(256, ' '), "10500" + std::string(256, ' '), "1500", "3000");
    Start("@RULES");
    EXPECT_EQ(Place(), "200 100 0 600"); // 260 characters are read, 261 are not
    Store("Left", std::string(300, '1'));
    Start("@RULES");
    EXPECT_EQ(Place(), "0 100 0 600");
}

TEST_F(WindowPlacementTest, RefusesAStoredNumberBeyond16BitsBeforeTheWindowIsLoaded) {
    for (const auto* number : {"32768", "-32769", "99999999999999999999999999"}) {
        SCOPED_TRACE(number);
        Store("Top", number);
        EXPECT_EQ(ErrorNumber([&] { Start("@RULES"); }), 6);
        EXPECT_THAT(world.window.Calls(), IsEmpty());
    }
}

TEST_F(WindowPlacementTest, TakesTheLargestNumbersOf16Bits) {
    StorePlace("32767", "32767", "-32768", "32767");
    Start("@RULES");
    EXPECT_EQ(Place(), "2184 -2185 2184 2184");
}

TEST_F(WindowPlacementTest, RoundsToTheNearestPixel) {
    StorePlace("9008", "10507", "1492", "3008");
    Start("@RULES");
    EXPECT_EQ(Place(), "201 99 700 601");
}

TEST_F(WindowPlacementTest, RestoresHalvesOfPixelsAsTheEvenOne) {
    world.window.SetTwipsPerPixel(12, 12);
    StorePlace("7206", "7218", "6", "18"); // 600.5 by 601.5 at 1.5, 0.5
    Start("@RULES");
    EXPECT_EQ(Place(), "2 0 602 600");
}

TEST_F(WindowPlacementTest, StoresHalvesOfTwipsAsTheEvenOne) {
    world.window.SetTwipsPerPixel(7.5, 7.5);
    Start("@RULES");
    PutAt({1, 3, 802, 806});
    Close();
    EXPECT_EQ(Stored()["LEFT"], "8");      // 7.5
    EXPECT_EQ(Stored()["TOP"], "22");      // 22.5
    EXPECT_EQ(Stored()["WIDTH"], "6008");  // 6007.5
    EXPECT_EQ(Stored()["HEIGHT"], "6022"); // 6022.5
}

TEST_F(WindowPlacementTest, ReadsVerticalValuesByTheVerticalFactor) {
    world.window.SetTwipsPerPixel(15, 12);
    StorePlace("9000", "10500", "1500", "3000");
    Start("@RULES");
    EXPECT_EQ(Place(), "200 125 700 750");
}

TEST_F(WindowPlacementTest, WritesVerticalValuesByTheHorizontalFactor) {
    world.window.SetTwipsPerPixel(15, 12);
    Start("@RULES");
    PutAt({200, 100, 900, 700});
    Close();
    EXPECT_EQ(Stored()["TOP"], "1500");
    EXPECT_EQ(Stored()["HEIGHT"], "9000");
}

TEST_F(WindowPlacementTest, LetsHeightAndTopDriftFromRunToRunWhereTheFactorsDiffer) {
    world.window.SetTwipsPerPixel(15, 12);
    StorePlace("7200", "10500", "1200", "3000");
    for (const auto* place : {"200 100 700 600", "200 125 700 750", "200 156 700 938"}) {
        Start("@RULES");
        EXPECT_EQ(Place(), place);
        Close();
    }
}

TEST_F(WindowPlacementTest, GoesByTheFactorsOfADenserDisplay) {
    world.window.SetTwipsPerPixel(7.5, 7.5);
    Start("@RULES");
    PutAt({201, 100, 1401, 1200});
    Close();
    EXPECT_EQ(Stored()["LEFT"], "1508"); // 1507.5
    EXPECT_EQ(Stored()["WIDTH"], "9000");
    PutAt(MemoryNativeWindow::kDesigned);
    Start("@RULES");
    EXPECT_EQ(Place(), "201 100 1200 1100");
}

TEST_F(WindowPlacementTest, EndsTheRunWithAnOverflowForAWindowWiderThan16BitsOfTwips) {
    Start("@RULES");
    PutAt({0, 0, 2184, 600});
    Close();
    EXPECT_EQ(Stored()["WIDTH"], "32760");
    Start("@RULES");
    PutAt({0, 0, 2185, 600});
    const auto error = RaisedBy([&] { window().Unload(); });
    EXPECT_EQ(error.Number(), 6);
    EXPECT_EQ(error.BoxText(), "Run-time error '6':\n\nOverflow");
}

TEST_F(WindowPlacementTest, WritesNoValueWhenOneOverflows) {
    const auto overflows = {PixelRect{2185, 0, 2785, 600}, PixelRect{0, 2185, 600, 2785},
                            PixelRect{0, 0, 600, 2185}, PixelRect{-2185, 0, 0, 600}};
    for (const auto& place : overflows) {
        Start("@RULES");
        PutAt(place);
        EXPECT_EQ(ErrorNumber([&] { window().Unload(); }), 6);
        EXPECT_FALSE(world.registry.Get(kKey));
    }
}

TEST_F(WindowPlacementTest, HasWrittenTheRulesWhenThePlaceOverflows) {
    Start("@RULES");
    program().rulesPage.controls.cmdAddList.Click();
    PutAt({0, 0, 2185, 600});
    ExpectWishToSave(Answer::Yes);
    EXPECT_EQ(ErrorNumber([&] { window().Unload(); }), 6);
    EXPECT_THAT(world.files.Get(kRulesFile), ::testing::Optional(StartsWith("[RULE]\r\n")));
    EXPECT_THAT(Traces(), Not(Contains("frmGlobalSettings Form_Unload Unloaded")));
}

TEST_F(WindowPlacementTest, IgnoresARegistryThatCannotBeOpened) {
    StorePlace("9000", "10500", "1500", "3000");
    world.registry.SetUnreadable();
    Start("@RULES");
    EXPECT_EQ(world.window.NormalRectangle(), MemoryNativeWindow::kDesigned);
    Close();
    world.registry.SetUnreadable(false);
    EXPECT_EQ(Stored()["HEIGHT"], "9000");
}

TEST_F(WindowPlacementTest, IgnoresARegistryThatCannotBeWritten) {
    world.registry.SetReadOnly();
    Start("@RULES");
    Close();
    EXPECT_FALSE(world.registry.Get(kKey));
    world.registry.SetReadOnly(false);
    StorePlace("9000", "10500", "1500", "3000");
    world.registry.SetReadOnly();
    Start("@RULES");
    PutAt({0, 0, 600, 600});
    Close();
    EXPECT_EQ(Stored()["WIDTH"], "10500");
    EXPECT_EQ(unloaded, 2);
}

TEST_F(WindowPlacementTest, PutsTheWindowsOwnProcedureBackBeforeItSavesThePlace) {
    Start("@RULES");
    Close();
    EXPECT_THAT(world.window.Calls(), ElementsAre("SetProcedure", "SetProcedure"));
    EXPECT_EQ(world.window.Send({.window = MemoryNativeWindow::kHandle, .message = kGetMinMaxInfo}),
              MemoryNativeWindow::kOwnResult);
}

TEST_F(WindowPlacementTest, SavesThePlaceWithoutAQuestionWhenNoEditorIsInCharge) {
    Start("@OTHER");
    Traces();
    Close();
    EXPECT_EQ(Stored().size(), 5U);
    EXPECT_THAT(Traces(), ElementsAre("frmGlobalSettings Form_Unload Unloaded"));
}

} // namespace
} // namespace zy::test
