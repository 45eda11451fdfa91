#pragma once

#include "controls/Decoration.h"
#include "desktop/ControlBinding.h"

namespace zy {

// The real controls of what a window shows and nobody can do anything with.

/// A text that stands for itself.
class TextLabelBinding : public ControlBinding {
  public:
    TextLabelBinding(const ViewContext& context, const Inside& inside, TextLabel& model);

    void ShowAppearance() override;

  protected:
    void Measure() override;

  private:
    wxString Text() const;

    std::string shownCaption_;
};

/// A thin line.
class LineBinding : public ControlBinding {
  public:
    LineBinding(const ViewContext& context, const Inside& inside, Line& model);
};

/// The program's picture, drawn for the size that its model has.
class PictureBinding : public ControlBinding {
  public:
    PictureBinding(const ViewContext& context, const Inside& inside, Picture& model);
};

} // namespace zy
