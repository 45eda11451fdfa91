#pragma once

#include <vector>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/DrawingBox.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "rules/StandardRules.h"

namespace zy {

/// The published sets of rules: each with its source, its rules as they would be inserted into a list, and
/// the picture of the selected one. Rules that our fields cannot say are grey and give the reason.
class frmStandardRules : public Form {
  public:
    /// The list must outlive the form.
    frmStandardRules(const RuleList& list, const CodePage& codePage);

    void Form_Resize();
    void lstSets_ItemClick();
    void lstSetRules_ItemClick();
    /// The rules to be inserted; empty when the user thought better of it.
    const std::vector<RunRule>& Chosen() const { return chosen_; }

    TextLabel lblText;
    TextLabel lblSource;
    Frame fraSets;
    ListView lstSets;
    Frame fraSetRules;
    ListView lstSetRules;
    DrawingBox picRule;
    CommandButton cmdInsertSet;
    CommandButton cmdInsertRule;
    CommandButton cmdCancel;

  private:
    void Connect();
    const OfferedRule& Offered(int item) const { return offered_.at(static_cast<std::size_t>(item) - 1); }
    void End(const std::vector<OfferedRule>& chosen);

    const RuleList& list_;
    const CodePage& codePage_;
    std::vector<OfferedRule> offered_; ///< of the selected set
    std::vector<RunRule> chosen_;
};

} // namespace zy
