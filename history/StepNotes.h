#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "history/History.h"
#include "history/StepLog.h"

namespace zy {

/// What happened to a history, as it is noted down.
struct StepNote {
    enum class Kind : char {
        Push,
        Join,
        Append,
        List, ///< the list as it stands then, in place of whatever it was
        Redo, ///< of the step that the notes before lead to, as for Undo
        Undo,
    };

    Kind kind = Kind::Push;
    Step step; ///< nothing for Redo and Undo

    /// The rows of a list from one on.
    static StepNote OfList(const RowList& rows, int first);

    /// Nothing when the bytes are no note.
    static std::optional<StepNote> Of(std::string_view bytes);
    std::string Bytes() const;

    /// Does it to a list and its history. False, and nothing is done, when they are not those that it was
    /// noted of.
    bool Replay(RowList& rows, History& history) const;

  private:
    bool HasStep() const { return kind != Kind::Undo && kind != Kind::Redo; }
    /// A list is one change, that of all its rows.
    bool HasItsChanges() const { return kind != Kind::List || step.changes.size() == 1; }
    bool ReplayList(RowList& rows, History& history) const;
};

/// Notes down what happens to a history from here on, so that it can be done again to a list that is as this
/// one is now, and which has no history yet.
class StepNotes : public StepLog {
  public:
    using Take = std::function<void(const StepNote& note)>;

    explicit StepNotes(Take take) : take_(std::move(take)) {}

    /// The list as it is now is what the notes begin with from now on.
    void StartAnew();

    void Pushed(const Step& step) override;
    void Joined(const Step& part, bool vanishes) override;
    void Appended(const Step& part) override;
    void Undone(const Step& step) override;
    void Redone(const Step& step) override;

  private:
    bool NotePart(StepNote::Kind kind, const Step& part);
    void NotePush(const Step& step);

    Take take_;
    int depth_ = 0;  ///< how many steps of the notes can be taken back
    int undone_ = 0; ///< how many of them can be done again
    /// A step was taken back that was done before the notes begin: from then on each note stands for itself.
    bool isBeforeStart_ = false;
};

} // namespace zy
