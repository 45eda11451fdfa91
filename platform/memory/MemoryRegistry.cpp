#include "platform/memory/MemoryRegistry.h"

namespace zy {

class MemoryRegistry::Key final : public RegistryKey {
  public:
    Key(const MemoryRegistry& registry, Values& stored) : registry_(registry), stored_(stored) {}

    std::optional<std::string> QueryText(std::string_view name, std::size_t capacity) const override {
        const auto found = stored_.find(registry_.codePage_.UCase(name));
        if (found == stored_.end() || found->second.size() > capacity) {
            return std::nullopt;
        }
        return found->second;
    }

    void SetText(std::string_view name, std::string_view text) override {
        set_[registry_.codePage_.UCase(name)] = text;
    }

    bool Close() override {
        if (registry_.readOnly_) {
            return false;
        }
        for (auto& [name, text] : set_) {
            stored_[name] = std::move(text);
        }
        set_.clear();
        return true;
    }

  private:
    const MemoryRegistry& registry_;
    Values& stored_;
    Values set_;
};

std::unique_ptr<RegistryKey> MemoryRegistry::Open(std::string_view path) {
    const auto found = keys_.find(codePage_.UCase(path));
    if (unreadable_ || found == keys_.end()) {
        return nullptr;
    }
    return std::make_unique<Key>(*this, found->second);
}

std::unique_ptr<RegistryKey> MemoryRegistry::Create(std::string_view path) {
    if (unreadable_ || readOnly_) {
        return nullptr;
    }
    return std::make_unique<Key>(*this, keys_[codePage_.UCase(path)]);
}

std::optional<MemoryRegistry::Values> MemoryRegistry::Get(std::string_view path) const {
    const auto found = keys_.find(codePage_.UCase(path));
    return found == keys_.end() ? std::nullopt : std::optional(found->second);
}

void MemoryRegistry::Put(std::string_view path, std::string_view name, std::string_view bytes) {
    keys_[codePage_.UCase(path)][codePage_.UCase(name)] = bytes;
}

} // namespace zy
