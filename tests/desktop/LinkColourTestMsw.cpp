#include <wx/dialog.h>
#include <wx/msw/wrapwin.h>

#include <array>

#include "RulesWindow.h"

namespace zy::test {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kGrey = RGB(150, 150, 150);
constexpr COLORREF kLightGrey = RGB(230, 230, 230);

/// The colours of all programs' windows, of the text on them, and of links.
class SystemColours {
  public:
    SystemColours(COLORREF window, COLORREF text, COLORREF link) {
        for (std::size_t i = 0; i < kParts.size(); ++i) {
            before_[i] = ::GetSysColor(kParts[i]);
        }
        Set({window, text, link});
    }
    ~SystemColours() { Set(before_); }
    SystemColours(const SystemColours&) = delete;
    SystemColours& operator=(const SystemColours&) = delete;

  private:
    using Colours = std::array<COLORREF, 3>;
    static constexpr std::array<int, 3> kParts{COLOR_BTNFACE, COLOR_BTNTEXT, COLOR_HOTLIGHT};

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

    void ExpectLinksIn(COLORREF colour) {
        Play([&] {
            Press('H', wxMOD_ALT);
            Press('A');
            WaitForDialog("frmAbout");
            for (const std::string link : {"lblWebsite", "lblEmail"}) {
                constexpr int kUnderline = 20;
                WaitUntil(link + " has its colour", [&] { return PixelsOf(link, colour) > kUnderline; });
            }
            Press(WXK_ESCAPE);
            WaitForNoDialog("frmAbout");
        });
    }
};

TEST_F(LinkColour, IsTheOneThatTheSystemHasForLinks) {
    const SystemColours colours(kBlack, kWhite, kYellow);
    ExpectLinksIn(kYellow);
}

TEST_F(LinkColour, IsBlueWhereTheSystemsCannotBeRead) {
    const SystemColours colours(kWhite, kBlack, kLightGrey);
    ExpectLinksIn(kBlue);
}

TEST_F(LinkColour, IsBlueWhereTheSystemsIsSeenButTooPaleToBeRead) {
    const SystemColours colours(kWhite, kBlack, kGrey);
    ExpectLinksIn(kBlue);
}

TEST_F(LinkColour, IsThatOfOtherTextWhereBlueCannotBeReadEither) {
    const SystemColours colours(kBlack, kWhite, kBlue);
    ExpectLinksIn(kWhite);
}

} // namespace
} // namespace zy::test
