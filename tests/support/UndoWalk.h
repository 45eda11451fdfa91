#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "shell/EditSteps.h"

namespace zy::test {

/// Goes back and forth through the steps of an editor and looks whether its file would hold the same bytes at
/// every one of them each time.
class UndoWalk {
  public:
    UndoWalk(EditSteps& steps, std::function<std::string()> bytes)
        : steps_(steps), bytes_(std::move(bytes)), known_{bytes_()} {}

    /// Something was done, in any number of steps.
    void NoteAction() { acted_.push_back(bytes_()); }
    /// Goes all the way back and forth again, then back by so many steps.
    void Walk(std::size_t stepsBack) {
        const bool canRedo = steps_.CanRedo();
        const auto places = GoBackToTheStart();
        ExpectKnown(places);
        for (std::size_t i = 1; i < places.size(); ++i) {
            ASSERT_TRUE(steps_.CanRedo());
            steps_.Redo();
            ASSERT_EQ(bytes_(), places[i]) << "done again, step " << i << " of " << places.size() - 1;
        }
        EXPECT_EQ(steps_.CanRedo(), canRedo) << "which it can where nothing came of all that was done";
        known_ = places;
        acted_.clear();
        GoBack(stepsBack);
    }
    std::size_t StepsWalked() const { return walked_; }

  private:
    /// The bytes at every place, from the start on.
    std::vector<std::string> GoBackToTheStart() {
        std::vector<std::string> places{bytes_()};
        while (steps_.CanUndo()) {
            steps_.Undo();
            places.push_back(bytes_());
        }
        std::reverse(places.begin(), places.end());
        walked_ += 2 * (places.size() - 1);
        return places;
    }
    /// The places that were known before are as they were, and those where something was done come behind
    /// them, in that order.
    void ExpectKnown(const std::vector<std::string>& places) const {
        ASSERT_GE(places.size(), known_.size());
        for (std::size_t i = 0; i < known_.size(); ++i) {
            ASSERT_EQ(places[i], known_[i]) << "taken back, place " << i;
        }
        auto place = places.begin() + static_cast<std::ptrdiff_t>(known_.size()) - 1;
        for (const auto& acted : acted_) {
            place = std::find(place, places.end(), acted);
            ASSERT_NE(place, places.end()) << "never passed: " << acted;
        }
    }
    void GoBack(std::size_t count) {
        for (; count > 0 && steps_.CanUndo(); --count) {
            steps_.Undo();
            known_.pop_back();
        }
    }

    EditSteps& steps_;
    std::function<std::string()> bytes_;
    std::vector<std::string> known_; ///< at every place up to the one after the last walk
    std::vector<std::string> acted_; ///< after everything that was done since
    std::size_t walked_ = 0;
};

/// Somebody who does whatever comes to his mind in an editor.
class RandomUser {
  public:
    virtual ~RandomUser() = default;

    /// Begins with a short list, without steps.
    virtual void StartOver() = 0;
    virtual void Act() = 0;
    virtual EditSteps& Steps() = 0;
    /// What the editor's file would hold.
    virtual std::string Bytes() = 0;

    int Below(int end) { return std::uniform_int_distribution<>(0, end - 1)(random_); }
    std::string Letters() { return {static_cast<char>('a' + Below(26)), static_cast<char>('a' + Below(26))}; }

  private:
    std::mt19937 random_{22};
};

/// How many steps such a user goes in a test: as many as storm/undo wants, else so many as take little time.
inline std::size_t StepsToWalk() {
    constexpr std::size_t kInLittleTime = 20'000;
    const char* wanted = std::getenv("ZY_UNDO_STEPS");
    return wanted == nullptr ? kInLittleTime : std::stoul(wanted);
}

/// Walks back and forth among what a user has done, in one session after the other.
inline void WalkAtRandom(RandomUser& user) {
    std::size_t walked = 0;
    for (int session = 1; walked < StepsToWalk(); ++session) {
        user.StartOver();
        UndoWalk walk(user.Steps(), [&user] { return user.Bytes(); });
        for (int round = 1; round <= 40; ++round) {
            for (int i = 0; i < 20; ++i) {
                user.Act();
                walk.NoteAction();
            }
            walk.Walk(static_cast<std::size_t>(user.Below(25)));
            ASSERT_FALSE(::testing::Test::HasFailure()) << "session " << session << ", round " << round;
        }
        walked += walk.StepsWalked();
    }
    ::testing::Test::RecordProperty("steps", std::to_string(walked));
    std::cout << walked << " steps" << std::endl;
}

} // namespace zy::test
