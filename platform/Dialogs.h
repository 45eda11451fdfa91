#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zy {

class Form; // a window of the program, handed on as it is

/// What the Escape key does in a Yes/No box.
enum class Escape {
    AnswersNo, ///< where No leaves everything as it was
    IsIgnored, ///< where No would lose something: the user has to choose
};

/// The message boxes, which bear no icon, and the program's own dialogs. All of them are modal.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// A box with an OK button only.
    virtual void ShowMessage(std::string_view text, std::string_view title) = 0;
    /// A box with Yes and No; true on Yes. Yes is the button that Enter presses.
    virtual bool AskYesNo(std::string_view text, std::string_view title, Escape escape) = 0;
    /// Asks where to write a file of one of these kinds, such as "svg", which its name then ends in,
    /// beginning with this name. Whoever chooses one that is there is asked whether it may be replaced.
    /// Nothing when the user thinks better of it, or chooses a path that the code page cannot hold, and is
    /// told so.
    virtual std::optional<std::string> AskFileToWrite(std::string_view title, std::string_view name,
                                                      const std::vector<std::string>& kinds) = 0;
    /// Shows a dialog until it hides itself or the user closes it by its close box. What it became is to be
    /// asked of the form.
    virtual void ShowForm(Form& form) = 0;
};

} // namespace zy
