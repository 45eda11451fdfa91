#pragma once

#include <string>

#include "controls/Drawing.h"
#include "rules/RuleList.h"

namespace zy {

// A list of rules with their pictures, one below another, for a file or for paper. Each rule has its code and
// its description above its picture; a description that is too long is cut. Numbers are read with the
// locale's decimal separator.

/// All rules on one sheet.
Sheet SheetOf(const RuleList& rules, char decimalSeparator, const Lettering& letters);

/// The rules on pages of that size, in twips, at least one. No rule is divided between two pages; a page that
/// is narrower or lower than one rule holds one, cut off. Below the rules stand the heading and the page's
/// number. The list must outlive the pages.
Pages PagesOf(const RuleList& rules, char decimalSeparator, const Lettering& letters, const Size& page,
              const std::string& heading);

} // namespace zy
