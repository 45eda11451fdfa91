#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FolderWorlds.h"
#include "WindowsDisk.h"
#include "WindowsRecycledFiles.h"
#include "WindowsRegistryAside.h"
#include "platform/windows/AnsiCodePage.h"
#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsJournals.h"
#include "platform/windows/WindowsRecycleBin.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsSystemInfo.h"
#include "platform/windows/WindowsTraceServers.h"
#include "support/WindowsTraceViewer.h"

namespace zy::test {
namespace {

using ::testing::Optional;

class WindowsBin final : public FolderBin {
  public:
    RecycleBin& Recycler() override { return bin_; }
    std::vector<std::string> Recycled() const override { return recycled_.Bytes(); }

  private:
    WindowsRecycledFiles recycled_;
    WindowsRecycleBin bin_;
};

class WindowsStore final : public Store {
  public:
    Registry& Keys() override { return registry_; }

  private:
    WindowsRegistryAside machine_;
    WindowsRegistry registry_;
};

class WindowsStart final : public Start {
  public:
    SystemInfo& System() override { return system_; }
    FileSystem& Files() override { return files_; }

  private:
    WindowsSystemInfo system_{R"("C:\Program Files\zyGlobal.exe" @RULES)"};
    WindowsFileSystem files_;
};

class WindowsDesktop final : public Desktop {
  public:
    TraceServers& Servers() override { return servers_; }
    void StartViewer() override { viewer_.emplace(); }
    void StopViewer() override { EXPECT_THAT(viewer_->Stop(), Optional(0)); }
    std::optional<std::string> NextRecord() override { return viewer_->NextLine(); }

  private:
    WindowsTraceServers servers_{AnsiCodePage()};
    std::optional<WindowsTraceViewer> viewer_;
};

class WindowsJournalPlace final : public JournalPlace {
  public:
    Journals& Session() override { return journals_; }
    Journals& OtherSession() override { return others_; }

  private:
    TemporaryFolder folder_;
    WindowsJournals journals_{folder_.Path().wstring()};
    WindowsJournals others_{folder_.Path().wstring()};
};

} // namespace

const char* const kOverSystem = "OverWindows";
const char* const kForPasswordsOverSystem = "ForPasswordsOverWindows";

std::unique_ptr<Disk> SystemDisk() {
    return MakeWindowsDisk();
}

std::unique_ptr<Bin> SystemBin() {
    return std::make_unique<WindowsBin>();
}

std::unique_ptr<Store> SystemStore() {
    return std::make_unique<WindowsStore>();
}

std::unique_ptr<Start> SystemStart() {
    return std::make_unique<WindowsStart>();
}

std::unique_ptr<Desktop> SystemDesktop() {
    return std::make_unique<WindowsDesktop>();
}

std::unique_ptr<JournalPlace> SystemJournalPlace() {
    return std::make_unique<WindowsJournalPlace>();
}

} // namespace zy::test
