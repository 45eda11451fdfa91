#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Chance.h"
#include "Monkey.h"
#include "Screen.h"
#include "platform/memory/MemoryWorld.h"
#include "shell/Program.h"
#include "shell/mMain.h"

namespace zy::test {

/// One of the three editors, as far as a monkey has to know them.
struct MonkeyEditor {
    const char* argument;
    const char* path; ///< of its file
    Editor& (*of)(Program& program);
    void (*putFile)(MemoryWorld& world);
    std::vector<MenuItem*> (*menus)(MainMenu& menu);
};

std::ostream& operator<<(std::ostream& out, const MonkeyEditor& editor);
extern const std::vector<MonkeyEditor> kMonkeyEditors;

/// Boxes that a monkey answers.
class MonkeyDialogs final : public Dialogs {
  public:
    MonkeyDialogs(Chance& chance, Monkey& monkey) : chance_(chance), monkey_(monkey) {}

    void ShowMessage(std::string_view text, std::string_view title) override;
    bool AskYesNo(std::string_view text, std::string_view title, Escape escape) override;
    std::optional<std::string> AskFileToWrite(std::string_view title, std::string_view name,
                                              const std::vector<std::string>& kinds) override;
    void ShowForm(Form& form) override;

  private:
    Chance& chance_;
    Monkey& monkey_;
};

/// What came of the events of all sessions.
struct MonkeyCounts {
    std::size_t events = 0;
    std::size_t starts = 0;
    std::size_t saves = 0;
    std::size_t steps = 0;             ///< taken back at the end of a session
    std::map<int, std::size_t> errors; ///< run-time errors by their numbers
};

/// One user of one editor in a world of its own, who does what a seed says, while other programs and the disk
/// do what they like. After each event the program has to be as it should.
class MonkeySession {
  public:
    MonkeySession(const MonkeyEditor& editor, std::uint64_t seed, MonkeyCounts& counts);

    void Do(int events);
    /// All that was done is taken back and done again.
    void GoBackAndForth();
    std::string LastEvents() const { return chance_.LastEvents(); }

  private:
    void Act();
    void ActOutside();
    void ChangeFile();
    void MakeTrouble();
    void EndTrouble();
    void PassTime();

    /// Does something, at the end of which the program may be gone.
    template <typename Work>
    void Guarded(Work work);
    void Start();
    bool TryToStart();
    void NoteStart();
    void BreakOff();
    /// As an error does that nothing inside catches.
    void Fail(const RuntimeError& error);
    void NoteError(const RuntimeError& error);

    void ExpectSound();
    void ExpectSaved();
    bool ShowsAllOf(const RowTexts& rows) const;
    std::string FileBytes() const { return world_.files.Get(editor_.path).value_or(""); }
    EditSteps& Steps() { return editor_.of(*program_).Steps(); }

    const MonkeyEditor& editor_;
    MonkeyCounts& counts_;
    Chance chance_;
    Monkey monkey_{chance_};
    MemoryWorld world_;
    MonkeyDialogs dialogs_{chance_, monkey_};
    std::unique_ptr<Program> program_;
    std::unique_ptr<Screen> screen_;
    RowTexts start_; ///< the list that the steps begin with
    bool isClosed_ = false;
    bool isInTrouble_ = false;
    bool fileIsOthers_ = false; ///< it may hold anything
};

} // namespace zy::test
