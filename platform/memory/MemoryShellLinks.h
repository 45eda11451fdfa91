#pragma once

#include <vector>

#include "platform/ShellLinks.h"

namespace zy {

/// Notes the links instead of opening them.
class MemoryShellLinks final : public ShellLinks {
  public:
    bool Open(const LinkRequest& request) override {
        requests_.push_back(request);
        return hasPrograms_;
    }

    /// Without programs for them no link opens.
    void SetHasPrograms(bool has) { hasPrograms_ = has; }
    const std::vector<LinkRequest>& Requests() const { return requests_; }

  private:
    std::vector<LinkRequest> requests_;
    bool hasPrograms_ = true;
};

} // namespace zy
