#include "security/frmLogin.h"

#include <algorithm>

namespace zy {

frmLogin::frmLogin(std::string_view adminPassword, TraceChannel& trace, Dialogs& dialogs,
                   const CodePage& codePage)
    : Form("frmLogin"), lblLabels{Label(this, "lblLabels", "&User Name:", 'U', txtUserName),
                                  Label(this, "lblLabels", "&Password:", 'P', txtPassword)},
      txtUserName(this, "txtUserName"), txtPassword(this, "txtPassword"), cmdOK(this, "cmdOK", "OK"),
      cmdCancel(this, "cmdCancel", "Cancel"), adminPassword_(adminPassword), trace_(trace), dialogs_(dialogs),
      codePage_(codePage) {
    SetCaption("ZY Setup Security Login");
    txtPassword.SetPasswordChar('*');
    SetKeyButtons(&cmdOK, &cmdCancel);
    cmdOK.click.Connect([this] { cmdOK_Click(); });
    cmdCancel.click.Connect([this] { cmdCancel_Click(); });
    resize.Connect([this] { Form_Resize(); });
}

void frmLogin::Start(std::string_view procedure) {
    trace_.DebugTrace("frmLogin", procedure, "Start");
}

void frmLogin::Form_Load() {
    Start("Form_Load");
    CancelClicked = false;
}

void frmLogin::cmdOK_Click() {
    Start("cmdOK_Click");
    const auto password = codePage_.UCase(txtPassword.Text());
    const auto userName = codePage_.UCase(txtUserName.Text());
    if (password == adminPassword_ && userName == "ADMIN") {
        LoginSucceeded = true;
        SetVisible(false);
        return;
    }
    // The same words for a wrong name: nobody learns which of the two was wrong.
    dialogs_.ShowMessage("Invalid Password, try again!", "Login");
    txtPassword.SetFocus();
    txtPassword.Select(0, txtPassword.Text().size());
}

void frmLogin::cmdCancel_Click() {
    Start("cmdCancel_Click");
    LoginSucceeded = false;
    CancelClicked = true;
    SetVisible(false);
}

void frmLogin::Form_Resize() {
    constexpr int kMargin = 180;
    constexpr int kGap = 120;
    constexpr int kBoxWidth = 2700;
    const int labels = std::max(lblLabels[0].Preferred().width, lblLabels[1].Preferred().width);
    const int boxes = kMargin + labels + kGap;
    const int width =
        std::max({CommandButton::kUsualWidth, cmdOK.Preferred().width, cmdCancel.Preferred().width});
    // In large print the two buttons need more room than the rows above them.
    const int right = std::max(boxes + kBoxWidth, kMargin + 2 * width + kGap);
    int top = kMargin;
    const auto placeRow = [&](Label& label, TextBox& box) {
        const int height = box.Preferred().height;
        const int labelHeight = label.Preferred().height;
        label.SetBounds({kMargin, top + (height - labelHeight) / 2, labels, labelHeight});
        box.SetBounds({boxes, top, right - boxes, height});
        top += height + kGap;
    };
    placeRow(lblLabels[0], txtUserName);
    placeRow(lblLabels[1], txtPassword);

    const int height = std::max(cmdOK.Preferred().height, cmdCancel.Preferred().height);
    top += kGap;
    cmdCancel.SetBounds({right - width, top, width, height});
    cmdOK.SetBounds({right - 2 * width - kGap, top, width, height});
    SetBounds({0, 0, right + kMargin, top + height + kMargin});
}

AdminLogin::AdminLogin(SettingsForm& form, TraceChannel& trace, Dialogs& dialogs, const CodePage& codePage)
    : form_(form), trace_(trace), dialogs_(dialogs), codePage_(codePage) {}

LoginEnd AdminLogin::Ask(std::string_view adminPassword) {
    frmLogin login(adminPassword, trace_, dialogs_, codePage_);
    form_.SetEnabled(!form_.Visible());
    login.Form_Load();
    login.SetVisible(true);
    dialogs_.ShowForm(login);
    form_.SetEnabled(true);
    if (login.LoginSucceeded) {
        return LoginEnd::Succeeded;
    }
    return login.CancelClicked ? LoginEnd::Cancelled : LoginEnd::Closed;
}

} // namespace zy
