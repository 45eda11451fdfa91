#include "Disk.h"

#include "ContractWorlds.h"
#include "platform/memory/MemoryFileSystem.h"

namespace zy::test {
namespace {

class MemoryDisk final : public Disk {
  public:
    MemoryDisk() { files_.AddFolder(Folder()); }

    FileSystem& Files() override { return files_; }
    std::string Folder() const override { return R"(C:\Data)"; }
    void AddFolder(std::string_view name) override { files_.AddFolder(Path(name)); }
    void Put(std::string_view name, std::string_view bytes) override { files_.Put(Path(name), bytes); }
    std::optional<std::string> Get(std::string_view name) const override { return files_.Get(Path(name)); }
    std::vector<std::string> Names() const override { return files_.Names(Folder()); }
    void SetPermissions(std::string_view name, unsigned permissions) override {
        files_.SetPermissions(Path(name), permissions);
    }
    std::optional<unsigned> Permissions(std::string_view name) const override {
        return files_.Permissions(Path(name));
    }
    bool Hide(std::string_view name) override {
        files_.SetHidden(Path(name));
        return true;
    }
    bool ForbidReading(std::string_view name) override {
        files_.SetUnreadable(Path(name));
        return true;
    }
    bool ForbidChanges() override {
        files_.SetFolderReadOnly(Folder());
        return true;
    }
    void HoldFolder(bool held) override { files_.SetFolderLocked(Folder(), held); }
    bool HideNames() override {
        files_.SetUncertain(Folder(), FileError::AccessDenied);
        return true;
    }
    bool PutTwins(std::string_view name) override {
        files_.SetUncertain(Path(name), FileError::Ambiguous);
        return true;
    }
    bool LimitTo(unsigned bytes) override {
        files_.SetCapacity(bytes);
        return true;
    }

  private:
    MemoryFileSystem files_{Windows1252()};
};

} // namespace

std::vector<DiskKind> DiskKinds() {
    return {{.name = "OverMemory", .make = [] { return std::make_unique<MemoryDisk>(); }},
            {.name = kOverSystem, .make = SystemDisk}};
}

} // namespace zy::test
