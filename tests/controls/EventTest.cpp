#include "controls/Event.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace zy::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EventTest : public ::testing::Test {
  protected:
    Event<int>::Handler Note(const std::string& who) {
        return [this, who](int value) { notes.push_back(who + std::to_string(value)); };
    }

    Event<int> event;
    std::vector<std::string> notes;
};

TEST_F(EventTest, CallsItsHandlersInTheOrderOfConnecting) {
    event.Connect(Note("a"));
    const auto subscription = event.Observe(Note("b"));
    event.Connect(Note("c"));
    event.Raise(1);
    EXPECT_THAT(notes, ElementsAre("a1", "b1", "c1"));
}

TEST_F(EventTest, StopsCallingAnObserverWhoseSubscriptionEnded) {
    {
        const auto subscription = event.Observe(Note("a"));
        event.Raise(1);
    }
    event.Raise(2);
    EXPECT_THAT(notes, ElementsAre("a1"));
}

TEST_F(EventTest, KeepsASubscriptionThatWasMoved) {
    Subscription kept;
    {
        auto subscription = event.Observe(Note("a"));
        kept = std::move(subscription);
    }
    event.Raise(1);
    kept.Cancel();
    event.Raise(2);
    EXPECT_THAT(notes, ElementsAre("a1"));
}

TEST_F(EventTest, DoesNotCallAnObserverThatAnEarlierHandlerCancelled) {
    Subscription later;
    event.Connect([&](int) { later.Cancel(); });
    later = event.Observe(Note("later"));
    event.Raise(1);
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(EventTest, CallsAHandlerConnectedDuringRaisingFromTheNextTimeOn) {
    bool connected = false;
    event.Connect([&](int) {
        if (!connected) {
            connected = true;
            event.Connect(Note("new"));
        }
    });
    event.Raise(1);
    EXPECT_THAT(notes, IsEmpty());
    event.Raise(2);
    EXPECT_THAT(notes, ElementsAre("new2"));
}

TEST_F(EventTest, LetsASubscriptionOutliveIt) {
    Subscription subscription;
    {
        auto shortLived = std::make_unique<Event<int>>();
        subscription = shortLived->Observe(Note("a"));
        shortLived->Raise(1);
    }
    subscription.Cancel();
    EXPECT_THAT(notes, ElementsAre("a1"));
}

} // namespace
} // namespace zy::test
