#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "FolderWorlds.h"
#include "RecyclePlaces.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixJournals.h"
#include "platform/posix/PosixRecycleBin.h"
#include "platform/posix/PosixRegistry.h"
#include "platform/posix/PosixTraceServers.h"
#include "platform/posix/PosixWorld.h"
#include "support/AnotherDisk.h"
#include "support/EnvironmentVariable.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/PrivateBus.h"
#include "support/TemporaryFolder.h"
#include "support/TraceViewerProcess.h"

namespace zy::test {
namespace {

using ::testing::Optional;

class PosixDisk final : public FolderDisk {
  public:
    FileSystem& Files() override { return files_; }
    void SetPermissions(std::string_view name, unsigned permissions) override {
        ::chmod(RealFolder().Path(NameToOutside(name)).c_str(), static_cast<mode_t>(permissions));
    }
    std::optional<unsigned> Permissions(std::string_view name) const override {
        struct stat status {};
        const bool found = ::stat(RealFolder().Path(NameToOutside(name)).c_str(), &status) == 0;
        return found ? std::optional<unsigned>(status.st_mode & 07777U) : std::nullopt;
    }
    bool Hide(std::string_view /*name*/) override { return false; }
    bool ForbidReading(std::string_view name) override {
        SetPermissions(name, 0200);
        user_.emplace(RealFolder().Path());
        return true;
    }
    bool ForbidChanges() override {
        ::chmod(RealFolder().Path().c_str(), 0555);
        user_.emplace(RealFolder().Path());
        return true;
    }
    bool HideNames() override {
        ::chmod(RealFolder().Path().c_str(), 0311);
        user_.emplace(RealFolder().Path());
        return true;
    }
    bool PutTwins(std::string_view name) override {
        Put(name, "");
        Put(Windows1252().UCase(name), "");
        return true;
    }
    bool LimitTo(unsigned bytes) override {
        limit_.emplace(bytes);
        return true;
    }

  private:
    PosixFileSystem files_{Windows1252()};
    std::optional<OrdinaryUser> user_;
    std::optional<FileSizeLimit> limit_;
};

class PosixBin final : public FolderBin {
  public:
    PosixBin() : FolderBin(EmptyHome()) {}

    RecycleBin& Recycler() override { return bin_; }
    std::vector<std::string> Recycled() const override { return RecyclePlaces::BytesInDesktopTrash(); }

  private:
    /// Emptied before the folder in it is made.
    static const std::filesystem::path& EmptyHome() {
        const RecyclePlaces places;
        return RecyclePlaces::Home();
    }

    PosixRecycleBin bin_{Windows1252()};
};

class PosixStore final : public Store {
  public:
    Registry& Keys() override { return registry_; }

  private:
    TemporaryFolder folder_;
    EnvironmentVariable config_{"XDG_CONFIG_HOME", folder_.Path("config")};
    PosixRegistry registry_{Windows1252()};
};

class PosixStart final : public Start {
  public:
    SystemInfo& System() override { return world_.system; }
    FileSystem& Files() override { return world_.files; }

  private:
    static constexpr const char* kArguments[] = {"/usr/bin/zyGlobal", "@RULES"};

    TemporaryFolder folder_;
    EnvironmentVariable directory_{"ZYSETUP_SYSTEM_DIR", folder_.Path().string()};
    EnvironmentVariable state_{"XDG_STATE_HOME", folder_.Path("state")};
    EnvironmentVariable locale_{"LC_ALL", "C"};
    PosixWorld world_{2, kArguments};
};

class PosixDesktop final : public Desktop {
  public:
    PosixDesktop() { bus_.Start(); }

    TraceServers& Servers() override { return servers_; }
    void StartViewer() override { viewer_.emplace(); }
    void StopViewer() override { EXPECT_THAT(viewer_->Stop(), Optional(0)); }
    std::optional<std::string> NextRecord() override { return viewer_->NextLine(); }

  private:
    PrivateBus bus_;
    std::optional<TraceViewerProcess> viewer_;
    PosixTraceServers servers_{Windows1252()};
};

class PosixJournalPlace final : public JournalPlace {
  public:
    Journals& Session() override { return journals_; }
    Journals& OtherSession() override { return others_; }

  private:
    TemporaryFolder disk_;
    TemporaryFolder memory_{kAnotherDisk};
    EnvironmentVariable state_{"XDG_STATE_HOME", disk_.Path().string()};
    EnvironmentVariable runtime_{"XDG_RUNTIME_DIR", memory_.Path().string()};
    PosixJournals journals_;
    PosixJournals others_;
};

} // namespace

const char* const kOverSystem = "OverPosix";
const char* const kForPasswordsOverSystem = "ForPasswordsOverPosix";

std::unique_ptr<Disk> SystemDisk() {
    return std::make_unique<PosixDisk>();
}

std::unique_ptr<Bin> SystemBin() {
    return std::make_unique<PosixBin>();
}

std::unique_ptr<Store> SystemStore() {
    return std::make_unique<PosixStore>();
}

std::unique_ptr<Start> SystemStart() {
    return std::make_unique<PosixStart>();
}

std::unique_ptr<Desktop> SystemDesktop() {
    return std::make_unique<PosixDesktop>();
}

std::unique_ptr<JournalPlace> SystemJournalPlace() {
    return std::make_unique<PosixJournalPlace>();
}

} // namespace zy::test
