#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/NativeWindow.h"
#include "platform/Registry.h"
#include "platform/TraceServers.h"

namespace zy::test {

/// What reached the outside world, in its order: traces, and what was asked of the window and the registry. A
/// test may put other things in between.
using Calls = std::vector<std::string>;

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

/// A window that puts the changes of its procedure among the calls.
class WindowAmongCalls final : public NativeWindow {
  public:
    WindowAmongCalls(Calls& calls, NativeWindow& window) : calls_(calls), window_(window) {}

    WindowHandle Handle() override { return window_.Handle(); }
    WindowProcedure SetProcedure(WindowProcedure procedure) override {
        calls_.emplace_back("SetProcedure");
        return window_.SetProcedure(std::move(procedure));
    }
    PixelRect NormalRectangle() override { return window_.NormalRectangle(); }
    void SetPosition(const PixelRect& place, std::uint32_t flags) override {
        window_.SetPosition(place, flags);
    }
    void Show(int command) override { window_.Show(command); }
    double TwipsPerPixelX() override { return window_.TwipsPerPixelX(); }
    double TwipsPerPixelY() override { return window_.TwipsPerPixelY(); }
    PixelPoint ScreenSize() override { return window_.ScreenSize(); }

  private:
    Calls& calls_;
    NativeWindow& window_;
};

/// A registry that puts among the calls which key was opened or made.
class RegistryAmongCalls final : public Registry {
  public:
    RegistryAmongCalls(Calls& calls, Registry& registry) : calls_(calls), registry_(registry) {}

    std::unique_ptr<RegistryKey> Open(std::string_view path) override {
        calls_.emplace_back("Open key");
        return registry_.Open(path);
    }
    std::unique_ptr<RegistryKey> Create(std::string_view path) override {
        calls_.emplace_back("Create key");
        return registry_.Create(path);
    }

  private:
    Calls& calls_;
    Registry& registry_;
};

} // namespace zy::test
