#include "desktop/WindowBinding.h"

#include <wx/frame.h>
#include <wx/statusbr.h>

#include <utility>

#include "desktop/ControlBinding.h"
#include "desktop/Native.h"
#include "desktop/Pictures.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

WindowState StateOf(const wxFrame& frame) {
    return frame.IsIconized()    ? WindowState::Minimized
           : frame.IsMaximized() ? WindowState::Maximized
                                 : WindowState::Normal;
}

/// In twips. The real control may not stand there yet.
Rect PlaceOnPage(const Control& control) {
    Rect place = control.Bounds();
    for (const Container* around = control.Parent(); around->Parent() != nullptr; around = around->Parent()) {
        place.left += around->Bounds().left;
        place.top += around->Bounds().top;
    }
    return place;
}

} // namespace

WindowBinding::WindowBinding(ViewContext& context, Form& form, std::function<void()> close)
    : context_(context), form_(form), frame_(new wxFrame(nullptr, wxID_ANY, "")),
      area_(new PageArea(*frame_)), firstState_(form.State()) {
    frame_->SetName(ToShown(context.codePage, form.Name()));
    frame_->SetIcons(ProgramIcon());
    inside_.window = area_->Page();
    context_.scale = Scale(DotsPerInch(*frame_));
    children_ = BindChildren(context, inside_, form);
    focus_ = std::make_unique<FocusBinding>(context, form, *frame_);
    ConnectFrame(std::move(close));
    ShowAppearance();
}

WindowBinding::~WindowBinding() {
    // The real window goes first, while everything that its last events reach is still there.
    delete frame_;
}

void WindowBinding::ConnectFrame(std::function<void()> close) {
    area_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        FitPage();
    });
    inside_.window->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        TellSize();
    });
    // On its way back from the taskbar a window may keep the size of its inside.
    frame_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        TellState();
    });
    frame_->Bind(wxEVT_ICONIZE, [this](wxIconizeEvent& event) {
        event.Skip();
        TellState();
    });
    frame_->Bind(wxEVT_MAXIMIZE, [this](wxMaximizeEvent& event) {
        event.Skip();
        TellState();
    });
    frame_->Bind(wxEVT_CLOSE_WINDOW, [this, close = std::move(close)](wxCloseEvent& event) {
        // The window goes when the program lets go of it, never by itself.
        event.Veto();
        context_.gate.Tell(close);
    });
    KeepMenuBarClosed(*frame_);
    ObserveDotsPerInch(*frame_, [this] { Rescale(); });
    subscriptions_.push_back(form_.appearanceChanged.Observe([this] { ShowAppearance(); }));
    subscriptions_.push_back(form_.focusChanged.Observe([this] { ShowFocused(); }));
    subscriptions_.push_back(form_.stateChanged.Observe([this] { ShowState(); }));
}

void WindowBinding::Open() {
    frame_->SendSizeEvent();
    LayOutUnseen(*frame_);
    focus_->ShowFirst();
    if (firstState_ == WindowState::Maximized) {
        frame_->Maximize();
    }
    frame_->Show();
}

void WindowBinding::FitPage() {
    wxSize least = context_.scale.ToPixels(form_.LeastInnerSize());
    least.y -= StatusBarHeight();
    area_->FitPage(least);
}

void WindowBinding::TellSize() {
    context_.gate.Tell([this] {
        form_.SetState(StateOf(*frame_));
        wxSize size = inside_.window->GetSize();
        size.y += StatusBarHeight();
        form_.SetInnerSize(context_.scale.ToTwips(size));
    });
    // Which the new size may have put out of sight; behind the toolkit's own work on it, for until then
    // Windows has no room to scroll to.
    frame_->CallAfter([this] { ShowFocused(); });
}

int WindowBinding::StatusBarHeight() const {
    return frame_->GetStatusBar()->GetSize().y;
}

void WindowBinding::TellState() {
    if (StateOf(*frame_) != form_.State()) {
        TellSize();
    }
}

void WindowBinding::Rescale() {
    context_.scale = Scale(DotsPerInch(*frame_));
    for (const auto& child : children_) {
        child->Rescale();
    }
    FitPage();
}

void WindowBinding::ShowFocused() {
    if (const Control* focused = form_.Focused()) {
        area_->ShowWhole(context_.scale.ToPixels(PlaceOnPage(*focused)));
    }
}

void WindowBinding::ShowAppearance() {
    frame_->SetTitle(ToShown(context_.codePage, form_.Caption()));
}

void WindowBinding::ShowState() {
    if (StateOf(*frame_) == form_.State()) {
        return;
    }
    frame_->Iconize(form_.State() == WindowState::Minimized);
    if (form_.State() != WindowState::Minimized) {
        frame_->Maximize(form_.State() == WindowState::Maximized);
    }
}

} // namespace zy
