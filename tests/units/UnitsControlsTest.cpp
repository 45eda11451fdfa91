#include "UnitsTest.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;

class UnitsPageControls : public UnitsTest {
  protected:
    static std::vector<std::string> NamesOf(const Container& container) {
        std::vector<std::string> names;
        for (const auto* control : container.Children()) {
            names.push_back(control->Name());
        }
        return names;
    }
};

TEST_F(UnitsPageControls, StandInTheirFramesInTabOrder) {
    EXPECT_THAT(NamesOf(form.FraUnits), ElementsAre("UpDownUnits", "grdUnits", "fraUnitFunction"));
    EXPECT_THAT(NamesOf(controls.fraUnitFunction),
                ElementsAre("cmdAddUNit", "cmdDeleteUnit", "cmdSaveUnits", "cmdHelpUnits"));
}

TEST_F(UnitsPageControls, BearTheirCaptionsAndDifferentAccessKeys) {
    std::string captions;
    std::string keys;
    for (const auto* button :
         {&controls.cmdAddUNit, &controls.cmdDeleteUnit, &controls.cmdSaveUnits, &controls.cmdHelpUnits}) {
        captions += button->Caption() + " ";
        EXPECT_NE(button->Caption().find(button->AccessKey()), std::string::npos);
        EXPECT_EQ(keys.find(button->AccessKey()), std::string::npos);
        keys += button->AccessKey();
    }
    EXPECT_EQ(captions, "Add Delete Save Help ");
}

} // namespace
} // namespace zy::test
