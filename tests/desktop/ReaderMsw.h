#pragma once

#include <wx/gdicmn.h>
#include <wx/msw/wrapwin.h>
#include <wx/window.h>

#include <memory>
#include <oleacc.h>
#include <string>
#include <vector>

namespace zy::test {

/// Reads the inside of a window as a screen reader of the system does. For the window's own thread. Children
/// are meant by their numbers; CHILDID_SELF is the window itself.
class Reader {
  public:
    static constexpr long kNone = -1;

    explicit Reader(const wxWindow& window) : Reader(static_cast<HWND>(window.GetHandle())) {}
    explicit Reader(HWND window);

    std::string Name(long child = CHILDID_SELF) const;
    std::string Role(long child = CHILDID_SELF) const;
    std::string Description(long child = CHILDID_SELF) const;
    long State(long child = CHILDID_SELF) const;
    wxRect Place(long child) const;
    /// The child at a place on the screen.
    long At(const wxPoint& onScreen) const;
    long Neighbour(long child, long direction) const;
    /// The child that has the keyboard; kNone when neither one nor the window has.
    long Focus() const;
    /// The child that is selected, the current one of several.
    long Selected() const;
    std::string Action(long child) const;
    void Do(long child) const;
    /// Moves the selection to a child.
    void Pick(long child) const;
    /// Role and name of each child, a line each.
    std::vector<std::string> Lines() const;

  private:
    struct Release {
        void operator()(IUnknown* object) const { object->Release(); }
    };

    std::unique_ptr<IAccessible, Release> object_;
};

/// Role and name of a window and of all those in it that are shown, a line each. For the window's own thread.
std::vector<std::string> ReadWindows(HWND window);

/// The events by which a screen reader learns of a window's inside, from construction to destruction. For
/// the thread of the script.
class HeardEvents {
  public:
    struct Heard {
        DWORD event = 0;
        long child = 0;

        bool operator==(const Heard&) const = default;
    };

    explicit HeardEvents(const wxWindow* window);
    ~HeardEvents();
    HeardEvents(const HeardEvents&) = delete;
    HeardEvents& operator=(const HeardEvents&) = delete;

    void WaitFor(const Heard& event) const;

  private:
    static void CALLBACK Note(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child,
                              DWORD thread, DWORD time);

    /// Those of the one object of this class that lives.
    static inline std::vector<Heard> heard_;
    static inline HWND window_ = nullptr;
    HWINEVENTHOOK hook_ = nullptr;
};

} // namespace zy::test
