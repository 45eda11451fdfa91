#include <algorithm>
#include <string>
#include <vector>

#include <atk/atk.h>

#include "RulesWindow.h"
#include "desktop/GtkFunctions.h"

namespace zy::test {
namespace {

class FocusOrder : public RulesWindow {
  protected:
    FocusOrder() { PutRules(ThreeRules()); }

    /// Notes in their order what assistive technology gets to know of a line of text.
    void Listen(const TextBox& box) {
        auto* object = gtk_widget_get_accessible(Real(box).GetHandle());
        g_signal_connect_swapped(object, "state-change::focused", G_CALLBACK(NoteFocus), &news_);
        g_signal_connect_swapped(object, "text-caret-moved", G_CALLBACK(NoteCaret), &news_);
        g_signal_connect_swapped(object, "text-selection-changed", G_CALLBACK(NoteCaret), &news_);
    }
    long Count(const std::string& news) const { return std::count(news_.begin(), news_.end(), news); }

    std::vector<std::string> news_;

  private:
    static void NoteFocus(std::vector<std::string>* news) { news->emplace_back("focus"); }
    static void NoteCaret(std::vector<std::string>* news) { news->emplace_back("caret"); }
};

TEST_F(FocusOrder, ALineOfTextTellsOfItsCaretOnlyWhenTheFocusHasBeenTold) {
    Play([&] {
        Enter(page().txtCode);
        InWindow([&] { Listen(page().txtMin); });
        Press(WXK_TAB);
        WaitForFocus(page().txtMin);
        WaitUntil("the caret is told", [&] { return Count("caret") > 0; });
        // GTK tells of the focus twice, the second time when it has nothing else to do.
        EXPECT_EQ(InWindow([&] { return std::find(news_.begin(), news_.end(), "caret") - news_.begin(); }),
                  2);
        EXPECT_EQ(InWindow([&] { return Count("focus"); }), 2);
    });
}

} // namespace
} // namespace zy::test
