#include "shell/mRegistryEdit.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <system_error>

#include "basics/Int16.h"
#include "basics/RuntimeError.h"
#include "basics/Text.h"
#include "shell/frmGlobalSettings.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

/// The number at the front of a text; 0 when it does not begin with one.
std::int16_t LeadingNumber(std::string_view text) {
    text = LTrim(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range) {
        RaiseOverflow();
    }
    return ToInt16(number);
}

/// A missing value, and one that cannot be read, is 0.
std::int16_t ReadNumber(const RegistryKey& key, std::string_view name) {
    constexpr std::size_t kBuffer = 260;
    const auto text = key.QueryText(name, kBuffer);
    return text ? LeadingNumber(StripAtNull(*text)) : std::int16_t{0};
}

/// Halves go to the even number, here as on the way back.
std::int32_t ToPixels(int twips, double twipsPerPixel) {
    return static_cast<std::int32_t>(std::lrint(twips / twipsPerPixel));
}

std::int16_t ToTwips(std::int32_t pixels, double twipsPerPixel) {
    return ToInt16(std::llrint(pixels * twipsPerPixel));
}

} // namespace

void mRegistryEdit::RestoreWindowPlacement(frmGlobalSettings& window) {
    const auto key = registry_.Open(kKey);
    if (!key) {
        return;
    }
    const auto height = ReadNumber(*key, "Height");
    const auto width = ReadNumber(*key, "Width");
    const auto top = ReadNumber(*key, "Top");
    const auto left = ReadNumber(*key, "Left");
    const auto state = ReadNumber(*key, "State");
    const auto minWidth = ReadNumber(*key, "MinWidth");
    const auto minHeight = ReadNumber(*key, "MinHeight");

    window.Load();
    auto& form = window.Form();
    form.MinHeight = minHeight;
    form.MinWidth = minWidth;

    constexpr std::uint32_t kHideWindow = 0x80;
    constexpr int kShowDefault = 10;
    const double horizontal = native_.TwipsPerPixelX();
    const double vertical = native_.TwipsPerPixelY();
    const auto x = ToPixels(left, horizontal);
    const auto y = ToPixels(top, vertical);
    native_.SetPosition({x, y, x + ToPixels(width, horizontal), y + ToPixels(height, vertical)}, kHideWindow);
    native_.Show(kShowDefault);
    if (form.State() == WindowState::Normal && state == static_cast<int>(WindowState::Maximized)) {
        form.SetState(WindowState::Maximized);
    }
}

void mRegistryEdit::SaveWindowPlacement(frmGlobalSettings& window) {
    const auto place = native_.NormalRectangle();
    // Kept: the stored vertical values are made by the horizontal factor too. Where the two factors differ,
    // height and top drift from run to run, for RestoreWindowPlacement divides them by the vertical one.
    const double factor = native_.TwipsPerPixelX();
    const auto top = ToTwips(place.top, factor);
    const auto left = ToTwips(place.left, factor);
    const auto width = ToTwips(place.right - place.left, factor);
    const auto height = ToTwips(place.bottom - place.top, factor);
    const auto held = window.Form().State();
    const auto state = held == WindowState::Minimized ? WindowState::Normal : held;

    auto key = registry_.Open(kKey);
    if (!key) {
        key = registry_.Create(kKey);
    }
    if (!key) {
        return;
    }
    key->SetText("Height", std::to_string(height));
    key->SetText("Left", std::to_string(left));
    key->SetText("Top", std::to_string(top));
    key->SetText("Width", std::to_string(width));
    key->SetText("State", std::to_string(static_cast<int>(state)));
    // A place that could not be kept is not worth a word to somebody who is leaving.
    static_cast<void>(key->Close());
}

} // namespace zy
