#include "platform/posix/PosixShellLinks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>

#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

namespace fs = std::filesystem;

using ::testing::Optional;

constexpr auto kMail = "mailto:support@norvale.example?Subject=ZY Setup&Body=";

/// A desktop that knows no programs but those that a test installs. GLib asks for its places once in a
/// process and remembers them, so each case tries in a process of its own.
class PosixShellLinksTest : public ::testing::Test {
  protected:
    /// A program that writes its argument to a file of its own name.
    void InstallProgram(const std::string& name) const {
        folder.Put(name, "#!/bin/sh\nprintf '%s' \"$1\" > '" + folder.Path(name + ".got") + ".new'\nmv '" +
                             folder.Path(name + ".got") + ".new' '" + folder.Path(name + ".got") + "'\n");
        fs::permissions(folder.Path(name), fs::perms::owner_all);
    }
    void SetDefault(const std::string& scheme) const {
        InstallProgram("viewer");
        fs::create_directories(folder.Path("data/applications"));
        folder.Put("data/applications/viewer.desktop",
                   "[Desktop Entry]\nType=Application\nName=Viewer\nExec=" + folder.Path("viewer") +
                       " %u\nMimeType=x-scheme-handler/" + scheme + ";\n");
        folder.Put("data/applications/mimeapps.list",
                   "[Default Applications]\nx-scheme-handler/" + scheme + "=viewer.desktop\n");
    }
    /// Opens a link in a process of its own; what Open returned.
    bool Open(const std::string& target) const {
        const pid_t child = ::fork();
        if (child == 0) {
            PosixShellLinks links(Windows1252());
            ::_exit(links.Open({.owner = LinkOwner::None, .verb = "OPEN", .target = target, .showCommand = 0})
                        ? 0
                        : 1);
        }
        int status = -1;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    /// What a program was started with; nothing when it was not started in time.
    std::optional<std::string> Got(const std::string& name) const {
        for (int i = 0; i < 3000 && !fs::exists(folder.Path(name + ".got")); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return folder.Get(name + ".got");
    }

    TemporaryFolder folder;
    EnvironmentVariable data{"XDG_DATA_HOME", folder.Path("data")};
    EnvironmentVariable dirs{"XDG_DATA_DIRS", folder.Path("none")};
    EnvironmentVariable config{"XDG_CONFIG_HOME", folder.Path("config")};
    EnvironmentVariable configDirs{"XDG_CONFIG_DIRS", folder.Path("none")};
    EnvironmentVariable path{"PATH", folder.Path().string() + ":/usr/bin:/bin"};
    EnvironmentVariable bus{"DBUS_SESSION_BUS_ADDRESS", "disabled:"};
};

TEST_F(PosixShellLinksTest, OpensAWebPageInTheUsersBrowser) {
    SetDefault("http");
    EXPECT_TRUE(Open("http://www.norvale.example/software.htm"));
    EXPECT_THAT(Got("viewer"), Optional(std::string("http://www.norvale.example/software.htm")));
}

TEST_F(PosixShellLinksTest, HandsAMailLinkOnAsItIs) {
    SetDefault("mailto");
    EXPECT_TRUE(Open(kMail));
    EXPECT_THAT(Got("viewer"), Optional(std::string(kMail)));
}

TEST_F(PosixShellLinksTest, AsksTheCommandForItWhereTheDesktopHasNoProgramSet) {
    InstallProgram("xdg-open");
    EXPECT_TRUE(Open(kMail));
    EXPECT_THAT(Got("xdg-open"), Optional(std::string(kMail)));
}

TEST_F(PosixShellLinksTest, SaysThatNothingOpensWithoutAnyProgram) {
    const EnvironmentVariable nowhere("PATH", folder.Path("none"));
    EXPECT_FALSE(Open("http://www.norvale.example/"));
}

} // namespace
} // namespace zy::test
