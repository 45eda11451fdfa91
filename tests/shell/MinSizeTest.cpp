#include <bit>
#include <stdexcept>

#include "support/ProgramTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kOther = 0x10;

/// The procedure that bounds the main window's size.
class MinSizeTest : public ProgramTest {
  protected:
    MinSizeTest() { Start("@RULES"); }

    std::intptr_t Ask(MinMaxInfo& bounds, WindowHandle window = MemoryNativeWindow::kHandle) {
        return world.window.Send(
            {.window = window, .message = kGetMinMaxInfo, .lParam = std::bit_cast<std::intptr_t>(&bounds)});
    }
    PixelPoint SizeAfterDragTo(const PixelPoint& size) {
        world.window.DragTo(size);
        const auto place = world.window.NormalRectangle();
        return {place.right - place.left, place.bottom - place.top};
    }
};

TEST_F(MinSizeTest, IsInPlaceFromTheLoadingOfTheWindow) {
    EXPECT_TRUE(state().glOldWndProc);
    EXPECT_THAT(world.window.Calls(), ElementsAre("SetProcedure"));
}

TEST_F(MinSizeTest, AnswersTheLeastSizeInWholePixels) {
    MinMaxInfo bounds;
    EXPECT_EQ(Ask(bounds), 0);
    EXPECT_EQ(bounds.minTrackSize, (PixelPoint{586, 560}));
    EXPECT_EQ(bounds.maxTrackSize, (PixelPoint{1920, 1080}));
}

TEST_F(MinSizeTest, DoesNotHandThatQuestionOn) {
    MinMaxInfo bounds;
    Ask(bounds);
    EXPECT_THAT(world.window.OwnMessages(), IsEmpty());
}

TEST_F(MinSizeTest, LeavesTheOtherBoundsAsTheyWere) {
    MinMaxInfo bounds{
        .reserved = {1, 2}, .maxSize = {3, 4}, .maxPosition = {5, 6}, .minTrackSize = {}, .maxTrackSize = {}};
    Ask(bounds);
    EXPECT_EQ(bounds.reserved, (PixelPoint{1, 2}));
    EXPECT_EQ(bounds.maxSize, (PixelPoint{3, 4}));
    EXPECT_EQ(bounds.maxPosition, (PixelPoint{5, 6}));
}

TEST_F(MinSizeTest, GoesByTheFactorsOfTheDisplay) {
    world.window.SetTwipsPerPixel(7.5, 12);
    world.window.SetScreenSize({3840, 2160});
    MinMaxInfo bounds;
    Ask(bounds);
    EXPECT_EQ(bounds.minTrackSize, (PixelPoint{1173, 700}));
    EXPECT_EQ(bounds.maxTrackSize, (PixelPoint{3840, 2160}));
}

TEST_F(MinSizeTest, LetsNobodyDragTheWindowSmallerWhateverTheRegistryHolds) {
    form().MinWidth = 100;
    form().MinHeight = 100;
    EXPECT_EQ(SizeAfterDragTo({10, 10}), (PixelPoint{586, 560}));
    EXPECT_EQ(SizeAfterDragTo({700, 10}), (PixelPoint{700, 560}));
    form().MinWidth = 20000;
    form().MinHeight = 20000;
    EXPECT_EQ(SizeAfterDragTo({10, 10}), (PixelPoint{586, 560}));
}

TEST_F(MinSizeTest, LetsNobodyDragTheWindowLargerThanTheScreen) {
    EXPECT_EQ(SizeAfterDragTo({5000, 5000}), (PixelPoint{1920, 1080}));
}

TEST_F(MinSizeTest, HandsEveryOtherMessageOnWithItsArgumentsAndReturnsTheResult) {
    const WindowMessage message{
        .window = MemoryNativeWindow::kHandle, .message = kOther, .wParam = 12, .lParam = -34};
    EXPECT_EQ(world.window.Send(message), MemoryNativeWindow::kOwnResult);
    ASSERT_EQ(world.window.OwnMessages().size(), 1U);
    const auto& handedOn = world.window.OwnMessages().front();
    EXPECT_EQ(handedOn.window, MemoryNativeWindow::kHandle);
    EXPECT_EQ(handedOn.message, kOther);
    EXPECT_EQ(handedOn.wParam, 12U);
    EXPECT_EQ(handedOn.lParam, -34);
}

TEST_F(MinSizeTest, AnswersAMessageForAnotherWindowByZeroAndDoesNotHandItOn) {
    EXPECT_EQ(world.window.Send({.window = 1, .message = kOther}), 0);
    MinMaxInfo bounds;
    EXPECT_EQ(Ask(bounds, 1), 0);
    EXPECT_EQ(bounds.minTrackSize, PixelPoint());
    EXPECT_THAT(world.window.OwnMessages(), IsEmpty());
}

TEST_F(MinSizeTest, IgnoresItsOwnErrors) {
    EXPECT_EQ(
        world.window.Send({.window = MemoryNativeWindow::kHandle, .message = kGetMinMaxInfo, .lParam = 0}),
        0);
    state().glOldWndProc = [](const WindowMessage&) -> std::intptr_t { throw std::runtime_error("no"); };
    EXPECT_EQ(world.window.Send({.window = MemoryNativeWindow::kHandle, .message = kOther}), 0);
}

TEST_F(MinSizeTest, IsGoneWhenTheWindowIs) {
    window().Unload();
    EXPECT_FALSE(state().glOldWndProc);
    EXPECT_EQ(SizeAfterDragTo({10, 10}), (PixelPoint{10, 10}));
}

TEST_F(MinSizeTest, IsNotTakenAwayFromAWindowThatWasNeverLoaded) {
    Start("@OTHER");
    const auto calls = world.window.Calls().size();
    window().Unload();
    EXPECT_EQ(world.window.Calls().size(), calls);
}

} // namespace
} // namespace zy::test
