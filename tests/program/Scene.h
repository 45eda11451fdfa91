#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Child.h"
#include "Surroundings.h"

namespace zy::test {

/// The program between a folder of settings, a registry and trace viewers of its own, and a user at the
/// keyboard.
class Scene : public ::testing::Test {
  protected:
    static constexpr auto kRulesTitle = "ZY Setup - Rules";
    static constexpr auto kUnitsTitle = "ZY Setup - Units of Measure";
    static constexpr auto kUsersTitle = "ZY Setup - Security";

    Scene() = default;
    ~Scene() override;

    // The settings.
    void Put(const std::string& fileName, const std::string& bytes) const;
    /// A file's bytes; empty when there is none.
    std::string Get(const std::string& fileName) const;
    /// Waits until a file holds these bytes.
    bool WaitForBytes(const std::string& fileName, const std::string& bytes) const;

    // The trace viewers.
    void StartViewer();
    void StopViewer();
    /// The one that was started last.
    Child& Viewer() { return *viewers_.back(); }
    /// The lines that the viewers of this test have printed, without the program's name.
    std::vector<std::string> Traces() const;
    bool WaitForTrace(const std::string& line) const;

    // The program.
    void Start(const std::vector<std::string>& arguments);
    /// Starts it with one of the editors and waits for its window.
    void OpenRules() { Open("@RULES", kRulesTitle); }
    void OpenUnits() { Open("@UNITS", kUnitsTitle); }
    void OpenUsers() { Open("@SECURITY", kUsersTitle); }
    void Open(const std::string& argument, const std::string& title);
    Child& Program() { return *program_; }
    /// Waits until a window of that title has the keyboard. False when the program ended or none came.
    bool WaitForWindow(const std::string& title) const;
    /// Ends it from one moment to the next.
    void KillProgram();
    /// Closes the window that has the keyboard and waits for the program's orderly end.
    void Close();
    /// Presses keys and waits until the viewer has got this record. A button that is pressed by the keyboard
    /// takes its time, and swallows what is typed meanwhile.
    void PressFor(const std::string& keys, const std::string& trace) const;

    /// Moves the window to where its place is too many twips away to be stored, in pixels, and closes it: the
    /// program ends with an error, and nothing is stored.
    void ExpectOverflowAt(int x);

    /// What a program has printed by the end of its part in the test. Most have nothing to say there.
    ::testing::Matcher<std::string> printed = ::testing::IsEmpty();

    Surroundings outside;

  private:
    void TearDown() override;
    /// Looks at what the program of this test has printed.
    void CheckPrinted() const;

    std::vector<std::unique_ptr<Child>> viewers_;
    std::unique_ptr<Child> program_;
};

} // namespace zy::test
