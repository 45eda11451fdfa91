#include "desktop/AccessibleMsw.h"

#include <wx/msw/wrapwin.h>
#include <wx/spinctrl.h>

#include <bit>
#include <commctrl.h>
#include <memory>
#include <oleacc.h>
#include <optional>
#include <utility>

namespace zy {
namespace {

template <typename Value>
wxAccStatus Answer(const std::optional<Value>& given, int child, Value* answer) {
    if (!given || child != wxACC_SELF) {
        return wxACC_NOT_IMPLEMENTED; // the system knows it
    }
    *answer = *given;
    return wxACC_OK;
}

/// A window with some of what there is to know of it.
class DescribedWindow final : public wxAccessible {
  public:
    using wxAccessible::wxAccessible;

    std::optional<wxString> name;
    std::optional<wxString> description;
    std::optional<wxAccRole> role;

    wxAccStatus GetName(int child, wxString* text) override { return Answer(name, child, text); }
    wxAccStatus GetDescription(int child, wxString* text) override {
        return Answer(description, child, text);
    }
    wxAccStatus GetRole(int child, wxAccRole* number) override { return Answer(role, child, number); }
};

DescribedWindow& Described(wxWindow& window) {
    auto* described = dynamic_cast<DescribedWindow*>(window.GetAccessible());
    if (described == nullptr) {
        described = new DescribedWindow(&window);
        window.SetAccessible(described);
    }
    return *described;
}

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};

/// The text of a number is none of the toolkit's windows; those are its arrows. The system's keeper of names
/// is asked, and where there is none, the name is missing.
void NameText(const wxSpinCtrl& number, const wxString& name) {
    void* made = nullptr;
    ::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &made);
    if (made != nullptr) {
        const std::unique_ptr<IAccPropServices, Release> services(static_cast<IAccPropServices*>(made));
        const auto text = std::bit_cast<HWND>(::SendMessageW(number.GetHandle(), UDM_GETBUDDY, 0, 0));
        services->SetHwndPropStr(text, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                                 name.wc_str());
    }
}

} // namespace

void GiveName(wxWindow& window, const wxString& name) {
    if (const auto* number = dynamic_cast<const wxSpinCtrl*>(&window)) {
        NameText(*number, name);
    }
    Described(window).name = name;
    wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, &window, wxOBJID_CLIENT, wxACC_SELF);
}

void GiveDescription(wxWindow& window, const wxString& description) {
    Described(window).description = description;
}

void GiveRole(wxWindow& window, wxAccRole role) {
    Described(window).role = role;
}

} // namespace zy
