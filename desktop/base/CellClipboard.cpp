#include "desktop/CellClipboard.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/log.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include "controls/CopiedCells.h"
#include "desktop/Refusals.h"
#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy {
namespace {

/// What is done with the clipboard, while it is open for that. False when another program has it open.
bool UseClipboard(const ViewContext& context, const std::function<bool()>& use) {
    const wxLogNull saidBelow;
    const wxClipboardLocker open;
    const bool used = !!open && use();
    if (!used) {
        context.showRefusal(kClipboardInUse);
    }
    return used;
}

/// The text on it; nothing when it holds none.
std::optional<wxString> TextOnClipboard(const ViewContext& context) {
    std::optional<wxString> found;
    UseClipboard(context, [&] {
        wxTextDataObject text;
        const bool isText = wxTheClipboard->IsSupported(wxDF_UNICODETEXT);
        if (isText && wxTheClipboard->GetData(text)) {
            found = text.GetText();
        }
        return found || !isText;
    });
    return found;
}

/// The cell that the first pasted one goes into.
Cell FirstOf(const Grid& model) {
    return {std::max(1, std::min(model.selection.Row(), model.selection.BlockEnd().row)),
            std::min(model.selection.Column(), model.selection.BlockEnd().column)};
}

void TellWhereLacking(const ViewContext& context, const Grid& model, const wxString& shown) {
    const Cell first = FirstOf(model);
    Cell cell = first;
    const std::string pasted = shown.utf8_string();
    for (CopiedCells cells(pasted); !cells.AtEnd();) {
        const auto text = cells.Take();
        const auto inCell = wxString::FromUTF8(text.data(), text.size());
        if (FindLacking(context.codePage, inCell)) {
            TellRefused(context, NameOf(model.cells, cell), inCell);
            return;
        }
        cell = cells.EndedRow() ? Cell{cell.row + 1, first.column} : Cell{cell.row, cell.column + 1};
    }
}

} // namespace

bool CopyCells(const ViewContext& context, const std::string& cells) {
    return cells.empty() || UseClipboard(context, [&] {
               return wxTheClipboard->SetData(new wxTextDataObject(ToShown(context.codePage, cells)));
           });
}

void CutCells(const ViewContext& context, Grid& model) {
    if (CopyCells(context, model.block.Copy())) {
        context.gate.Act([&] { model.Press({Key::Delete}); });
    }
}

void PasteCells(const ViewContext& context, Grid& model) {
    const auto shown = TextOnClipboard(context);
    if (!shown) {
        return;
    }
    if (const auto text = context.codePage.FromUtf8(shown->utf8_string())) {
        context.gate.Act([&] { model.Paste(*text); });
    } else {
        TellWhereLacking(context, model, *shown);
    }
}

} // namespace zy
