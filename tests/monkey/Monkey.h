#pragma once

#include <string>
#include <vector>

#include "Chance.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/DrawingBox.h"
#include "controls/Form.h"
#include "controls/Grid.h"
#include "controls/LinkLabel.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/MonthCalendar.h"
#include "controls/TextBox.h"
#include "controls/UpDown.h"

namespace zy::test {

/// Does to the controls of any form what a user can do to them, whatever comes to its mind.
class Monkey {
  public:
    explicit Monkey(Chance& chance) : chance_(chance) {}

    /// Does something to one of the controls that can be used.
    void ActOn(Form& form);
    /// Chooses an entry of a menu, or of one of its submenus.
    void ChooseFrom(const MenuItem& menu);

  private:
    static void Collect(const Container& container, std::vector<Control*>& found);
    void Do(Control& control);
    void DoTo(TextBox& box);
    void DoTo(ListView& list);
    void DoTo(Grid& grid);
    void TypeOver(Grid& grid);
    void DoInEditor(Grid& grid);
    void DoTo(MonthCalendar& calendar);
    KeyPress AnyKey();
    std::string Pasted();
    void Resize(Form& form);

    Chance& chance_;
};

} // namespace zy::test
