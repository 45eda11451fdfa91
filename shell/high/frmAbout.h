#pragma once

#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Decoration.h"
#include "controls/Form.h"
#include "controls/LinkLabel.h"
#include "platform/ShellLinks.h"
#include "shell/Application.h"
#include "shell/TraceChannel.h"

namespace zy {

/// The About box: what the program is and how to reach its maker.
class frmAbout : public Form {
  public:
    frmAbout(Application application, TraceChannel& trace, ShellLinks& links);

    /// Fills the labels.
    void Form_Load();
    void lblWebsite_Click();
    void lblEmail_Click();
    void cmdOk_Click();
    /// Gives the box its size, its controls their places.
    void Form_Resize();

    Picture Image1;
    TextLabel lblAppTitle;
    TextLabel lblVersion;
    Line Line1;
    TextLabel lblCompanyInfo;
    LinkLabel lblWebsite;
    LinkLabel lblEmail;
    Line Line2;
    CommandButton cmdOk;

  private:
    void Start(std::string_view procedure);
    void Open(const std::string& link);

    Application application_;
    TraceChannel& trace_;
    ShellLinks& links_;
};

} // namespace zy
