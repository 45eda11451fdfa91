#pragma once

#include <functional>
#include <string_view>

#include "history/RowList.h"
#include "history/Step.h"

namespace zy {

/// Makes steps of the changes of a list, which tells of each before and after it is made. A change is a step
/// by itself, unless it is part of a deed: that is one step, with all that is changed until it ends.
///
/// A step copies the rows that were changed, and nothing else of the list.
class Recorder {
  public:
    using Here = std::function<StepPlace()>;
    using Take = std::function<void(Step step)>;

    /// `here` says where somebody works now, `take` is given each step that changed something; it has no name
    /// where no deed gave it one. The list must outlive the recorder, which begins to record with Start.
    Recorder(const RowList& rows, Here here, Take take);

    /// While it is stopped, whatever happens to the list is left out. No deed is open when it starts or
    /// stops.
    void Start() { isOn_ = true; }
    void Stop() { isOn_ = false; }

    /// A deed begins, or one inside another, which is part of it. Steps of one key can become one: see
    /// History.
    void Begin(std::string_view name, std::string_view key = {});
    void End();

    /// From `first` on, `removed` rows are about to go and `added` others to take their place.
    void Changing(int first, int removed, int added);
    /// That was done.
    void Changed();

  private:
    bool Extends(int first, int removed, int added) const;
    void Extend(int first, int count);
    /// Copies what has become of the rows that were changed last.
    void CompleteLast();
    void Finish();

    const RowList& rows_;
    Here here_;
    Take take_;
    bool isOn_ = false;
    int depth_ = 0; ///< how many deeds and changes have begun and not ended
    Step step_;
    int rowsAfter_ = 0;   ///< how many rows the last change of the step leaves
    bool isOpen_ = false; ///< what has become of them is not copied yet
};

} // namespace zy
