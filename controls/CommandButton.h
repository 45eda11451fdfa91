#pragma once

#include "controls/Control.h"

namespace zy {

class CommandButton : public Control {
  public:
    /// The width of a button in twips, unless its text needs more.
    static constexpr int kUsualWidth = 1215;

    /// `accessKey` is the letter of the caption that presses the button together with Alt; none when it is
    /// NUL.
    CommandButton(Container* parent, std::string name, std::string caption, char accessKey = '\0');

    char AccessKey() const { return accessKey_; }

    /// The user presses the button.
    void Click();

    Event<> click;

  private:
    char accessKey_;
};

} // namespace zy
