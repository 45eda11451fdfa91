#include "desktop/AccessibleMsw.h"

#include <wx/msw/wrapwin.h>
#include <wx/spinctrl.h>

#include <bit>
#include <commctrl.h>
#include <memory>
#include <oleacc.h>

namespace zy {
namespace {

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};

using Services = std::unique_ptr<IAccPropServices, Release>;

/// The system's keeper of such texts; null where there is none, and then they are missing.
Services MakeServices() {
    void* made = nullptr;
    const HRESULT result =
        ::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &made);
    return Services(SUCCEEDED(result) ? static_cast<IAccPropServices*>(made) : nullptr);
}

constexpr DWORD kWindowItself = CHILDID_SELF;
constexpr auto kInside = static_cast<DWORD>(OBJID_CLIENT);

/// The handle that takes the keyboard.
HWND FocusHandleOf(wxWindow& window) {
    // The arrows of a number stand beside its text.
    const auto* number = dynamic_cast<const wxSpinCtrl*>(&window);
    return number == nullptr ? window.GetHandle()
                             : std::bit_cast<HWND>(::SendMessageW(number->GetHandle(), UDM_GETBUDDY, 0, 0));
}

void AnnotateText(wxWindow& window, const MSAAPROPID& property, const wxString& text) {
    if (const auto services = MakeServices()) {
        services->SetHwndPropStr(FocusHandleOf(window), kInside, kWindowItself, property, text.wc_str());
    }
}

} // namespace

void AnnotateName(wxWindow& window, const wxString& name) {
    AnnotateText(window, PROPID_ACC_NAME, name);
    ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, FocusHandleOf(window), OBJID_CLIENT, CHILDID_SELF);
}

void AnnotateDescription(wxWindow& window, const wxString& description) {
    AnnotateText(window, PROPID_ACC_DESCRIPTION, description);
}

void AnnotateRole(wxWindow& window, long role) {
    if (const auto services = MakeServices()) {
        VARIANT value{};
        value.vt = VT_I4;
        value.lVal = role;
        services->SetHwndProp(window.GetHandle(), kInside, kWindowItself, PROPID_ACC_ROLE, value);
    }
}

} // namespace zy
