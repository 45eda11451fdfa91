#include "basics/RuntimeError.h"

#include <gtest/gtest.h>

namespace zy {
namespace {

template <typename Action>
RuntimeError Caught(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error;
    }
    return {0, "nothing was raised"};
}

TEST(RuntimeError, BoxTextHoldsNumberEmptyLineAndDescription) {
    EXPECT_EQ(RuntimeError(6, "Overflow").BoxText(), "Run-time error '6':\n\nOverflow");
}

TEST(RuntimeError, EachKindHasItsNumberAndDescription) {
    EXPECT_EQ(Caught(RaiseOverflow).BoxText(), "Run-time error '6':\n\nOverflow");
    EXPECT_EQ(Caught(RaiseSubscriptOutOfRange).BoxText(), "Run-time error '9':\n\nSubscript out of range");
    EXPECT_EQ(Caught(RaiseTypeMismatch).BoxText(), "Run-time error '13':\n\nType mismatch");
}

TEST(RuntimeError, TellsItsDescriptionToWhoeverCatchesAnException) {
    EXPECT_STREQ(Caught(RaiseOverflow).what(), "Overflow");
}

} // namespace
} // namespace zy
