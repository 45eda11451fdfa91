#include "controls/DrawingBox.h"

#include <gmock/gmock.h>

#include "controls/Form.h"

namespace zy::test {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class DrawingBoxTest : public ::testing::Test {
  protected:
    DrawingBoxTest() {
        box.changed.Connect([this] { ++changes; });
    }

    Drawing Drawn() const {
        return box.DrawingIn({300, 200}, {10, [](std::string_view) { return 7; }});
    }

    Form form{"frm"};
    DrawingBox box{&form, "pic", "Picture"};
    int changes = 0;
};

TEST_F(DrawingBoxTest, HasNothingToShowAtFirst) {
    EXPECT_THAT(Drawn().lines, IsEmpty());
    EXPECT_EQ(box.Description(), "");
}

TEST_F(DrawingBoxTest, IsDrawnInTheRoomAndWithTheLettersThatItIsShownWith) {
    box.Show("a line", [](const Size& room, const Lettering& letters) {
        Drawing drawing;
        drawing.lines.push_back({{0, 0}, {room.width + 0.0, room.height + 0.0}, letters.height + 0.0});
        return drawing;
    });
    EXPECT_EQ(box.Description(), "a line");
    ASSERT_THAT(Drawn().lines, SizeIs(1));
    EXPECT_EQ(Drawn().lines[0].to.x, 300);
    EXPECT_EQ(Drawn().lines[0].to.y, 200);
    EXPECT_EQ(Drawn().lines[0].width, 10);
}

TEST_F(DrawingBoxTest, TellsOfEachChange) {
    box.Show("one", {});
    box.Show("two", {});
    EXPECT_EQ(changes, 2);
    EXPECT_THAT(Drawn().lines, IsEmpty());
}

} // namespace
} // namespace zy::test
