#include <wx/frame.h>
#include <wx/msw/wrapwin.h>

#include "RulesWindow.h"

namespace zy::test {
namespace {

/// The procedure that gets the messages of the main window.
class MinSizeHook : public RulesWindow {
  protected:
    static ULONG_PTR Procedure() {
        return static_cast<ULONG_PTR>(::GetWindowLongPtrW(RealFrame().GetHandle(), GWLP_WNDPROC));
    }
    /// The one that each window of its kind has at first.
    static ULONG_PTR FirstProcedure() { return ::GetClassLongPtrW(RealFrame().GetHandle(), GCLP_WNDPROC); }
};

TEST_F(MinSizeHook, TakesThePlaceOfTheWindowsProcedureUntilTheWindowIsUnloaded) {
    ULONG_PTR first = 0;
    ULONG_PTR afterwards = 0;
    Subscription unloaded;
    Play([&] {
        InWindow([&] {
            first = FirstProcedure();
            EXPECT_NE(Procedure(), first);
            unloaded = program->window.unloaded.Observe([&] { afterwards = Procedure(); });
        });
    });
    EXPECT_NE(first, 0U);
    EXPECT_EQ(afterwards, first);
}

} // namespace
} // namespace zy::test
