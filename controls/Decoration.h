#pragma once

#include "controls/Control.h"

namespace zy {

// What a window shows and the user can do nothing with.

/// A text that stands for itself, in one or more lines.
class TextLabel : public Control {
  public:
    enum class Style { Plain, Heading };

    TextLabel(Container* parent, std::string name, Style style = Style::Plain)
        : Control(parent, std::move(name)), style_(style) {}

    Style TextStyle() const { return style_; }

  private:
    Style style_;
};

/// A horizontal line between the parts of a window.
class Line : public Control {
  public:
    using Control::Control;
};

/// The program's picture.
class Picture : public Control {
  public:
    using Control::Control;
};

} // namespace zy
