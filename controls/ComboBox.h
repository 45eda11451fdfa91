#pragma once

#include "controls/Control.h"

namespace zy {

/// A drop-down list of fixed texts.
class ComboBox : public Control {
  public:
    ComboBox(Container* parent, std::string name, std::vector<std::string> items);

    const std::vector<std::string>& Items() const { return items_; }
    /// The selected item, counted from 0; -1 when none is.
    int ListIndex() const { return listIndex_; }
    /// The selected item's text, empty when none is selected.
    const std::string& Text() const;
    /// Selects an item, -1 for none. Raises `click` when the selection changes. Run-time error 9 for an index
    /// that no item has.
    void SetListIndex(int index);

    /// The user picks an item, counted from 0. Run-time error 9 for an index that no item has.
    void Pick(int index);

    /// The selection changed, by the program or by the user.
    Event<> click;

  private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

} // namespace zy
