#include "desktop/Notice.h"

#include <wx/stattext.h>

#include <utility>

#include "desktop/Native.h"

namespace zy {

void Notice::Say(const wxString& text) {
    if (notice_ == nullptr) {
        const wxSize kUnseen(1, 1);
        notice_ = new wxStaticText(&window_, wxID_ANY, "", wxPoint(), kUnseen, wxST_NO_AUTORESIZE);
        SetAccessibleRole(*notice_, AccessibleRole::Notice);
    }
    SetAccessibleName(*notice_, text);
    const bool isNew = std::exchange(text_, text) != text;
    if (isNew && notice_->IsShownOnScreen() && !std::exchange(waits_, true)) {
        RunBehindEvent(*notice_, [this] { Announce(); });
    }
}

void Notice::Announce() {
    waits_ = false;
    AnnounceNotice(*notice_);
}

} // namespace zy
