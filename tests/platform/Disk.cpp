#include "Disk.h"

#include <sys/stat.h>

#include "platform/memory/MemoryFileSystem.h"
#include "platform/posix/PathText.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

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
    void ForbidReading(std::string_view name) override { files_.SetUnreadable(Path(name)); }
    void ForbidChanges() override { files_.SetFolderReadOnly(Folder()); }
    void LimitTo(unsigned bytes) override { files_.SetCapacity(bytes); }

  private:
    MemoryFileSystem files_{Windows1252()};
};

class PosixDisk final : public Disk {
  public:
    FileSystem& Files() override { return files_; }
    std::string Folder() const override { return folder_.InsidePath(); }
    void AddFolder(std::string_view name) override { folder_.AddFolder(Real(name)); }
    void Put(std::string_view name, std::string_view bytes) override { folder_.Put(Real(name), bytes); }
    std::optional<std::string> Get(std::string_view name) const override { return folder_.Get(Real(name)); }
    std::vector<std::string> Names() const override {
        std::vector<std::string> names;
        for (const auto& name : folder_.Names()) {
            names.push_back(text_.NameToInside(name));
        }
        return names;
    }
    void SetPermissions(std::string_view name, unsigned permissions) override {
        ::chmod(folder_.Path(Real(name)).c_str(), static_cast<mode_t>(permissions));
    }
    std::optional<unsigned> Permissions(std::string_view name) const override {
        struct stat status {};
        const bool found = ::stat(folder_.Path(Real(name)).c_str(), &status) == 0;
        return found ? std::optional<unsigned>(status.st_mode & 07777U) : std::nullopt;
    }
    void ForbidReading(std::string_view name) override {
        SetPermissions(name, 0200);
        user_.emplace(folder_.Path());
    }
    void ForbidChanges() override {
        ::chmod(folder_.Path().c_str(), 0555);
        user_.emplace(folder_.Path());
    }
    void LimitTo(unsigned bytes) override { limit_.emplace(bytes); }

  private:
    std::string Real(std::string_view name) const { return text_.NameToOutside(name).value(); }

    PathText text_{Windows1252()};
    TemporaryFolder folder_;
    PosixFileSystem files_{Windows1252()};
    std::optional<OrdinaryUser> user_;
    std::optional<FileSizeLimit> limit_;
};

} // namespace

std::vector<DiskKind> DiskKinds() {
    return {{.name = "OverMemory", .make = [] { return std::make_unique<MemoryDisk>(); }},
            {.name = "OverPosix", .make = [] { return std::make_unique<PosixDisk>(); }}};
}

} // namespace zy::test
