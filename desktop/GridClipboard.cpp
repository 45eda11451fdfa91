#include "desktop/GridClipboard.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include <optional>
#include <string>

#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

std::optional<wxString> TextOnClipboard() {
    const wxClipboardLocker open;
    wxTextDataObject text;
    if (!open || !wxTheClipboard->GetData(text)) {
        return std::nullopt;
    }
    return text.GetText();
}

} // namespace

void CopyCells(const ViewContext& context, const Grid& model) {
    const std::string text = model.Copy();
    const wxClipboardLocker open;
    if (!text.empty() && !!open) {
        wxTheClipboard->SetData(new wxTextDataObject(ToShown(context.codePage, text)));
    }
}

void PasteCells(const ViewContext& context, Grid& model) {
    const auto shown = TextOnClipboard();
    if (!shown) {
        return;
    }
    if (const auto text = context.codePage.FromUtf8(shown->utf8_string())) {
        context.gate.Act([&] { model.Paste(*text); });
    } else {
        context.statusBar.SetText(kCharacterRefused);
    }
}

} // namespace zy
