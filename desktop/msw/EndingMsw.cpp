#include <wx/app.h>
#include <wx/frame.h>

#include <memory>
#include <utility>

#include "desktop/Ending.h"

namespace zy {
namespace {

/// The end of the user's session, which the toolkit tells the application of.
class EndOfSession : public wxEvtHandler {
  public:
    EndOfSession(wxFrame& window, std::function<void()> ending)
        : window_(window), ending_(std::move(ending)) {
        wxTheApp->Bind(wxEVT_QUERY_END_SESSION, &EndOfSession::Ask, this);
        wxTheApp->Bind(wxEVT_END_SESSION, &EndOfSession::End, this);
    }

  private:
    /// Each window of the program is asked. The toolkit's own handler takes the window's answer to its close
    /// box for a refusal, whatever comes of it.
    void Ask(wxCloseEvent& event) {
        ending_();
        if (window_.IsShown()) {
            window_.Close();
        }
        event.Veto(window_.IsShown());
    }

    /// Also where nobody was asked.
    void End(wxCloseEvent& event) {
        event.Skip();
        ending_();
    }

    wxFrame& window_;
    std::function<void()> ending_;
};

} // namespace

void ObserveEnding(wxFrame& window, std::function<void()> ending) {
    // The session is watched for as long as what is bound to the window lives.
    window.Bind(wxEVT_DESTROY, [session = std::make_shared<EndOfSession>(window, std::move(ending))](
                                   wxWindowDestroyEvent& event) { event.Skip(); });
}

} // namespace zy
