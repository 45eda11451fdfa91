#pragma once

#include "desktop/Bindings.h"
#include "desktop/ControlBinding.h"

class wxStaticBox;

namespace zy {

/// A frame with its controls, which are made when it is shown for the first time.
class FrameBinding : public ControlBinding {
  public:
    FrameBinding(const ViewContext& context, const Inside& inside, Frame& model);

    void ShowAppearance() override;
    void Rescale() override;

  private:
    /// A frame needs the height that its caption and border take at the top; the rest is up to the layout.
    void Measure() override;
    void MakeChildren();
    void LookInside();

    Frame& model_;
    wxStaticBox* box_ = nullptr;
    Inside content_;
    int above_ = 0; ///< what caption and border take at the top, in pixels
    Bindings children_;
};

} // namespace zy
