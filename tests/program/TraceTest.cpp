#include <gmock/gmock.h>

#include "Scene.h"

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kStarted = "mZYGlobal\tmMain\tZYGlobal Start";
const std::string kAdded = "frmGlobalSettings\tcmdAddList_Click\tStart";
const std::string kUnloaded = "frmGlobalSettings\tForm_Unload\tUnloaded";

class Traces : public Scene {
  protected:
    void Open() {
        Start({"@RULES"});
        ASSERT_TRUE(WaitForWindow("ZY Setup - Rules")) << Program().Output();
    }

    void CloseWithoutSaving() {
        Press("alt+F4");
        ASSERT_TRUE(WaitForWindow("Save Changes?")) << Program().Output();
        Press("alt+n");
        EXPECT_EQ(Program().WaitForEnd(), 0);
    }
};

TEST_F(Traces, AViewerThatRunsAtTheStartReceivesTheWholeRun) {
    StartBus();
    StartViewer();
    Start({"@OTHER"});
    EXPECT_EQ(Program().WaitForEnd(), 0);
    ASSERT_TRUE(WaitForTrace(kStarted));
    EXPECT_THAT(Scene::Traces(), ElementsAre(kStarted, "mSecurity\tSecurityFileLocation\tStart"));
}

TEST_F(Traces, AViewerThatGoesAwayAndComesBackIsFoundAgain) {
    StartBus();
    StartViewer();
    Open();
    PressFor("alt+a", kAdded);
    StopViewer();
    Press("alt+z"); // to the zone: a check that is traced to no one
    StartViewer();
    CloseWithoutSaving();
    EXPECT_TRUE(WaitForTrace(kUnloaded));
}

TEST_F(Traces, AViewerThatStartsLaterIsNeverFound) {
    StartBus();
    Open();
    StartViewer();
    Press("alt+F4");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    StopViewer();
    EXPECT_THAT(Scene::Traces(), IsEmpty());
}

TEST_F(Traces, WithoutASessionBusNoneIsStarted) {
    Open();
    Press("alt+F4");
    EXPECT_EQ(Program().WaitForEnd(), 0);
    const auto runtimeFolder = environment.set["XDG_RUNTIME_DIR"];
    EXPECT_FALSE(std::filesystem::exists(runtimeFolder + "/bus"));
    EXPECT_EQ(Printed("pgrep -f '[d]bus-daemon.*" + runtimeFolder + "'"), "");
}

} // namespace
} // namespace zy::test
