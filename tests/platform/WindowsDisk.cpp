#include "WindowsDisk.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "FolderWorlds.h"
#include "WindowsPermissions.h"
#include "platform/windows/WindowsFileSystem.h"
#include "support/WindowsHandles.h"

namespace zy::test {
namespace {

/// The letters of a figure of permissions, as in 6 for reading and writing.
std::string Rights(unsigned figure) {
    return std::string((figure & 4U) != 0 ? "FR" : "") + ((figure & 2U) != 0 ? "FW" : "");
}

bool CanOpen(const std::string& path, DWORD access, DWORD disposition, DWORD flags) {
    return static_cast<bool>(WindowsHandle(
        ::CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      disposition, flags, nullptr)));
}

class WindowsDisk final : public FolderDisk {
  public:
    WindowsDisk() = default;
    WindowsDisk(const WindowsDisk&) = delete;
    WindowsDisk& operator=(const WindowsDisk&) = delete;
    /// The folder could otherwise not be removed.
    ~WindowsDisk() override {
        SetAccess(Folder(), "FA", "");
        for (const auto& name : Names()) {
            SetAccess(Path(name), "FA", "");
        }
    }

    FileSystem& Files() override { return files_; }
    void SetPermissions(std::string_view name, unsigned permissions) override {
        EXPECT_TRUE(SetAccess(Path(name), "SD" + Rights(permissions / 0100U), Rights(permissions % 010U)));
    }
    std::optional<unsigned> Permissions(std::string_view name) const override {
        return AccessFigures(Path(name));
    }
    bool Hide(std::string_view name) override {
        return ::SetFileAttributesA(Path(name).c_str(), FILE_ATTRIBUTE_HIDDEN) != FALSE;
    }
    bool ForbidReading(std::string_view name) override {
        SetPermissions(name, 0200);
        return !CanOpen(Path(name), GENERIC_READ, OPEN_EXISTING, 0);
    }
    bool ForbidChanges() override {
        // The right to delete a file is the file's own, or its folder's.
        for (const auto& name : Names()) {
            EXPECT_TRUE(SetAccess(Path(name), Rights(6), ""));
        }
        EXPECT_TRUE(SetAccess(Folder(), "FRFX", ""));
        return !CanOpen(Path("probe"), GENERIC_WRITE | DELETE, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE);
    }
    bool HideNames() override {
        EXPECT_TRUE(SetAccess(Folder(), "FWFX", ""));
        WIN32_FIND_DATAA found{};
        const HANDLE search = ::FindFirstFileA(Path("*").c_str(), &found);
        const bool isSeen = search != INVALID_HANDLE_VALUE;
        if (isSeen) {
            ::FindClose(search);
        }
        return !isSeen;
    }
    bool PutTwins(std::string_view /*name*/) override { return false; }
    bool LimitTo(unsigned /*bytes*/) override { return false; }

  private:
    WindowsFileSystem files_;
};

} // namespace

std::unique_ptr<Disk> MakeWindowsDisk() {
    return std::make_unique<WindowsDisk>();
}

} // namespace zy::test
