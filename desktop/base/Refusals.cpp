#include "desktop/Refusals.h"

#include "desktop/ShownText.h"
#include "shell/StatusTexts.h"

namespace zy {

std::string NameOf(const GridCells& cells, const Cell& cell) {
    const auto column = cell.column < cells.Columns() ? std::string(cells.Text(0, cell.column))
                                                      : "column " + std::to_string(cell.column + 1);
    return "row " + std::to_string(cell.row) + ", " + column;
}

std::string NameOf(const Control& field) {
    const Label* label = FindLabelOf(field);
    const std::string caption = label == nullptr ? field.Name() : label->Caption();
    return caption.substr(0, caption.find(':'));
}

void TellRefused(const ViewContext& context, const std::string& place, const wxString& shown) {
    if (shown.length() > kMostShown) {
        context.showRefusal(kFieldFull);
    } else if (const auto lacking = FindLacking(context.codePage, shown)) {
        const auto number = wxString::Format("U+%04X", static_cast<unsigned>(lacking->GetValue()));
        context.showRefusal(place + ": the character " + number.ToStdString() +
                            std::string(kCharacterRefused));
    }
}

} // namespace zy
