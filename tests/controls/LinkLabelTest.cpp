#include "controls/LinkLabel.h"

#include <gtest/gtest.h>

#include "controls/Form.h"

namespace zy::test {
namespace {

TEST(LinkLabelTest, TellsOfAClickAndTakesTheFocusUnlessItIsDisabled) {
    Form form("frm");
    LinkLabel link(&form, "lnk", "http://a.example");
    form.SetVisible(true);
    int clicks = 0;
    link.click.Connect([&] { ++clicks; });
    link.Click();
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(link.HasFocus());
    link.SetEnabled(false);
    link.Click();
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace zy::test
