#include "platform/windows/WindowsTraceServers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it leans on.
#include <objbase.h>

#include <optional>
#include <stdexcept>
#include <string>

#include "platform/windows/AnsiCodePage.h"
#include "support/TemporaryFolder.h"
#include "support/WindowsTraceViewer.h"

namespace zy::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;
using ::testing::ThrowsMessage;
using namespace std::string_literals;

constexpr const char* kName = "ZYDebug.Application";
constexpr const wchar_t* kProgramId = L"ZYDebug.Application";

/// A server that is registered and does not run; were it started, it would leave a file.
class SleepingServer {
  public:
    SleepingServer() {
        Set("Sleeping.Application\\CLSID", kClassId);
        Set("CLSID\\"s + kClassId + "\\LocalServer32",
            "cmd.exe /c echo started> \"" + folder_.InsidePath("started") + '"');
    }
    SleepingServer(const SleepingServer&) = delete;
    SleepingServer& operator=(const SleepingServer&) = delete;
    ~SleepingServer() {
        ::RegDeleteTreeA(HKEY_CLASSES_ROOT, "Sleeping.Application");
        ::RegDeleteTreeA(HKEY_CLASSES_ROOT, ("CLSID\\"s + kClassId).c_str());
    }

    bool Started() const { return folder_.Get("started").has_value(); }

  private:
    static constexpr const char* kClassId = "{0F4B2C11-6A57-4B0E-8E55-3C7C1E6E9A42}";

    static void Set(const std::string& key, const std::string& text) {
        ::RegSetKeyValueA(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, text.c_str(),
                          static_cast<DWORD>(text.size() + 1));
    }

    TemporaryFolder folder_;
};

TEST(WindowsTraceServersTest, StartNoViewer) {
    const SleepingServer server;
    EXPECT_FALSE(WindowsTraceServers(AnsiCodePage()).GetRunning("Sleeping.Application"));
    EXPECT_FALSE(server.Started());
}

TEST(WindowsTraceServersTest, HandOverANulInAText) {
    WindowsTraceViewer viewer;
    WindowsTraceServers servers(AnsiCodePage());
    EXPECT_TRUE(servers.GetRunning(kName)->Send("e", "m", "p", "a\0b"s));
    EXPECT_THAT(viewer.NextLine(), Optional("e\tm\tp\ta<U+0000>b"s));
}

TEST(WindowsTraceServersTest, WorkWhereThisThreadUsesComAlready) {
    WindowsTraceViewer viewer;
    for (const auto kind : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
        ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, static_cast<DWORD>(kind))));
        {
            WindowsTraceServers servers(AnsiCodePage());
            EXPECT_TRUE(servers.GetRunning(kName)->Send("e", "m", "p", "x"));
        }
        APTTYPE type{};
        APTTYPEQUALIFIER qualifier{};
        EXPECT_EQ(::CoGetApartmentType(&type, &qualifier), S_OK) << "this thread still uses COM";
        ::CoUninitialize();
    }
}

TEST(WindowsTraceServersTest, LeaveTheThreadAsItWas) {
    { const WindowsTraceServers servers(AnsiCodePage()); }
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    EXPECT_EQ(::CoGetApartmentType(&type, &qualifier), CO_E_NOTINITIALIZED);
}

TEST(Zydebug, SaysThatAnotherViewerRuns) {
    const WindowsTraceViewer viewer;
    EXPECT_THAT([] { const WindowsTraceViewer second; },
                ThrowsMessage<std::runtime_error>(HasSubstr("another trace viewer is running")));
}

TEST(Zydebug, LeavesNoNameBehind) {
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, kProgramId); // that of one that crashed
    CLSID classId{};
    { const WindowsTraceViewer viewer; }
    EXPECT_TRUE(FAILED(::CLSIDFromProgID(kProgramId, &classId)));
}

} // namespace
} // namespace zy::test
