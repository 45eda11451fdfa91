#pragma once

#include <wx/dataview.h>

#include "controls/ListView.h"
#include "desktop/ViewContext.h"

namespace zy {

/// The rows of a list, read from its model when the toolkit shows them. Rows count from 0, the model's items
/// from 1.
class ListRows : public wxDataViewVirtualListModel {
  public:
    ListRows(const ViewContext& context, const ListView& list);

    /// Takes over how many items the model has.
    void MatchCount();

  private:
    void GetValueByRow(wxVariant& value, unsigned int row, unsigned int column) const override;
    bool GetAttrByRow(unsigned int row, unsigned int column, wxDataViewItemAttr& look) const override;
    /// Nothing can be changed in place.
    bool SetValueByRow(const wxVariant& value, unsigned int row, unsigned int column) override;

    const ViewContext& context_;
    const ListView& list_;
};

} // namespace zy
