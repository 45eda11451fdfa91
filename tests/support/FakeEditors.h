#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/Editors.h"
#include "shell/TraceChannel.h"

namespace zy::test {

/// The calls that reached the fakes, in their order. A test may put other things in between.
using Calls = std::vector<std::string>;

/// A users editor that notes what is asked of it and answers what a test has set.
class FakeSecurityEditor final : public SecurityEditor {
  public:
    explicit FakeSecurityEditor(Calls& calls) : calls_(calls) {}

    bool LoadSecurityData() override {
        calls_.emplace_back("LoadSecurityData");
        return mayOpen;
    }
    void LoadSecurity() override {
        calls_.emplace_back("LoadSecurity");
        loading();
    }
    void ResizeSecurity() override {
        calls_.emplace_back("ResizeSecurity");
        resizing();
    }
    void CommitCellEdit() override { calls_.emplace_back("CommitCellEdit"); }
    bool Validate_Security() override {
        calls_.emplace_back("Validate_Security");
        return valid;
    }
    void Save_Security() override { calls_.emplace_back("Save_Security"); }
    bool WriteUsers(std::string_view folderWithoutUsers) override {
        calls_.push_back("WriteUsers " + std::string(folderWithoutUsers));
        writing();
        return hasTurn;
    }
    void DisableSaveButton() override { calls_.emplace_back("DisableSaveButton"); }

    bool mayOpen = true;
    bool valid = true;
    bool hasTurn = true;
    std::function<void()> loading = [] {};
    std::function<void()> resizing = [] {};
    std::function<void()> writing = [] {};

  private:
    Calls& calls_;
};

/// The same for the units of measure.
class FakeUnitsEditor final : public UnitsEditor {
  public:
    explicit FakeUnitsEditor(Calls& calls) : calls_(calls) {}

    void LoadUnitsData() override {
        calls_.emplace_back("LoadUnitsData");
        loading();
    }
    void ResizeUnits() override {
        calls_.emplace_back("ResizeUnits");
        resizing();
    }
    void CommitCellEdit() override { calls_.emplace_back("CommitCellEdit"); }
    bool ValidateUnits() override {
        calls_.emplace_back("ValidateUnits");
        return valid;
    }
    bool Write_Units() override {
        calls_.emplace_back("Write_Units");
        return mayWrite;
    }
    void DisableSaveButton() override { calls_.emplace_back("DisableSaveButton"); }

    bool valid = true;
    bool mayWrite = true;
    std::function<void()> loading = [] {};
    std::function<void()> resizing = [] {};

  private:
    Calls& calls_;
};

/// A place of the window, which runs `restoring` where a stored place would load and show the window.
class FakePlacement final : public WindowPlacement {
  public:
    explicit FakePlacement(Calls& calls) : calls_(calls) {}

    void RestoreWindowPlacement() override {
        calls_.emplace_back("RestoreWindowPlacement");
        restoring();
    }
    void SaveWindowPlacement() override { calls_.emplace_back("SaveWindowPlacement"); }

    std::function<void()> restoring = [] {};

  private:
    Calls& calls_;
};

class FakeMinSizeHook final : public MinSizeHook {
  public:
    explicit FakeMinSizeHook(Calls& calls) : calls_(calls) {}

    void InstallMinSizeHook() override { calls_.emplace_back("InstallMinSizeHook"); }
    void RemoveMinSizeHook() override { calls_.emplace_back("RemoveMinSizeHook"); }

  private:
    Calls& calls_;
};

/// A trace viewer that puts every record among the calls.
class TracesAmongCalls final : public TraceServers {
  public:
    explicit TracesAmongCalls(Calls& calls) : calls_(calls) {}

    std::unique_ptr<TraceServer> GetRunning(std::string_view /*name*/) override {
        return std::make_unique<Server>(calls_);
    }

  private:
    class Server final : public TraceServer {
      public:
        explicit Server(Calls& calls) : calls_(calls) {}

        bool Send(std::string_view /*executable*/, std::string_view module, std::string_view procedure,
                  std::string_view message) override {
            std::string line = "trace ";
            line.append(module).append(" ").append(procedure).append(" ").append(message);
            calls_.push_back(line);
            return true;
        }

      private:
        Calls& calls_;
    };

    Calls& calls_;
};

} // namespace zy::test
