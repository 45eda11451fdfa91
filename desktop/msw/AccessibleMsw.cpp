#include "desktop/AccessibleMsw.h"

#include <wx/msw/wrapwin.h>
#include <wx/window.h>

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

} // namespace

void AnnotateName(wxWindow& window, const wxString& name) {
    if (const auto services = MakeServices()) {
        services->SetHwndPropStr(window.GetHandle(), kInside, kWindowItself, PROPID_ACC_NAME, name.wc_str());
    }
}

void AnnotateRole(wxWindow& window, long role) {
    if (const auto services = MakeServices()) {
        VARIANT value{};
        value.vt = VT_I4;
        value.lVal = role;
        services->SetHwndProp(window.GetHandle(), kInside, kWindowItself, PROPID_ACC_ROLE, value);
    }
}

void AnnounceName(wxWindow& window) {
    ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window.GetHandle(), OBJID_CLIENT, CHILDID_SELF);
}

} // namespace zy
