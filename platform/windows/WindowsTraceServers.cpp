#include "platform/windows/WindowsTraceServers.h"

#include "platform/windows/Automation.h"

namespace zy {
namespace {

class AutomationTraceServer final : public TraceServer {
  public:
    AutomationTraceServer(ComPointer<IDispatch> object, const CodePage& codePage)
        : object_(std::move(object)), codePage_(codePage) {}

    bool Send(std::string_view executable, std::string_view module, std::string_view procedure,
              std::string_view message) override {
        const auto text = [this](std::string_view field) { return ToComText(codePage_, field); };
        return CallMethod(*object_, L"Send",
                          {text(executable), text(module), text(procedure), text(message)});
    }

  private:
    ComPointer<IDispatch> object_;
    const CodePage& codePage_;
};

} // namespace

WindowsTraceServers::WindowsTraceServers(const CodePage& codePage)
    : codePage_(codePage), comIsOurs_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

WindowsTraceServers::~WindowsTraceServers() {
    if (comIsOurs_) {
        ::CoUninitialize();
    }
}

std::unique_ptr<TraceServer> WindowsTraceServers::GetRunning(std::string_view name) {
    auto object = RunningObject(ToComText(codePage_, name));
    return object ? std::make_unique<AutomationTraceServer>(std::move(object), codePage_) : nullptr;
}

} // namespace zy
