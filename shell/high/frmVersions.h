#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "shell/RecordChanges.h"

namespace zy {

/// The earlier versions of a list, and what differs between the chosen one and the list as it stands.
class frmVersions : public Form {
  public:
    /// One line of the list: when the version was replaced, and how many records it has.
    struct Line {
        std::string time;
        std::string records;
    };
    /// What the user may ask for: the line of a version that is seen for the first time, and the differences
    /// of one.
    struct Source {
        std::function<Line(int version)> line;
        std::function<RecordChanges(int version)> changes;
    };

    /// What there is to say, the number of versions, and where their texts come from. Versions count from 1.
    frmVersions(const ListRecords& records, const std::string& text, int versions, Source source);

    void Form_Resize();
    void lstVersions_ItemClick();
    /// The version to be restored; 0 for none.
    int Chosen() const { return chosen_; }

    TextLabel lblText;
    Frame fraVersions;
    ListView lstVersions;
    Frame fraChanges;
    ListView lstChanges;
    CommandButton cmdRestore;
    CommandButton cmdClose;

  private:
    const Line& LineOf(int version);

    Source source_;
    std::vector<Line> lines_; ///< empty texts where nobody has looked yet
    RecordChanges changes_;
    int chosen_ = 0;
};

} // namespace zy
