#include <wx/app.h>

#include <clocale>

#include "WindowTest.h"

namespace zy::test {
namespace {

class LocaleWindow : public WindowTest {
  protected:
    LocaleWindow() : WindowTest("@UNITS") {}
};

/// Pictures and colours are given to the toolkit as texts with points in their numbers, and the texts of the
/// window are English.
TEST_F(LocaleWindow, HasPointsInItsNumbersAndItsTextFromTheLeftWhereverTheUserIs) {
    Play([] {});
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    EXPECT_EQ(wxTheApp->GetLayoutDirection(), wxLayout_LeftToRight);
}

} // namespace
} // namespace zy::test
