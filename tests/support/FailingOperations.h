#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "platform/memory/OperationLog.h"

namespace zy::test {

// What tests of saves over a failing disk share.

/// The first operation that was made to fail with the usual error, such as "Create C:\SYS\Rules.tmp"; "none"
/// when none was.
inline std::string FirstFailure(const OperationLog& operations) {
    const auto fault = std::string(": ").append(Describe(FileError::Other));
    for (const auto& line : operations.Lines()) {
        if (line.ends_with(fault)) {
            return line.substr(0, line.size() - fault.size());
        }
    }
    return "none";
}

/// Makes the first, the second, the third ... operation fail, one for each outcome of the table, and in the
/// end none; `how` says in which way they fail. `attempt` does the same thing over each plan, from the same
/// start; `expect` looks at what it left behind, with the outcome whose `failing` names the operation.
///
/// What is left behind without a failure is the caller's to look at.
template <typename Table, typename Attempt, typename Expect>
void FailOneByOne(const OperationLog& operations, FaultPlan how, const Table& table, Attempt attempt,
                  Expect expect) {
    for (const auto& outcome : table) {
        ++how.operation;
        SCOPED_TRACE("operation " + std::to_string(how.operation) + ", " + outcome.failing);
        attempt(how);
        EXPECT_EQ(FirstFailure(operations), outcome.failing);
        expect(outcome);
    }
    ++how.operation;
    attempt(how);
    EXPECT_EQ(operations.Faults(), 0U) << "there are more operations than the table has lines";
}

/// What a file holds after a save on a failing disk.
enum class Held { NoFile, Nothing, Half, Old, Leftover, New, SomethingElse };

inline std::ostream& operator<<(std::ostream& out, Held held) {
    constexpr std::array kNames{"no file",   "nothing",      "half of the new text", "the old text",
                                "leftovers", "the new text", "something else"};
    return out << kNames.at(static_cast<std::size_t>(held));
}

/// The texts that a file can be known by.
struct KnownTexts {
    std::string_view old;
    std::string_view fresh; ///< the one that is saved
    std::optional<std::string_view> leftover = std::nullopt;
};

inline Held HeldIn(const std::optional<std::string>& bytes, const KnownTexts& texts) {
    const std::array<std::pair<std::optional<std::string_view>, Held>, 6> known{
        {{std::nullopt, Held::NoFile},
         {"", Held::Nothing},
         {texts.fresh.substr(0, texts.fresh.size() / 2), Held::Half},
         {texts.old, Held::Old},
         {texts.fresh, Held::New},
         {texts.leftover, Held::Leftover}}};
    for (const auto& [text, held] : known) {
        if (bytes == text) {
            return held;
        }
    }
    return Held::SomethingElse;
}

} // namespace zy::test
