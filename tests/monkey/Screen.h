#pragma once

#include <functional>
#include <list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/Form.h"
#include "controls/Grid.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/StatusBar.h"
#include "controls/TextBox.h"

namespace zy::test {

/// What a view of a form would show that draws anew only what the form announces, as the real one does.
class Screen {
  public:
    /// All of these must outlive it.
    Screen(Container& form, const std::vector<MenuItem*>& menus);
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The first thing that is shown as it is not; empty when there is none.
    std::string FirstOutdated() const;

  private:
    /// Something that is shown, and how to look it up.
    struct Part {
        std::string name;
        std::function<std::string()> now;
        std::string shown;
    };
    struct ListOnScreen {
        ListView* list;
        std::vector<std::string> rows;
    };
    struct GridOnScreen {
        Grid* grid;
        std::vector<std::vector<std::string>> rows;
    };

    void Add(Container& container);
    void AddMenu(MenuItem& menu);
    void AddControl(Control& control);
    void AddList(ListView& list);
    void AddGrid(Grid& grid);
    Part& AddPart(const std::string& name, std::function<std::string()> now);

    std::list<Part> parts_;
    std::list<ListOnScreen> lists_;
    std::list<GridOnScreen> grids_;
};

} // namespace zy::test
