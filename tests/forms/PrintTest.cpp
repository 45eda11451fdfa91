#include "RulesForm.h"

namespace zy::test {
namespace {

using ::testing::Contains;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// The rules with their pictures, on paper.
class PrintRules : public RulesForm {
  protected:
    static auto Shows(const std::string& text) {
        return Field(&Drawing::texts, Contains(Field(&DrawnText::text, text)));
    }
    const std::vector<Drawing>& OnPaper() { return world.paper.printed; }
};

TEST_F(PrintRules, PutsAllRulesWithTheirPicturesOnPaper) {
    StartWithCodes({"A", "B"});
    window().menu.mnuPrint.Click();
    ASSERT_THAT(OnPaper(), SizeIs(1));
    EXPECT_EQ(world.paper.title, "Rules");
    EXPECT_THAT(OnPaper().front(), Shows("A: text"));
    EXPECT_THAT(OnPaper().front(), Shows("B: text"));
    EXPECT_THAT(OnPaper().front(), Shows("Rules, " + world.system.TimeText(world.system.Now())));
    EXPECT_THAT(OnPaper().front(), Shows("Page 1 of 1"));
    EXPECT_EQ(Status(), "2 rules   -   Printed");
}

TEST_F(PrintRules, IsOfferedByTheMenuOfTheListToo) {
    StartWithCodes({"A"});
    window().menu.mnuPrintOfList.Click();
    EXPECT_THAT(OnPaper(), SizeIs(1));
}

TEST_F(PrintRules, ChangesNothing) {
    StartWithCodes({"A"});
    page().txtMax.Enter("7");
    const auto before = File();
    window().menu.mnuPrint.Click();
    EXPECT_EQ(File(), before);
    EXPECT_EQ(form().ChangeFlag, true);
}

TEST_F(PrintRules, SaysNothingWhenTheUserThinksBetterOfIt) {
    StartWithCodes({"A"});
    world.paper.answer = Printed::Cancelled;
    window().menu.mnuPrint.Click();
    EXPECT_EQ(Status(), "1 rule");
}

TEST_F(PrintRules, SaysWhenThePrinterFails) {
    StartWithCodes({"A"});
    world.paper.answer = Printed::Failed;
    window().menu.mnuPrint.Click();
    EXPECT_EQ(Status(), "1 rule   -   Not printed, the printer or the file could not be written to");
}

TEST_F(PrintRules, IsNoEntryOfTheOtherEditors) {
    ASSERT_EQ(Start("@UNITS"), StartUp::WindowShown);
    EXPECT_FALSE(window().menu.mnuPrint.Enabled());
    window().menu.mnuPrint.Click();
    EXPECT_THAT(OnPaper(), IsEmpty());
}

} // namespace
} // namespace zy::test
