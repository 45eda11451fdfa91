#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ContractWorlds.h"
#include "support/TemporaryFolder.h"
#include "support/ThisSystem.h"

namespace zy::test {

// What the worlds of the contract tests share on every system: a real folder.

class FolderDisk : public Disk {
  public:
    std::string Folder() const override { return folder_.InsidePath(); }
    void AddFolder(std::string_view name) override { folder_.AddFolder(NameToOutside(name)); }
    void Put(std::string_view name, std::string_view bytes) override {
        folder_.Put(NameToOutside(name), bytes);
    }
    std::optional<std::string> Get(std::string_view name) const override {
        return folder_.Get(NameToOutside(name));
    }
    std::vector<std::string> Names() const override {
        std::vector<std::string> names;
        for (const auto& name : folder_.Names()) {
            names.push_back(NameToInside(name));
        }
        return names;
    }
    void HoldFolder(bool held) override {
        held_ = held ? SystemFiles()->LockFolderOf(Path("another's")).lock : nullptr;
    }

  protected:
    const TemporaryFolder& RealFolder() const { return folder_; }

  private:
    TemporaryFolder folder_;
    std::unique_ptr<FolderLock> held_;
};

class FolderBin : public Bin {
  public:
    FolderBin() = default;
    explicit FolderBin(const std::filesystem::path& below) : folder_(below) {}

    std::string Path(std::string_view name) const override { return folder_.InsidePath(name); }
    void Put(std::string_view name, std::string_view bytes) override { folder_.Put(name, bytes); }
    void AddFolder(std::string_view name) override { folder_.AddFolder(name); }
    std::vector<std::string> Names() const override { return folder_.Names(); }

  private:
    TemporaryFolder folder_;
};

} // namespace zy::test
