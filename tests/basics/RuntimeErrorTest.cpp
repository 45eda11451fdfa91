#include "basics/RuntimeError.h"
#include "support/RaisedError.h"

#include <gtest/gtest.h>

namespace zy::test {
namespace {

TEST(RuntimeError, BoxTextHoldsNumberEmptyLineAndDescription) {
    EXPECT_EQ(RuntimeError(6, "Overflow").BoxText(), "Run-time error '6':\n\nOverflow");
}

TEST(RuntimeError, EachKindHasItsNumberAndDescription) {
    EXPECT_EQ(RaisedBy(RaiseOverflow).BoxText(), "Run-time error '6':\n\nOverflow");
    EXPECT_EQ(RaisedBy(RaiseOutOfMemory).BoxText(), "Run-time error '7':\n\nOut of memory");
    EXPECT_EQ(RaisedBy(RaiseSubscriptOutOfRange).BoxText(), "Run-time error '9':\n\nSubscript out of range");
    EXPECT_EQ(RaisedBy(RaiseTypeMismatch).BoxText(), "Run-time error '13':\n\nType mismatch");
    EXPECT_EQ(RaisedBy(RaiseInvalidArgument).BoxText(),
              "Run-time error '5':\n\nInvalid procedure call or argument");
    EXPECT_EQ(RaisedBy([] { RaiseDeviceFailed("a.sys"); }).BoxText(),
              "Run-time error '57':\n\nDevice I/O error: a.sys");
    EXPECT_EQ(RaisedBy([] { RaisePathRefused("a.sys"); }).BoxText(),
              "Run-time error '75':\n\nPath/File access error: a.sys");
}

TEST(RuntimeError, TellsItsDescriptionToWhoeverCatchesAnException) {
    EXPECT_STREQ(RaisedBy(RaiseOverflow).what(), "Overflow");
}

} // namespace
} // namespace zy::test
