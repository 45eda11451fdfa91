#include "RulesWindow.h"

namespace zy::test {
namespace {

class TextsWithoutEmoji : public RulesWindow {
  protected:
    TextsWithoutEmoji() { PutRules(ThreeRules()); }

    void OpenDescription() {
        Press('D', wxMOD_ALT);
        WaitForFocus(page().txtDescription);
    }
    void ExpectNext(const std::string& typed, const std::string& text) {
        Type(typed);
        WaitUntil("the description is " + text, [&] { return page().txtDescription.Text() == text; });
    }
};

TEST_F(TextsWithoutEmoji, TakeWhatIsTypedBehindControlAndFullStop) {
    Play([&] {
        OpenDescription();
        Press('.', wxMOD_CONTROL);
        ExpectNext("one", "one");
    });
}

TEST_F(TextsWithoutEmoji, EndTheirMenuWithSelectAll) {
    Play([&] {
        OpenDescription();
        ExpectNext("one", "one");
        Press(WXK_F10, wxMOD_SHIFT);
        WaitForMenu();
        Press(WXK_UP);
        Press(WXK_RETURN);
        WaitForNoMenu();
        ExpectNext("two", "two");
    });
}

} // namespace
} // namespace zy::test
