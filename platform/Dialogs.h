#pragma once

#include <string_view>

namespace zy {

/// What the Escape key does in a Yes/No box.
enum class Escape {
    AnswersNo, ///< where No leaves everything as it was
    IsIgnored, ///< where No would lose something: the person has to choose
};

/// The message boxes. All of them are modal and bear no icon.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// A box with an OK button only.
    virtual void ShowMessage(std::string_view text, std::string_view title) = 0;
    /// A box with Yes and No; true on Yes. Yes is the button that Enter presses.
    virtual bool AskYesNo(std::string_view text, std::string_view title, Escape escape) = 0;
};

} // namespace zy
