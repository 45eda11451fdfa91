#include <gtest/gtest.h>

#include "support/NeedsDisplay.h"

namespace zy::test {
namespace {

/// The toolkit cannot start twice in a process: what its renderer keeps of the first start, in variables of
/// its own that nobody can reset, is freed with the first window, and the next one that draws the head of a
/// grid crashes with it.
class OneCaseAProcess : public ::testing::Environment {
  public:
    void SetUp() override {
        if (::testing::UnitTest::GetInstance()->test_to_run_count() > 1) {
            FAIL() << "Each case of desktop_tests needs a process of its own, for the window toolkit starts "
                      "once in a process. Run them by ctest, or one by --gtest_filter=Suite.Case.";
        }
    }
};

const auto* const kNeedsDisplay = ::testing::AddGlobalTestEnvironment(new NeedsDisplay);
const auto* const kOneCaseAProcess = ::testing::AddGlobalTestEnvironment(new OneCaseAProcess);

} // namespace
} // namespace zy::test
