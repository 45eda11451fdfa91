#include "platform/windows/WindowsShellLinks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <string>
#include <thread>

#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

using ::testing::Optional;

/// A kind of link that no program of the system knows. While this lives, a program that the shell starts for
/// it writes the link to a file.
class LinkProgram {
  public:
    explicit LinkProgram(const std::string& verb) {
        Set(kScheme, nullptr, "URL:zyGlobal tests");
        Set(kScheme, "URL Protocol", "");
        Set(std::string(kScheme) + "\\shell\\" + verb + "\\command", nullptr,
            R"(cmd.exe /c echo "%1"> ")" + folder_.InsidePath("got.txt") + '"');
    }
    LinkProgram(const LinkProgram&) = delete;
    LinkProgram& operator=(const LinkProgram&) = delete;
    ~LinkProgram() { ::RegDeleteTreeA(HKEY_CLASSES_ROOT, kScheme); }

    /// The line that the program has written; nothing when it was not started in time.
    std::optional<std::string> Got() const {
        auto line = folder_.Get("got.txt");
        for (int i = 0; i < 3000 && !(line && line->ends_with("\r\n")); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            line = folder_.Get("got.txt");
        }
        return line;
    }

  private:
    static constexpr const char* kScheme = "zytest";

    static void Set(const std::string& key, const char* name, const std::string& text) {
        ::RegSetKeyValueA(HKEY_CLASSES_ROOT, key.c_str(), name, REG_SZ, text.c_str(),
                          static_cast<DWORD>(text.size() + 1));
    }

    TemporaryFolder folder_;
};

TEST(WindowsShellLinksTest, HandsALinkOnAsItIs) {
    const LinkProgram program("open");
    WindowsShellLinks links;
    EXPECT_TRUE(links.Open({.owner = LinkOwner::DesktopWindow,
                            .verb = "Open",
                            .target = "zytest:support@norvale.example?Subject=ZY Setup&Body=",
                            .showCommand = SW_SHOWNORMAL}));
    EXPECT_THAT(program.Got(),
                Optional(std::string("\"zytest:support@norvale.example?Subject=ZY Setup&Body=\"\r\n")));
}

TEST(WindowsShellLinksTest, AsksForTheVerbGiven) {
    const LinkProgram program("open");
    WindowsShellLinks links;
    const auto opens = [&links](const char* verb) {
        return links.Open(
            {.owner = LinkOwner::None, .verb = verb, .target = "zytest:x", .showCommand = SW_HIDE});
    };
    EXPECT_FALSE(opens("print"));
    EXPECT_TRUE(opens("OPEN"));
    EXPECT_THAT(program.Got(), Optional(std::string("\"zytest:x\"\r\n")));
}

TEST(WindowsShellLinksTest, SaysThatNothingOpensWithoutAProgram) {
    WindowsShellLinks links;
    EXPECT_FALSE(
        links.Open({.owner = LinkOwner::None, .verb = "OPEN", .target = "zytest:x", .showCommand = SW_HIDE}));
}

} // namespace
} // namespace zy::test
