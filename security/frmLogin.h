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

    void Form_Load();
    void cmdOK_Click();
    void cmdCancel_Click();
    /// Gives the dialog its size and its controls their places.
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

} // namespace zy
