#include "desktop/CellClipboard.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include <algorithm>
#include <optional>
#include <string>

#include "controls/CopiedCells.h"
#include "desktop/Refusals.h"
#include "desktop/ShownText.h"

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

void CopyCells(const ViewContext& context, const std::string& cells) {
    const wxClipboardLocker open;
    if (!cells.empty() && !!open) {
        wxTheClipboard->SetData(new wxTextDataObject(ToShown(context.codePage, cells)));
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
        TellWhereLacking(context, model, *shown);
    }
}

} // namespace zy
