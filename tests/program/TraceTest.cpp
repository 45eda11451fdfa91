#include <gmock/gmock.h>

#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kStarted = "mZYGlobal\tmMain\tZYGlobal Start";
const std::string kAdded = "frmGlobalSettings\tcmdAddList_Click\tStart";
const std::string kUnloaded = "frmGlobalSettings\tForm_Unload\tUnloaded";

class Traces : public Scene {
  protected:
    void CloseWithoutSaving() {
        PressKeys("alt+F4");
        ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
        PressKeys("alt+n");
        EXPECT_EQ(Program().WaitForEnd(), 0);
    }
};

TEST_F(Traces, AViewerThatRunsAtTheStartReceivesTheWholeRun) {
    StartViewer();
    Start({"@OTHER"});
    EXPECT_EQ(Program().WaitForEnd(), 0);
    ASSERT_TRUE(WaitForTrace(kStarted));
    EXPECT_THAT(Scene::Traces(), ElementsAre(kStarted, "mSecurity\tSecurityFileLocation\tStart"));
}

TEST_F(Traces, AViewerThatGoesAwayAndComesBackIsFoundAgain) {
    StartViewer();
    OpenRules();
    PressFor("alt+a", kAdded);
    StopViewer();
    PressKeys("alt+r alt+d"); // leaves the Rule ID: a check that is traced to no one
    StartViewer();
    CloseWithoutSaving();
    EXPECT_TRUE(WaitForTrace(kUnloaded));
}

TEST_F(Traces, AViewerThatStartsLaterIsNeverFound) {
    outside.AdmitViewers();
    OpenRules();
    StartViewer();
    PressKeys("alt+F4");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    StopViewer();
    EXPECT_THAT(Scene::Traces(), IsEmpty());
}

} // namespace
} // namespace zy::test
