#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "Child.h"
#include "support/TemporaryFolder.h"

namespace zy::test {

/// What the program finds outside itself: a folder of settings without any, a registry without its key, and
/// trace viewers when a test starts them. Where the system has one folder or one registry for all programs,
/// what is there comes back when this goes. Each system has one file of this.
class Surroundings {
  public:
    Surroundings();
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;
    ~Surroundings();

    /// Where the settings' files are.
    std::filesystem::path Settings() const;
    /// The settings' files and whatever else the program has put beside them.
    std::vector<std::string> FileNames() const;
    /// What the program has stored in the registry: "[key]" and below it "name=value", a line each. Empty
    /// when it has stored nothing.
    std::string Registry() const;

    /// Lets trace viewers be found by the programs that are started from now on.
    void AdmitViewers();

    /// A place for what programs print.
    std::filesystem::path Output(const std::string& name) const { return folder_.Path() / name; }

    Environment environment;

  private:
    struct Native;

    TemporaryFolder folder_;
    std::unique_ptr<Native> native_;
};

/// The paths of the program and of a trace viewer.
std::string ProgramPath();
std::string ViewerPath();

} // namespace zy::test
