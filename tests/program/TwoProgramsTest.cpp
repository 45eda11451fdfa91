#include "Scene.h"
#include "Screen.h"

namespace zy::test {
namespace {

constexpr auto kFile = "ZYUNITS.SYS";
constexpr auto kQuestion = "ZY Setup - Changed by Another Program";
const std::string kSaving = "frmGlobalSettings\t,mnuSave_Click\tUnits";

/// The units editor, beside a program that writes to the same file.
class TwoPrograms : public Scene {
  protected:
    void SetUp() override {
        StartViewer();
        Put(kFile, "Kilograms,kg\r\nMetres,m\r\n");
        OpenUnits();
        PressKeys("ctrl+Home");
        TypeCharacters("t");
        PressKeys("Return");
        Put(kFile, "Kilograms,kg\r\nMetres,m\r\nSeconds,s\r\n");
    }
    void SaveToTheQuestion() {
        PressFor("ctrl+s", kSaving);
        ASSERT_TRUE(WaitForWindow(kQuestion)) << Program().Output();
    }
};

TEST_F(TwoPrograms, EnterSavesTheWorkOfBoth) {
    SaveToTheQuestion();
    PressKeys("Return");
    EXPECT_TRUE(WaitForBytes(kFile, "Kilograms,t\r\nMetres,m\r\nSeconds,s\r\n")) << Get(kFile);
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    Close();
}

TEST_F(TwoPrograms, EscapeLeavesTheFileToTheOtherOne) {
    SaveToTheQuestion();
    PressKeys("Escape");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    EXPECT_EQ(Get(kFile), "Kilograms,kg\r\nMetres,m\r\nSeconds,s\r\n");
}

TEST_F(TwoPrograms, WhatWasOverwrittenComesBackAsAnEarlierVersion) {
    SaveToTheQuestion();
    PressKeys("alt+o");
    EXPECT_TRUE(WaitForBytes(kFile, "Kilograms,t\r\nMetres,m\r\n")) << Get(kFile);
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    PressKeys("alt+e e");
    ASSERT_TRUE(WaitForWindow("ZY Setup - Earlier Versions")) << Program().Output();
    PressKeys("alt+r");
    ASSERT_TRUE(WaitForWindow(kUnitsTitle)) << Program().Output();
    EXPECT_TRUE(WaitUntil([this] {
        PressKeys("ctrl+s");
        return Get(kFile) == "Kilograms,kg\r\nMetres,m\r\nSeconds,s\r\n";
    })) << Get(kFile);
    Close();
}

} // namespace
} // namespace zy::test
