#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zy::test {

/// Waits until something holds. False when it does not come to hold within the limit.
bool WaitUntil(const std::function<bool()>& holds, std::chrono::seconds limit = std::chrono::seconds(30));

/// The environment of a child: names that are to be set, and names that are to be absent.
struct Environment {
    std::map<std::string, std::string> set;
    std::vector<std::string> unset;
};

/// A program started by a test. Destroying it ends the program.
class Child {
  public:
    Child(const std::vector<std::string>& command, const Environment& environment,
          const std::filesystem::path& output);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// What it has printed so far, on both streams.
    std::string Output() const;
    /// Its exit status, once it has ended; nothing while it runs.
    std::optional<int> Status();
    /// Waits for it to end by itself. Nothing when it does not within the limit.
    std::optional<int> WaitForEnd();
    /// Asks a trace viewer to end in its orderly way, and waits for that. Returns its exit status.
    std::optional<int> Stop();
    /// Sends it a signal, where the system has such.
    void Signal(int signal);

  private:
    // Each system has one file of these.
    struct Handles;
    /// Its exit status, told one time.
    std::optional<int> Ended();
    void AskToEnd();

    std::filesystem::path output_;
    std::unique_ptr<Handles> handles_;
    std::optional<int> status_;
};

} // namespace zy::test
