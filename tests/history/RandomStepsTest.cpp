#include <gtest/gtest.h>

#include <deque>
#include <random>

#include "Recorded.h"

namespace zy::test {
namespace {

/// The list beside a plain copy of it for each step, and somebody who does whatever comes to his mind.
class RandomSteps {
  public:
    explicit RandomSteps(unsigned seed) : random_(seed) {
        list_.rows = {{"a", "A"}, {"b", "B"}};
        saved_ = list_.rows;
    }

    void Do() {
        switch (Below(8)) {
        case 0:
        case 1:
            Undo();
            break;
        case 2:
            Redo();
            break;
        case 3:
            list_.history.MarkSaved();
            saved_ = list_.rows;
            break;
        default:
            Act();
        }
    }
    /// Goes all the way back and all the way forth again.
    void GoThere() {
        while (list_.history.ToUndo() != nullptr) {
            Undo();
        }
        while (list_.history.ToRedo() != nullptr) {
            Redo();
        }
    }

  private:
    int Below(int end) { return std::uniform_int_distribution<>(0, end - 1)(random_); }
    int Row() { return Below(list_.Rows()); }
    std::string Text() {
        return std::string(static_cast<std::size_t>(Below(3)), static_cast<char>('a' + Below(26)));
    }

    void Act() {
        const auto before = list_.rows;
        const Step* const last = list_.history.ToUndo();
        list_.Do("Something", [this] {
            for (int i = Below(4); i >= 0; --i) {
                Change();
            }
        });
        if (list_.history.ToUndo() != last) {
            done_.push_back(before);
            undone_.clear();
        } else {
            ASSERT_EQ(list_.rows, before);
        }
        // Long lists and long ways back would make the test slow.
        if (done_.size() > 50) {
            list_.history.Clear();
            done_.clear();
            undone_.clear();
            saved_ = list_.rows;
        }
    }

    void Change() {
        const int count = list_.Rows();
        switch (Below(count < 12 ? 5 : 4)) {
        case 0:
            if (count > 0) {
                list_.Remove(Row());
            }
            break;
        case 1:
            if (count > 1) {
                list_.Swap(Below(count - 1));
            }
            break;
        case 4:
            list_.Insert(Below(count + 1), Text());
            break;
        default:
            if (count > 0) {
                list_.Set(Row(), Below(2), Text());
            }
        }
    }

    void Undo() {
        ASSERT_EQ(list_.history.ToUndo() == nullptr, done_.empty());
        if (!done_.empty()) {
            undone_.push_back(list_.rows);
            list_.Undo();
            ASSERT_EQ(list_.rows, done_.back());
            done_.pop_back();
            ExpectTrueMark();
        }
    }
    void Redo() {
        ASSERT_EQ(list_.history.ToRedo() == nullptr, undone_.empty());
        if (!undone_.empty()) {
            done_.push_back(list_.rows);
            list_.Redo();
            ASSERT_EQ(list_.rows, undone_.back());
            undone_.pop_back();
            ExpectTrueMark();
        }
    }
    /// What counts as saved is what was saved.
    void ExpectTrueMark() const {
        if (list_.history.IsSaved()) {
            ASSERT_EQ(list_.rows, saved_);
        }
    }

    std::mt19937 random_;
    Recorded list_;
    std::deque<std::vector<Recorded::Row>> done_;
    std::deque<std::vector<Recorded::Row>> undone_;
    std::vector<Recorded::Row> saved_;
};

TEST(RandomSteps, AMillionOfThemLeadBackAndForthToTheSameRows) {
    constexpr int kRuns = 1000;
    constexpr int kSteps = 1000;
    for (unsigned seed = 1; seed <= kRuns; ++seed) {
        RandomSteps steps(seed);
        for (int i = 0; i < kSteps; ++i) {
            steps.Do();
        }
        steps.GoThere();
        ASSERT_FALSE(::testing::Test::HasFailure()) << "seed " << seed;
    }
}

} // namespace
} // namespace zy::test
