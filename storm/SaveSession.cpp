#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "basics/RuntimeError.h"
#include "platform/memory/MemoryWorld.h"
#include "platform/posix/PosixWorld.h"
#include "shell/Program.h"
#include "shell/frmRecovery.h"
#include "shell/mMain.h"

// save_session @RULES|@SECURITY|@UNITS [mark]: one session of an editor, without a window, over the real
// files, notes, earlier versions, recycle bin and registry. Restores what an earlier session has left; puts
// the mark into the first record; saves, where there are records; closes. Says on standard output what
// happens, one line each:
//
//   restored    the notes of an earlier session were found, and taken up
//   saving      the save begins
//   said TEXT   what the status bar says behind the save; then waits for a line or the end of its input
//   box TEXT    a message box, answered by its first button
//   closed      the window is gone in good order
//
// The status is 1 after a run-time error.

namespace zy::storm {
namespace {

void Say(std::string_view what, std::string_view text = {}) {
    std::string line(text);
    for (auto& character : line) {
        character = character == '\r' || character == '\n' ? ' ' : character;
    }
    // Whoever kills the session sees it too.
    std::cout << what << (line.empty() ? "" : " ") << line << std::endl;
}

/// Gives whoever started the session the time to look at what it left so far.
void WaitForLine() {
    std::string line;
    std::getline(std::cin, line);
}

/// Says what the boxes say, and answers them as somebody does who wants to save what was done.
class SayingDialogs final : public Dialogs {
  public:
    void ShowMessage(std::string_view text, std::string_view /*title*/) override { Say("box", text); }
    bool AskYesNo(std::string_view text, std::string_view /*title*/, Escape /*escape*/) override {
        Say("box", text);
        return true;
    }
    std::optional<std::string> AskFileToWrite(std::string_view /*title*/, std::string_view /*name*/,
                                              const std::vector<std::string>& /*kinds*/) override {
        return std::nullopt;
    }
    void ShowForm(Form& form) override {
        if (auto* question = dynamic_cast<frmRecovery*>(&form)) {
            if (question->cmdRestore.Enabled()) {
                Say("restored");
                question->cmdRestore.Click();
            } else {
                Say("box", question->lblText.Caption());
            }
        }
    }
};

class SaveSession {
  public:
    SaveSession(const World& world, std::string argument) : argument_(std::move(argument)), program_(world) {}

    void Run(std::string_view mark) {
        if (mMain(program_) != StartUp::WindowShown) {
            throw RuntimeError(kInvalidArgument, "there is no editor " + argument_);
        }
        BeIdle();
        if (HasRecords()) {
            Save(mark);
        }
        Say("said", program_.form.zyStatusBar.Text());
        WaitForLine();
        if (program_.window.Unload()) {
            Say("closed");
        }
    }

    /// What the system does before an error ends the program.
    void BreakOff() { program_.window.ending.Raise(); }

  private:
    void BeIdle() { program_.window.idle.Raise(); }

    bool IsOfRules() const { return argument_ == "@RULES"; }
    /// Of users or units.
    Grid& TheGrid() {
        return argument_ == "@UNITS" ? program_.unitsPage.controls.grdUnits
                                     : program_.securityPage.controls.grdSecurity;
    }
    /// A list that came out empty is none that anybody would save over a file.
    bool HasRecords() {
        return IsOfRules() ? program_.rules.gaRules.UBound() > 0 : TheGrid().cells.Rows() > 1;
    }

    void Save(std::string_view mark) {
        if (!mark.empty()) {
            PutIntoFirstRecord(mark);
            BeIdle();
        }
        Say("saving");
        program_.window.menu.mnuSave.Click();
        BeIdle();
    }

    void PutIntoFirstRecord(std::string_view mark) {
        if (IsOfRules()) {
            auto& page = program_.rulesPage.controls;
            page.lstRulesList.Pick(1);
            page.txtDescription.Enter(mark);
            return;
        }
        auto& grid = TheGrid();
        grid.Pick(1, 0);
        grid.TypeOver(mark);
        grid.editor.Commit();
    }

    std::string argument_;
    Program program_;
};

int Run(char** arguments, std::string_view mark) {
    PosixWorld system(2, arguments); // what the editor takes for its command line
    MemoryWorld rest;
    SayingDialogs dialogs;
    const World world =
        rest.With(system.files, system.system, system.recycleBin, system.registry, system.journals, dialogs);
    SaveSession session(world, arguments[1]);
    try {
        session.Run(mark);
        return 0;
    } catch (const RuntimeError& error) {
        session.BreakOff();
        Say("box", error.BoxText());
        return 1;
    }
}

} // namespace
} // namespace zy::storm

int main(int argumentCount, char** arguments) {
    if (argumentCount < 2 || argumentCount > 3) {
        std::cerr << "save_session @RULES|@SECURITY|@UNITS [mark]\n";
        return 2;
    }
    return zy::storm::Run(arguments, argumentCount == 3 ? arguments[2] : "");
}
