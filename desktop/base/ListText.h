#pragma once

class wxDataViewTextRenderer;

namespace zy {

/// Draws the texts of a list: those that a box keeps from being used for a while look as they always do. Each
/// system has one file of this.
wxDataViewTextRenderer* MakeListText();

} // namespace zy
