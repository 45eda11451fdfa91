#pragma once

#include <string>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "shell/RecordChanges.h"

namespace zy {

/// What differs between the file of a list and the list as it stands, each with the way back.
class frmChanges : public Form {
  public:
    /// The file's name.
    frmChanges(const ListRecords& records, const std::string& file);

    /// Shows these differences. `dropped` is what else a save takes out of the file; empty for nothing.
    void Show(RecordChanges changes, const std::string& dropped);
    void Form_Resize();
    void lstChanges_ItemClick();
    void cmdRevert_Click();

    TextLabel lblHeading;
    TextLabel lblDropped;
    Frame fraChanges;
    ListView lstChanges;
    CommandButton cmdRevert;
    CommandButton cmdClose;

    /// This difference, of the record of this name, is to be taken back.
    Event<const RowDifference&, const std::string&> reverted;

  private:
    RecordChanges changes_;
};

} // namespace zy
