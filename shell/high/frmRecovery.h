#pragma once

#include <string>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/Form.h"

namespace zy {

/// The question what is to become of changes that an earlier session could not save. Enter restores them
/// where that can be done; Escape and the close box leave the question for the next time.
class frmRecovery : public Form {
  public:
    enum class Answer { Restore, Discard, NotNow };

    /// What there is to say, its first line as a heading.
    frmRecovery(const std::string& heading, const std::string& text, bool canRestore);

    /// Gives the box its size, its controls their places, in twips.
    void Form_Resize();
    Answer Chosen() const { return chosen_; }

    TextLabel lblHeading;
    TextLabel lblText;
    CommandButton cmdRestore;
    CommandButton cmdDiscard;
    CommandButton cmdNotNow;

  private:
    void Choose(Answer answer);

    Answer chosen_ = Answer::NotNow;
};

} // namespace zy
