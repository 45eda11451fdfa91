#include <wx/msw/wrapwin.h>

#include <string>
#include <string_view>

#include "UnitsWindow.h"
#include "shell/StatusTexts.h"

namespace zy::test {
namespace {

/// The clipboard in the hands of another program, which is what another thread is to the window's, right
/// after it has copied a text.
class HeldClipboard {
  public:
    explicit HeldClipboard(std::wstring_view text) {
        EXPECT_NE(::OpenClipboard(owner_), 0);
        ::EmptyClipboard();
        const HGLOBAL copied =
            ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, (text.size() + 1) * sizeof(wchar_t));
        text.copy(static_cast<wchar_t*>(::GlobalLock(copied)), text.size());
        ::GlobalUnlock(copied);
        EXPECT_NE(::SetClipboardData(CF_UNICODETEXT, copied), nullptr);
    }
    ~HeldClipboard() {
        ::CloseClipboard();
        ::DestroyWindow(owner_);
    }
    HeldClipboard(const HeldClipboard&) = delete;
    HeldClipboard& operator=(const HeldClipboard&) = delete;

  private:
    HWND owner_ = ::CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
};

class HeldClipboardWindow : public UnitsWindow {
  protected:
    /// Presses a key of the clipboard in the cell "m" of three units while another program holds it.
    void PressInVain(int key) {
        PutUnits(ThreeUnits());
        Play([&] {
            ClickCell(2, 0);
            {
                const HeldClipboard held(L"other");
                Press(key, wxMOD_CONTROL);
                WaitForStatus(std::string(kClipboardInUse));
            }
            EXPECT_EQ(Shown(2, 0), "m");
            EXPECT_EQ(TextOnClipboard(), "other");
            EXPECT_FALSE(program->form.ChangeFlag);
        });
    }
};

TEST_F(HeldClipboardWindow, LeavesTheCellsThatWereToBeCut) {
    PressInVain('X');
}

TEST_F(HeldClipboardWindow, SaysThatNothingWasCopied) {
    PressInVain('C');
}

TEST_F(HeldClipboardWindow, SaysThatNothingWasPasted) {
    PressInVain('V');
}

} // namespace
} // namespace zy::test
