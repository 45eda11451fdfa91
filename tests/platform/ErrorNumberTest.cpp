#include "platform/posix/ErrorNumber.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <utility>

namespace zy::test {
namespace {

TEST(ToFileErrorTest, SaysWhatEachErrorNumberMeansToTheUser) {
    constexpr std::pair<int, FileError> kMeanings[] = {
        {0, FileError::None},          {ENOENT, FileError::NotFound},     {ENOTDIR, FileError::NotFound},
        {EEXIST, FileError::Exists},   {EACCES, FileError::AccessDenied}, {EPERM, FileError::AccessDenied},
        {EROFS, FileError::ReadOnly},  {EBUSY, FileError::InUse},         {ETXTBSY, FileError::InUse},
        {ENOSPC, FileError::DiskFull}, {EDQUOT, FileError::DiskFull},     {EFBIG, FileError::DiskFull},
        {EISDIR, FileError::IsFolder}, {EIO, FileError::Other},           {ENAMETOOLONG, FileError::Other},
        {ELOOP, FileError::LinkLoop}};
    for (const auto& [number, error] : kMeanings) {
        EXPECT_EQ(ToFileError(number), error) << number;
    }
}

} // namespace
} // namespace zy::test
