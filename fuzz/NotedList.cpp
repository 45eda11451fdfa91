#include "NotedList.h"

#include <algorithm>

#include "basics/SharedText.h"
#include "history/Bytes.h"

namespace zy::fuzz {
namespace {

constexpr std::string_view kFile = R"(C:\SYS\PAIRS)";
constexpr std::string_view kKind = "pairs";
constexpr char kBetween = '\t';
constexpr char kBehind = '\n';

/// Takes what stands in front of a mark, and the mark, off a text; all of it where there is none.
std::string TakeUpTo(char mark, std::string_view& text) {
    const auto end = std::min(text.find(mark), text.size());
    std::string front(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return front;
}

} // namespace

PairList::PairList(std::vector<Pair> pairs) : rows_(std::move(pairs)) {
    rows_.insert(rows_.begin(), Pair{"first", "second"});
}

std::string_view PairList::Text(int row, int column) const {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

void PairList::ReplaceRows(int first, int count, const RowTexts& rows) {
    std::vector<Pair> made;
    made.reserve(static_cast<std::size_t>(rows.Rows()));
    for (int row = 0; row < rows.Rows(); ++row) {
        made.push_back({std::string(rows.Text(row, 0)), std::string(rows.Text(row, 1))});
    }
    const auto place = rows_.erase(rows_.begin() + first, rows_.begin() + first + count);
    rows_.insert(place, made.begin(), made.end());
}

void PairList::Describe(Step& step) const {
    if (step.name.empty()) {
        step.name = "Change";
    }
}

template <typename Work>
void PairList::Change(int first, int removed, int added, Work work) {
    ToRecord().Changing(first, removed, added);
    work();
    ToRecord().Changed();
}

void PairList::Set(int row, int column, std::string text) {
    here_ = {row, column};
    Change(row, 1, 1, [&] { At(row).at(static_cast<std::size_t>(column)) = std::move(text); });
}

void PairList::Type(int row, int column, std::string text) {
    here_ = {row, column};
    ToRecord().Begin("Edit", "key");
    Set(row, column, std::move(text));
    ToRecord().End();
}

void PairList::Insert(int row, Pair pair) {
    Change(row, 0, 1, [&] { rows_.insert(rows_.begin() + row, std::move(pair)); });
    here_ = {row, 0};
}

void PairList::Remove(int row) {
    Change(row, 1, 0, [&] { rows_.erase(rows_.begin() + row); });
}

void PairList::Replace(int row, Pair pair) {
    ToRecord().Begin("Replace");
    Remove(row);
    if (row < Rows()) {
        Remove(row);
    }
    Insert(1, std::move(pair));
    ToRecord().End();
}

void PairSession::Restorer::ShowForm(Form& form) {
    auto& question = dynamic_cast<frmRecovery&>(form);
    if (question.cmdRestore.Enabled()) {
        question.cmdRestore.Click();
        restored = true;
    }
}

PairSession::PairSession(const LeftBehind& left)
    : file_(files_, std::string(kFile)), list(PairsIn(left.file)) {
    files_.Put(kFile, left.file);
    file_.TakeUp(Share(left.file));
    if (!left.journal.empty()) {
        journals_.Entries().push_back({std::string(kKind), left.journal, {}});
    }
    list.Start();
    recovery_.Begin({std::string(kKind), &file_}, list);
}

void PairSession::Save(std::optional<std::size_t> breakOffAfter) {
    auto text = FileText(list.List());
    list.BeginSave();
    const bool isWhole = !breakOffAfter || *breakOffAfter >= text.size();
    files_.Put(kFile, std::string_view(text).substr(0, breakOffAfter.value_or(text.size())));
    list.EndSave(isWhole ? SaveEnd::Whole : SaveEnd::Failed);
    list.MarkSaved(isWhole);
    file_.TakeUp(file_.Read());
}

void PairSession::SaveInVain() {
    list.BeginSave();
    list.EndSave(SaveEnd::Refused);
}

LeftBehind PairSession::BreakOff() {
    const auto& journals = journals_.Entries();
    return {files_.Get(kFile).value_or(""), journals.empty() ? "" : journals.back().bytes};
}

std::string PairSession::FileText(const std::vector<Pair>& pairs) {
    std::string text;
    for (const auto& pair : pairs) {
        text += pair[0] + kBetween + pair[1] + kBehind;
    }
    return text;
}

std::vector<Pair> PairSession::PairsIn(std::string_view file) {
    std::vector<Pair> pairs;
    while (!file.empty()) {
        auto line = TakeUpTo(kBehind, file);
        std::string_view rest = line;
        auto first = TakeUpTo(kBetween, rest);
        pairs.push_back({std::move(first), std::string(rest)});
    }
    return pairs;
}

std::string PairSession::HeaderFor(std::string_view file) {
    PairSession session({std::string(file), {}});
    session.list.Insert(1, {});
    return std::string(ReadPieces(session.BreakOff().journal).whole.front());
}

} // namespace zy::fuzz
