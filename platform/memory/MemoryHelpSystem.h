#pragma once

#include <string>
#include <vector>

#include "platform/HelpSystem.h"

namespace zy {

/// Notes what help was asked for.
class MemoryHelpSystem final : public HelpSystem {
  public:
    struct Request {
        std::string file;
        HelpCommand command;
        std::uintptr_t data;

        friend bool operator==(const Request&, const Request&) = default;
    };

    void Show(std::string_view helpFile, HelpCommand command, std::uintptr_t data) override {
        requests_.push_back({std::string(helpFile), command, data});
    }

    const std::vector<Request>& Requests() const { return requests_; }

  private:
    std::vector<Request> requests_;
};

} // namespace zy
