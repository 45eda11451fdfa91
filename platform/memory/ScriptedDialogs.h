#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Dialogs.h"

namespace zy {

enum class Answer { Yes, No };

/// A message box, as it was shown.
struct ShownBox {
    std::string text;
    std::string title;
    /// What Escape does in a Yes/No box; nothing for a box with OK only.
    std::optional<Escape> escape;

    bool operator==(const ShownBox&) const = default;
};

std::ostream& operator<<(std::ostream& out, const ShownBox& box);

/// Message boxes that a test answers by a script: it says beforehand which boxes come, in their order.
///
/// A box that is not the next one of the script, and a box of the script that never comes, are failures;
/// Failures() lists them. A script that goes out of scope with failures nobody has asked for ends the
/// process, so that no test passes over them.
class ScriptedDialogs final : public Dialogs {
  public:
    ScriptedDialogs() = default;
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ~ScriptedDialogs() override;

    void ShowMessage(std::string_view text, std::string_view title) override;
    /// A box that is not the next one of the script is answered by No.
    bool AskYesNo(std::string_view text, std::string_view title, Escape escape) override;
    /// A question that is not the next one of the script is answered by nothing.
    std::optional<std::string> AskFileToWrite(std::string_view title, std::string_view name,
                                              const std::vector<std::string>& kinds) override;
    /// A dialog that is not the next one of the script is closed at once.
    void ShowForm(Form& form) override;

    void ExpectMessage(std::string_view text, std::string_view title);
    /// Without `escape` either kind of box will do.
    void ExpectYesNo(std::string_view text, std::string_view title, Answer answer,
                     std::optional<Escape> escape = std::nullopt);

    /// The question for a file to be written that begins with this name, and its answer.
    void ExpectFileToWrite(std::string_view title, std::string_view name, std::optional<std::string> path);
    /// A dialog, in which `user` does what is to be done; then, unless the dialog has hidden itself, it is
    /// closed by its close box. The boxes that come meanwhile are expected behind it.
    void ExpectForm(std::function<void(Form&)> user);

    /// Every box shown so far, expected or not, in their order.
    const std::vector<ShownBox>& Shown() const { return shown_; }
    /// One text for each unexpected box and for each box of the script that has not come. Asking is taken as
    /// having looked: both are then forgotten.
    std::vector<std::string> Failures();

  private:
    struct Expected {
        std::string text;
        std::string title;
        bool asks;
        Answer answer;
        std::optional<Escape> escape;
        std::function<void(Form&)> user;                ///< of a dialog
        std::optional<std::string> path = std::nullopt; ///< chosen

        bool Matches(const ShownBox& box) const;
        std::string Describe() const;
    };

    /// Records the box and takes it off the script; nothing when it was not expected.
    std::optional<Expected> Show(ShownBox box);

    std::deque<Expected> script_;
    std::vector<ShownBox> shown_;
    std::vector<std::string> unexpected_;
};

} // namespace zy
