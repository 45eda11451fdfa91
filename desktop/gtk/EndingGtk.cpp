#include <glib-unix.h>
#include <wx/frame.h>

#include <array>
#include <csignal>
#include <memory>
#include <utility>

#include "desktop/Ending.h"

namespace zy {
namespace {

using Observer = std::function<void()>;

/// Whoever started the program can want it to live on without him, as nohup does.
bool IsIgnored(int signal) {
    const auto before = std::signal(signal, SIG_DFL);
    std::signal(signal, before);
    return before == SIG_IGN;
}

/// A signal that ends the program, and before that has it come to an end with what it is doing.
class EndingSignal {
  public:
    EndingSignal(int signal, const Observer& ending)
        : signal_(signal), ending_(ending),
          source_(IsIgnored(signal) ? 0 : g_unix_signal_add(signal, Receive, this)) {}
    ~EndingSignal() {
        if (source_ != 0) {
            g_source_remove(source_);
        }
    }
    EndingSignal(const EndingSignal&) = delete;
    EndingSignal& operator=(const EndingSignal&) = delete;

  private:
    static gboolean Receive(gpointer self) {
        static_cast<EndingSignal*>(self)->End();
        return G_SOURCE_CONTINUE;
    }

    /// By the signal itself, so that whoever sent it sees that.
    void End() const {
        ending_();
        std::signal(signal_, SIG_DFL);
        std::raise(signal_);
    }

    int signal_;
    const Observer& ending_;
    guint source_;
};

class EndingSignals {
  public:
    explicit EndingSignals(Observer ending) : ending_(std::move(ending)) {}

  private:
    Observer ending_;
    std::array<EndingSignal, 3> signals_{EndingSignal{SIGHUP, ending_}, EndingSignal{SIGINT, ending_},
                                         EndingSignal{SIGTERM, ending_}};
};

} // namespace

void ObserveEnding(wxFrame& window, std::function<void()> ending) {
    // The signals are watched for as long as what is bound to the window lives.
    window.Bind(wxEVT_DESTROY, [signals = std::make_shared<EndingSignals>(std::move(ending))](
                                   wxWindowDestroyEvent& event) { event.Skip(); });
}

} // namespace zy
