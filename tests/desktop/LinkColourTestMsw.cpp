#include <wx/dialog.h>
#include <wx/msw/wrapwin.h>

#include <array>

#include "RulesWindow.h"

namespace zy::test {
namespace {

using Colours = std::array<COLORREF, 6>;

constexpr std::array<int, 6> kParts{COLOR_3DFACE,     COLOR_BTNTEXT,   COLOR_WINDOW,
                                    COLOR_WINDOWTEXT, COLOR_HIGHLIGHT, COLOR_HOTLIGHT};
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kPurple = RGB(128, 0, 128);

/// White on black, for all programs.
class HighContrast {
  public:
    HighContrast() {
        for (std::size_t i = 0; i < kParts.size(); ++i) {
            before_[i] = ::GetSysColor(kParts[i]);
        }
        Set({kBlack, kWhite, kBlack, kWhite, kPurple, kYellow});
    }
    ~HighContrast() { Set(before_); }
    HighContrast(const HighContrast&) = delete;
    HighContrast& operator=(const HighContrast&) = delete;

  private:
    static void Set(const Colours& colours) {
        ::SetSysColors(static_cast<int>(kParts.size()), kParts.data(), colours.data());
    }

    Colours before_{};
};

class LinkColour : public RulesWindow {
  protected:
    /// How many pixels of a control have a colour.
    static int PixelsOf(const std::string& control, COLORREF colour) {
        const auto& link = RealNamed(control);
        const HDC context = ::GetDC(link.GetHandle());
        int count = 0;
        for (wxPoint place; place.y < link.GetSize().y; ++place.y) {
            for (place.x = 0; place.x < link.GetSize().x; ++place.x) {
                count += ::GetPixel(context, place.x, place.y) == colour ? 1 : 0;
            }
        }
        ::ReleaseDC(link.GetHandle(), context);
        return count;
    }
};

TEST_F(LinkColour, IsTheOneThatTheSystemHasForLinks) {
    const HighContrast colours;
    Play([&] {
        Press('H', wxMOD_ALT);
        Press('A');
        WaitForDialog("frmAbout");
        for (const std::string link : {"lblWebsite", "lblEmail"}) {
            constexpr int kUnderline = 20;
            WaitUntil(link + " is yellow", [&] { return PixelsOf(link, kYellow) > kUnderline; });
            EXPECT_GT(InWindow([&] { return PixelsOf(link, kBlack); }), kUnderline);
        }
        Press(WXK_ESCAPE);
        WaitForNoDialog("frmAbout");
    });
}

} // namespace
} // namespace zy::test
