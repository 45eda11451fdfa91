#include "platform/glib/Waiting.h"

#include <glib-unix.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <memory>

namespace zy::test {
namespace {

using namespace std::chrono_literals;

struct Unreference {
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
    void operator()(GSource* source) const {
        g_source_destroy(source);
        g_source_unref(source);
    }
};

/// Counts what it does whenever the context has nothing else to do.
class IdleWork {
  public:
    explicit IdleWork(GMainContext* context) {
        g_source_set_callback(source_.get(), &IdleWork::Do, this, nullptr);
        g_source_attach(source_.get(), context);
    }

    int Times() const { return times_; }

  private:
    static gboolean Do(gpointer work) {
        ++static_cast<IdleWork*>(work)->times_;
        return G_SOURCE_CONTINUE;
    }

    std::unique_ptr<GSource, Unreference> source_{g_idle_source_new()};
    int times_ = 0;
};

/// Reads a pipe when something comes through it.
class Pipe {
  public:
    explicit Pipe(GMainContext* context) {
        EXPECT_EQ(::pipe(ends_.data()), 0);
        source_.reset(g_unix_fd_source_new(ends_[0], G_IO_IN));
        g_source_set_callback(source_.get(), G_SOURCE_FUNC(&Pipe::Read), this, nullptr);
        g_source_attach(source_.get(), context);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        ::close(ends_[0]);
        ::close(ends_[1]);
    }

    void Write() { EXPECT_EQ(::write(ends_[1], "x", 1), 1); }
    bool WasRead() const { return read_; }

  private:
    static gboolean Read(gint end, GIOCondition /*condition*/, gpointer pipe) {
        char byte = 0;
        static_cast<Pipe*>(pipe)->read_ = ::read(end, &byte, 1) == 1;
        return G_SOURCE_CONTINUE;
    }

    std::array<int, 2> ends_{};
    std::unique_ptr<GSource, Unreference> source_;
    bool read_ = false;
};

class WaitOnTest : public ::testing::Test {
  protected:
    bool WaitUntil(const std::function<bool()>& isDone) { return WaitOn(context.get(), 20s, isDone); }

    std::unique_ptr<GMainContext, Unreference> context{g_main_context_new()};
};

TEST_F(WaitOnTest, DoesNothingForWhatIsDone) {
    const IdleWork work(context.get());
    EXPECT_TRUE(WaitUntil([] { return true; }));
    EXPECT_EQ(work.Times(), 0);
}

TEST_F(WaitOnTest, WorksUntilItIsDoneAndNoLonger) {
    const IdleWork work(context.get());
    EXPECT_TRUE(WaitUntil([&] { return work.Times() == 3; }));
    EXPECT_EQ(work.Times(), 3);
}

TEST_F(WaitOnTest, SleepsUntilSomethingComesFromWhateverItWatches) {
    std::array<Pipe, 4> pipes{Pipe(context.get()), Pipe(context.get()), Pipe(context.get()),
                              Pipe(context.get())};
    for (auto& pipe : pipes) {
        pipe.Write();
        EXPECT_TRUE(WaitUntil([&] { return pipe.WasRead(); }));
    }
}

TEST_F(WaitOnTest, GivesUpWhereNothingHappens) {
    EXPECT_FALSE(WaitOn(context.get(), 1ms, [] { return false; }));
}

TEST_F(WaitOnTest, GivesUpWhereOtherThingsHappenAllTheTime) {
    const IdleWork work(context.get());
    EXPECT_FALSE(WaitOn(context.get(), 1ms, [] { return false; }));
}

TEST_F(WaitOnTest, LeavesOtherContextsAlone) {
    const IdleWork work(context.get());
    const IdleWork windowsWork(nullptr);
    EXPECT_TRUE(WaitUntil([&] { return work.Times() == 3; }));
    EXPECT_EQ(windowsWork.Times(), 0);
}

TEST_F(WaitOnTest, OfTheWindowsContextLetsItsEventsHappen) {
    const IdleWork windowsWork(nullptr);
    EXPECT_TRUE(WaitOn(nullptr, 20s, [&] { return windowsWork.Times() == 1; }));
}

} // namespace
} // namespace zy::test
