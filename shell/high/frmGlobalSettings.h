#pragma once

#include <array>
#include <string_view>

#include "platform/Dialogs.h"
#include "shell/Editor.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"
#include "shell/mZYGlobal.h"

// The high part of the shell is what calls the editors: start-up, the main window's commands and its closing.
// It builds one Program from everything below it.

namespace zy {

class RulesPage;
class SubClasser;
class mRegistryEdit;

/// `frmGlobalSettings`: which page is shown, the menu, Save, Exit, and the question before closing.
class frmGlobalSettings {
  public:
    /// What it works with.
    struct Parts {
        SettingsForm& form;
        SharedState& state;
        TraceChannel& trace;
        Dialogs& dialogs;
        RulesPage& rules;
        Editor& security;
        Editor& units;
        mRegistryEdit& placement;
        SubClasser& minSize;
    };

    explicit frmGlobalSettings(const Parts& parts);

    /// Loads the window when it is not loaded yet: its load handler runs once.
    void Load();
    /// Shows one editor's page and fills it.
    void ShowRules();
    void ShowSecurity();
    void ShowUnits();
    /// Shows the rules page as its list with the details of one rule, to be filled by the page.
    void ShowListMode();
    /// Shows the rules page as its grid, filled. Nothing in the program calls it.
    void ShowGridMode();
    /// Brings the loaded window to the screen.
    void Show();

    /// Asks before leaving without saving and unloads on Yes. No entry or button calls it.
    void ConfirmExit();
    /// Closes the window after asking about unsaved changes. False when a failed check or a refused save
    /// keeps it open.
    bool Unload();

    void Form_Load();
    void Form_Resize();
    /// False cancels the closing.
    bool Form_Unload();
    void mnuSave_Click();
    void mnuExit_Click();

    SettingsForm& Form() { return parts_.form; }
    /// The editor that is asked to save and to close; null before one is in charge.
    Editor* EditorInCharge() const;

    MainMenu& menu; ///< the form's
    /// The window is gone; the program ends.
    Event<> unloaded;
    /// The program breaks off: the system ends it, or an error that it cannot go on from.
    Event<> ending;
    /// The user is not doing anything at the moment.
    Event<> idle;
    /// The user has come to the window, maybe from another program.
    Event<> activated;
    /// The user asks for the other part of the window, by the key that the desktops have for that.
    Event<> otherPart;

  private:
    /// An editor, the flag that puts it in charge, and its name in the traces.
    struct Mode {
        Bool16 SharedState::*flag;
        std::string_view name;
        Editor* editor;
    };

    /// Of several in charge the first.
    const Mode* InCharge() const;
    void ShowFrame(const Frame& frame);
    void Trace(std::string_view procedure, std::string_view message);
    bool WantsToSave();
    /// False when the editor keeps the window open.
    bool Leave(const Mode& mode);

    Parts parts_;
    std::array<Mode, 3> modes_;
    bool loaded_ = false;
};

} // namespace zy
