#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/memory/MemoryFileSystem.h"
#include "platform/memory/MemoryJournals.h"
#include "platform/memory/MemorySystemInfo.h"
#include "shell/EditSteps.h"
#include "shell/Recovery.h"

namespace zy::fuzz {

/// A row of such a list.
using Pair = std::array<std::string, 2>;

/// A list of rows of two texts that is edited step by step, below a header that is no part of it.
class PairList final : public EditSteps {
  public:
    explicit PairList(std::vector<Pair> pairs);

    // What somebody does. Rows are counted from 1, and must be there.
    void Set(int row, int column, std::string text);
    /// The same as one of several keys, which are one step together.
    void Type(int row, int column, std::string text);
    void Insert(int row, Pair pair);
    void Remove(int row);
    /// Removes a row and the one behind it, if there is one, and puts another in front of the list.
    void Replace(int row, Pair pair);

    int Pairs() const { return Rows() - 1; }
    /// Without the header.
    std::vector<Pair> List() const { return {rows_.begin() + 1, rows_.end()}; }

  protected:
    int Rows() const override { return static_cast<int>(rows_.size()); }
    int Columns() const override { return 2; }
    std::string_view Text(int row, int column) const override;
    void ReplaceRows(int first, int count, const RowTexts& rows) override;
    int FirstRow() const override { return 1; }
    StepPlace Here() const override { return here_; }
    void Describe(Step& step) const override;
    void Show(const StepPlace& place) override { here_ = place; }

  private:
    Pair& At(int row) { return rows_.at(static_cast<std::size_t>(row)); }
    template <typename Work>
    void Change(int first, int removed, int added, Work work);

    std::vector<Pair> rows_;
    StepPlace here_{1, 0};
};

/// What a program that was broken off leaves behind.
struct LeftBehind {
    std::string file;
    std::string journal;
};

/// A program that edits a file of pairs, from its start on. It restores what another one left in a journal.
class PairSession {
  public:
    explicit PairSession(const LeftBehind& left);

    /// A save that writes the whole file, or breaks off after so many of its bytes.
    void Save(std::optional<std::size_t> breakOffAfter = std::nullopt);
    /// One that does not begin to write.
    void SaveInVain();

    /// What is left if the program breaks off here; where it keeps several journals, with the newest.
    LeftBehind BreakOff();
    bool HasRestored() const { return dialogs_.restored; }

    static std::string FileText(const std::vector<Pair>& pairs);
    /// A file that was cut short ends in part of a pair.
    static std::vector<Pair> PairsIn(std::string_view file);
    /// The piece that a journal about such a file begins with.
    static std::string HeaderFor(std::string_view file);

  private:
    /// Chooses Restore wherever it is offered.
    struct Restorer final : Dialogs {
        void ShowMessage(std::string_view /*text*/, std::string_view /*title*/) override {}
        bool AskYesNo(std::string_view /*text*/, std::string_view /*title*/, Escape /*escape*/) override {
            return false;
        }
        std::optional<std::string> AskFileToWrite(std::string_view /*title*/, std::string_view /*name*/,
                                                  const std::vector<std::string>& /*kinds*/) override {
            return std::nullopt;
        }
        void ShowForm(Form& form) override;

        bool restored = false;
    };

    MemoryFileSystem files_{Windows1252()};
    MemoryJournals journals_;
    MemorySystemInfo system_;
    Restorer dialogs_;
    ListFile file_;

  public:
    PairList list; ///< stands behind what its steps are noted in

  private:
    Recovery recovery_{files_, journals_, system_, dialogs_};
};

} // namespace zy::fuzz
