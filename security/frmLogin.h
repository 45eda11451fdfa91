#pragma once

#include <array>
#include <string>
#include <string_view>

#include "basics/Bool16.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "platform/CodePage.h"
#include "platform/Dialogs.h"
#include "shell/SettingsForm.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The dialog in which the administrator logs in. Only the administrator can; capitals or not, name and
/// password are taken as they are typed, blanks included.
///
/// One showing is one object: its flags say how it ended.
class frmLogin : public Form {
  public:
    /// The password in capitals.
    frmLogin(std::string_view adminPassword, TraceChannel& trace, Dialogs& dialogs, const CodePage& codePage);

    /// Starts without a cancel.
    void Form_Load();
    /// Hides the dialog after the right name and password. After wrong ones it says so and stays, the
    /// password selected for typing it again; there may be any number of attempts.
    void cmdOK_Click();
    /// Hides the dialog; a success before is taken back.
    void cmdCancel_Click();
    /// Gives the dialog its size and its controls their places, in twips.
    void Form_Resize();

    /// A correct login.
    Bool16 LoginSucceeded;
    /// The Cancel button was pressed. Neither flag is set when the dialog was closed by its close box.
    Bool16 CancelClicked;

    std::array<Label, 2> lblLabels; ///< of the name and of the password
    TextBox txtUserName;
    TextBox txtPassword;
    CommandButton cmdOK;
    CommandButton cmdCancel;

  private:
    void Start(std::string_view procedure);

    std::string adminPassword_;
    TraceChannel& trace_;
    Dialogs& dialogs_;
    const CodePage& codePage_;
};

/// How a login ended.
enum class LoginEnd {
    Succeeded,
    Cancelled, ///< by the Cancel button: the program is to end
    Closed,    ///< by the close box: the editor stays closed
};

/// The login before the users are shown: the dialog over the main window.
class AdminLogin {
  public:
    AdminLogin(SettingsForm& form, TraceChannel& trace, Dialogs& dialogs, const CodePage& codePage);

    /// Shows the dialog until it is done with. Meanwhile the main window, where it is shown already, takes no
    /// input. The password in capitals.
    LoginEnd Ask(std::string_view adminPassword);

  private:
    SettingsForm& form_;
    TraceChannel& trace_;
    Dialogs& dialogs_;
    const CodePage& codePage_;
};

} // namespace zy
