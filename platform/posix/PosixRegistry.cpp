#include "platform/posix/PosixRegistry.h"

#include <utility>
#include <vector>

#include "platform/posix/RegistryFile.h"

namespace zy {
namespace {

/// The name among these that is the same but for its case; `wanted` itself when there is none.
std::string FoundName(gchar** names, const std::string& wanted) {
    for (; names != nullptr && *names != nullptr; ++names) {
        if (g_ascii_strcasecmp(*names, wanted.c_str()) == 0) {
            return *names;
        }
    }
    return wanted;
}

std::string GroupNamed(GKeyFile* file, const std::string& wanted) {
    gchar** groups = g_key_file_get_groups(file, nullptr);
    auto found = FoundName(groups, wanted);
    g_strfreev(groups);
    return found;
}

std::string ValueNamed(GKeyFile* file, const std::string& group, const std::string& wanted) {
    gchar** keys = g_key_file_get_keys(file, group.c_str(), nullptr, nullptr);
    auto found = FoundName(keys, wanted);
    g_strfreev(keys);
    return found;
}

class Key final : public RegistryKey {
  public:
    /// `content` is what the file holds.
    Key(const CodePage& codePage, RegistryFile file, GlibPointer<GKeyFile> content, std::string group)
        : codePage_(codePage), file_(std::move(file)), content_(std::move(content)),
          group_(std::move(group)) {}

    std::optional<std::string> QueryText(std::string_view name, std::size_t capacity) const override {
        const auto value = ValueNamed(content_.get(), group_, codePage_.ToUtf8(name));
        const GlibPointer<gchar> utf8(
            g_key_file_get_string(content_.get(), group_.c_str(), value.c_str(), nullptr));
        auto text = utf8 ? codePage_.FromUtf8(utf8.get()) : std::nullopt;
        return text && text->size() <= capacity ? text : std::nullopt;
    }

    void SetText(std::string_view name, std::string_view text) override {
        set_.emplace_back(codePage_.ToUtf8(name), codePage_.ToUtf8(text));
    }

    bool Close() override {
        const auto lock = file_.Lock();
        // Read again: another program may have stored something meanwhile.
        const auto content = lock ? file_.ReadForChange() : nullptr;
        if (!content) {
            return false;
        }
        const auto group = GroupNamed(content.get(), group_);
        for (const auto& [name, text] : set_) {
            g_key_file_set_string(content.get(), group.c_str(),
                                  ValueNamed(content.get(), group, name).c_str(), text.c_str());
        }
        return file_.Write(content.get());
    }

  private:
    const CodePage& codePage_;
    RegistryFile file_;
    GlibPointer<GKeyFile> content_;
    std::string group_;
    std::vector<std::pair<std::string, std::string>> set_;
};

} // namespace

std::unique_ptr<RegistryKey> PosixRegistry::Open(std::string_view path) {
    RegistryFile file;
    auto content = file.Read();
    if (!content) {
        return nullptr;
    }
    auto group = GroupNamed(content.get(), codePage_.ToUtf8(path));
    if (g_key_file_has_group(content.get(), group.c_str()) == 0) {
        return nullptr;
    }
    return std::make_unique<Key>(codePage_, std::move(file), std::move(content), std::move(group));
}

std::unique_ptr<RegistryKey> PosixRegistry::Create(std::string_view path) {
    RegistryFile file;
    const bool ready = file.MakeFolder();
    const auto lock = ready ? file.Lock() : std::nullopt;
    auto content = lock ? file.ReadForChange() : nullptr;
    if (!content) {
        return nullptr;
    }
    return std::make_unique<Key>(codePage_, std::move(file), std::move(content), codePage_.ToUtf8(path));
}

} // namespace zy
