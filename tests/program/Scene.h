#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Child.h"

namespace zy::test {

/// A folder of settings, a session bus of its own, and the program between them.
class Scene : public ::testing::Test {
  protected:
    Scene();
    ~Scene() override;

    // The settings.
    void PutRules(const std::string& bytes);
    /// The rules file's bytes; empty when there is none.
    std::string Rules() const;
    std::vector<std::string> FileNames() const;
    /// What the registry's file holds; empty when there is none.
    std::string Registry() const;

    // The session bus and the trace viewer on it.
    void StartBus();
    void StartViewer();
    void StopViewer();
    /// The lines that the viewers of this test have printed, without the program's name.
    std::vector<std::string> Traces() const;
    bool WaitForTrace(const std::string& line) const;

    // The program.
    void Start(const std::vector<std::string>& arguments);
    Child& Program() { return *program_; }
    /// Waits until a window of that title has the keyboard. False when the program ended or none came.
    bool WaitForWindow(const std::string& title) const;
    /// Presses keys in the window that has the keyboard, one after the other, as xdotool names them.
    static void Press(const std::string& keys);
    /// Presses keys and waits until the viewer has got this record. A button that is pressed by the keyboard
    /// takes its time, and swallows what is typed meanwhile.
    void PressFor(const std::string& keys, const std::string& trace) const;
    static void TypeText(const std::string& text);

    Environment environment;

  private:
    std::filesystem::path folder_;
    std::unique_ptr<Child> bus_;
    std::vector<std::unique_ptr<Child>> viewers_;
    std::unique_ptr<Child> program_;
};

} // namespace zy::test
