#include "platform/windows/ErrorCode.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "support/TemporaryFolder.h"

namespace zy::test {
namespace {

TEST(ErrorCode, SaysWhatTheUserCanDoAboutIt) {
    EXPECT_EQ(ToFileError(ERROR_SUCCESS), FileError::None);
    EXPECT_EQ(ToFileError(ERROR_FILE_NOT_FOUND), FileError::NotFound);
    EXPECT_EQ(ToFileError(ERROR_PATH_NOT_FOUND), FileError::NotFound);
    EXPECT_EQ(ToFileError(ERROR_INVALID_NAME), FileError::NotFound);
    EXPECT_EQ(ToFileError(ERROR_BAD_NETPATH), FileError::NotFound);
    EXPECT_EQ(ToFileError(ERROR_FILE_EXISTS), FileError::Exists);
    EXPECT_EQ(ToFileError(ERROR_ALREADY_EXISTS), FileError::Exists);
    EXPECT_EQ(ToFileError(ERROR_ACCESS_DENIED), FileError::AccessDenied);
    EXPECT_EQ(ToFileError(ERROR_WRITE_PROTECT), FileError::ReadOnly);
    EXPECT_EQ(ToFileError(ERROR_SHARING_VIOLATION), FileError::InUse);
    EXPECT_EQ(ToFileError(ERROR_LOCK_VIOLATION), FileError::InUse);
    EXPECT_EQ(ToFileError(ERROR_DISK_FULL), FileError::DiskFull);
    EXPECT_EQ(ToFileError(ERROR_HANDLE_DISK_FULL), FileError::DiskFull);
    EXPECT_EQ(ToFileError(1295), FileError::DiskFull) << "the user's quota is reached";
    EXPECT_EQ(ToFileError(ERROR_CANT_RESOLVE_FILENAME), FileError::LinkLoop);
    EXPECT_EQ(ToFileError(ERROR_CRC), FileError::Other);
    EXPECT_EQ(ToFileError(ERROR_INVALID_HANDLE), FileError::Other);
}

TEST(ErrorCode, TellsAFolderFromAFileThatMayNotBeTouched) {
    const TemporaryFolder folder;
    folder.AddFolder("folder");
    folder.Put("a.sys", "");
    const auto path = folder.InsidePath("folder");
    EXPECT_EQ(ToFileError(ERROR_ACCESS_DENIED, path), FileError::IsFolder);
    EXPECT_EQ(ToFileError(ERROR_ALREADY_EXISTS, path), FileError::IsFolder);
    EXPECT_EQ(ToFileError(ERROR_SHARING_VIOLATION, path), FileError::InUse);
    EXPECT_EQ(ToFileError(ERROR_ACCESS_DENIED, folder.InsidePath("a.sys")), FileError::AccessDenied);
    EXPECT_EQ(ToFileError(ERROR_ACCESS_DENIED, folder.InsidePath("missing")), FileError::AccessDenied);
}

} // namespace
} // namespace zy::test
