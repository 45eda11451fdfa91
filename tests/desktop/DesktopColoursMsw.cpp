#include <windows.h>

#include <algorithm>
#include <array>

#include "DesktopColours.h"

namespace zy::test {
namespace {

constexpr int kCount = 7;
using Colours = std::array<COLORREF, kCount>;

constexpr std::array<int, kCount> kParts{COLOR_WINDOW,    COLOR_WINDOWTEXT,    COLOR_HOTLIGHT,
                                         COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT, COLOR_BTNFACE,
                                         COLOR_BTNTEXT};
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kCyan = RGB(0, 255, 255);
constexpr Colours kHighContrast{kBlack, kWhite, kYellow, kCyan, kBlack, kBlack, kWhite};

void Set(const Colours& colours) {
    ::SetSysColors(kCount, kParts.data(), colours.data());
}

} // namespace

struct DesktopColours::Native {
    Colours before{};
};

DesktopColours::DesktopColours() : native_(std::make_unique<Native>()) {
    std::ranges::transform(kParts, native_->before.begin(), [](int part) { return ::GetSysColor(part); });
}

DesktopColours::~DesktopColours() {
    Set(native_->before);
}

void DesktopColours::Darken() {
    Set(kHighContrast);
}

} // namespace zy::test
