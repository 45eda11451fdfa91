#include "ChecksTest.h"
#include "controls/Form.h"

namespace zy::test {
namespace {

constexpr Box kBlank{"Rule Description cannot be Blank", "Invalid Rule Description"};
constexpr Box kQuotes{"Rule Description cannot contain double quotes", "Invalid Rule Description"};

class CheckDescription : public ChecksTest {
  protected:
    void ExpectDescription(std::string_view text, const std::optional<Box>& box) {
        SCOPED_TRACE(text);
        Expect(box, [&] { return checks.CheckDescription(text); });
    }
};

TEST_F(CheckDescription, RefusesTheEmptyText) {
    ExpectDescription("", kBlank);
}

TEST_F(CheckDescription, RefusesDoubleQuotes) {
    ExpectDescription("\"", kQuotes);
    ExpectDescription("a \"b\" c", kQuotes);
    ExpectDescription("  \"", kQuotes);
}

TEST_F(CheckDescription, TakesEverythingElse) {
    for (const std::string& text :
         {std::string(" "), std::string("  "), std::string("a"), std::string("'a'"), std::string("a=b [c]"),
          std::string("\xE9"), std::string(1, '\0'), std::string(100000, 'x')}) {
        ExpectDescription(text, {});
    }
}

TEST_F(CheckDescription, TracesNothing) {
    EXPECT_THAT(Traces([&] { checks.CheckDescription("a"); }), ::testing::IsEmpty());
}

TEST_F(CheckDescription, ShowsItsErrorsInTheCommonBoxWithoutATrace) {
    world.dialogs.ExpectMessage("message", "title");
    EXPECT_THAT(Traces([&] { checks.ShowRuleError("message", "title"); }), ::testing::IsEmpty());
}

TEST(SelectAllText, GivesTheBoxTheFocusAndSelectsItsWholeText) {
    Form form("frm");
    TextBox other(&form, "other");
    TextBox box(&form, "box");
    other.SetFocus();
    box.SetText("abc");
    SelectAllText(box);
    EXPECT_TRUE(box.HasFocus());
    EXPECT_EQ(box.SelStart(), 0U);
    EXPECT_EQ(box.SelLength(), 3U);
}

} // namespace
} // namespace zy::test
