#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
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
        const auto places = GoBackToTheStart();
        ExpectKnown(places);
        for (std::size_t i = 1; i < places.size(); ++i) {
            ASSERT_TRUE(steps_.CanRedo());
            steps_.Redo();
            ASSERT_EQ(bytes_(), places[i]) << "done again, step " << i << " of " << places.size() - 1;
        }
        EXPECT_FALSE(steps_.CanRedo());
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

} // namespace zy::test
