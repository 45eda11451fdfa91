#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zy {

/// Keeps a handler connected to an event for as long as it lives. It may outlive the event.
class [[nodiscard]] Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<bool> alive) : alive_(std::move(alive)) {}
    ~Subscription() { Cancel(); }
    Subscription(Subscription&& other) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept {
        std::swap(alive_, other.alive_);
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    /// Disconnects the handler before the subscription's life ends. Nothing when it has none.
    void Cancel() {
        if (alive_) {
            *alive_ = false;
            alive_.reset();
        }
    }

  private:
    std::shared_ptr<bool> alive_;
};

/// Something that happens to a control, and the handlers that are called then, in the order of connecting.
///
/// A handler may connect or cancel handlers while the event is raised; a cancelled one is not called any
/// more.
template <typename... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;

    /// Connects for the event's whole life: for the form that owns the control.
    void Connect(Handler handler) { Add(std::move(handler)); }

    /// Connects until the subscription ends: for a view, which comes and goes.
    Subscription Observe(Handler handler) { return Subscription(Add(std::move(handler))); }

    /// Calls the handlers that are connected now. An exception of one ends the raise.
    void Raise(Args... args) {
        std::erase_if(entries_, [](const auto& entry) { return !*entry->alive; });
        const auto entries = entries_;
        for (const auto& entry : entries) {
            if (*entry->alive) {
                entry->handler(args...);
            }
        }
    }

  private:
    struct Entry {
        Handler handler;
        std::shared_ptr<bool> alive = std::make_shared<bool>(true);
    };

    std::shared_ptr<bool> Add(Handler handler) {
        entries_.push_back(std::make_shared<Entry>(Entry{std::move(handler)}));
        return entries_.back()->alive;
    }

    std::vector<std::shared_ptr<Entry>> entries_;
};

} // namespace zy
