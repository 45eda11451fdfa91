#include "desktop/DialogBinding.h"

#include <wx/button.h>
#include <wx/display.h>
#include <wx/hyperlink.h>
#include <wx/panel.h>
#include <wx/utils.h>

#include "controls/CommandButton.h"
#include "desktop/ControlBinding.h"
#include "desktop/Displays.h"
#include "desktop/Native.h"
#include "desktop/PageArea.h"
#include "desktop/Panels.h"
#include "desktop/Pictures.h"
#include "desktop/ShownText.h"

namespace zy {
namespace {

/// The room for windows on the screen that a window stands on.
wxRect RoomAround(const wxWindow& window) {
    const int display = wxDisplay::GetFromWindow(&window);
    return wxDisplay(display == wxNOT_FOUND ? 0U : static_cast<unsigned>(display)).GetClientArea();
}

/// Enter works on these by itself.
bool TakesEnter(const wxWindow* focused) {
    return dynamic_cast<const wxButton*>(focused) != nullptr ||
           dynamic_cast<const wxHyperlinkCtrl*>(focused) != nullptr;
}

} // namespace

DialogBinding::DialogBinding(const CodePage& codePage, EventGate& gate, Form& form, wxWindow* parent)
    : gate_(gate), form_(form),
      dialog_(parent, wxID_ANY, ToShown(codePage, form.Caption()), wxDefaultPosition, wxDefaultSize,
              wxCAPTION | wxCLOSE_BOX | wxSYSTEM_MENU |
                  (form.leastInnerSize ? wxRESIZE_BORDER | wxMAXIMIZE_BOX : 0)),
      context_{.codePage = codePage,
               .gate = gate,
               .controls = controls_,
               .showRefusal = [this](std::string_view reason) { RingForRefusal(reason); },
               .scale = Scale(DotsPerInch(dialog_)),
               .menuPlace = menuPlace_},
      inside_{.window = MakeOuterPanel(dialog_), .origin = {}}, notice_(*inside_.window),
      children_(BindChildren(context_, inside_, form)), focus_(context_, form, dialog_),
      appearanceChanged_(form.appearanceChanged.Observe([this] {
          if (!form_.Visible()) {
              End();
          }
      })) {
    dialog_.SetName(ToShown(codePage, form.Name()));
    dialog_.SetIcons(ProgramIcon());
    SetAccessibleRole(dialog_, AccessibleRole::Dialog);
    TakeSize();
    ObserveDotsPerInch(dialog_, [this] { Rescale(); });
    PlaceOn(parent);
    ConnectKeys();
    if (form_.leastInnerSize) {
        dialog_.Bind(wxEVT_SIZE, [this](wxSizeEvent&) { TellSize(); });
    }
    dialog_.Bind(wxEVT_CLOSE_WINDOW,
                 [this](wxCloseEvent&) { gate_.Act([this] { form_.SetVisible(false); }); });
    dialog_.Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        if (gate_.HasFailed()) {
            End();
        }
    });
}

DialogBinding::~DialogBinding() = default;

void DialogBinding::TakeSize() {
    form_.SetInnerSize({});
    const wxSize size = context_.scale.ToPixels(form_.Bounds()).GetSize();
    dialog_.SetClientSize(size);
    inside_.window->SetSize(size);
    if (form_.leastInnerSize) {
        dialog_.SetMinClientSize(context_.scale.ToPixels(form_.LeastInnerSize()));
    }
}

void DialogBinding::TellSize() {
    inside_.window->SetSize(dialog_.GetClientSize());
    gate_.Tell([this] { form_.SetInnerSize(context_.scale.ToTwips(dialog_.GetClientSize())); });
}

void DialogBinding::Rescale() {
    context_.scale = Scale(DotsPerInch(dialog_));
    for (const auto& child : children_) {
        child->Rescale();
    }
    // Behind the size that the system gives it.
    dialog_.CallAfter([this] { TakeSize(); });
}

void DialogBinding::PlaceOn(wxWindow* parent) {
    const wxRect place = context_.scale.ToPixels(form_.Bounds());
    if (parent != nullptr && place.GetPosition() != wxPoint()) {
        const wxRect wanted(PageArea::PageIn(*parent).ClientToScreen(place.GetPosition()), dialog_.GetSize());
        dialog_.Move(MovedInside(wanted, RoomAround(*parent)).GetPosition());
    } else {
        dialog_.Centre();
    }
    LayOutUnseen(dialog_);
}

void DialogBinding::ConnectKeys() {
    dialog_.Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) { PressKey(event); });
}

void DialogBinding::PressKey(wxKeyEvent& event) {
    const bool enter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    CommandButton* button = enter && !TakesEnter(wxWindow::FindFocus()) ? form_.OnEnter()
                            : event.GetKeyCode() == WXK_ESCAPE          ? form_.OnEscape()
                                                                        : nullptr;
    if (button == nullptr || event.HasAnyModifiers()) {
        event.Skip();
        return;
    }
    // Behind the key itself: a message box that opens at once would get the key as well.
    RunBehindEvent(dialog_, [this, button] { gate_.Act([button] { button->Click(); }); });
}

void DialogBinding::Run() {
    focus_.ShowFirst();
    if (form_.Visible()) {
        dialog_.ShowModal();
    }
}

void DialogBinding::RingForRefusal(std::string_view reason) {
    if (refusal_ != reason) {
        refusal_ = reason;
        wxBell();
        notice_.Say(ToShown(context_.codePage, reason));
    }
}

void DialogBinding::End() {
    if (dialog_.IsModal()) {
        dialog_.EndModal(wxID_CANCEL);
    }
}

} // namespace zy
