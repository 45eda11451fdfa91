#include "shell/frmAbout.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "basics/Text.h"
#include "shell/Maker.h"

namespace zy {
namespace {

std::string VersionText(const Application& application) {
    return std::to_string(application.majorVersion) + "." + std::to_string(application.minorVersion) +
           " Build " + std::to_string(application.revision);
}

/// The contact lines, as the box has always shown them: with a blank behind the name.
std::string CompanyInfo() {
    std::string text = std::string(kMakerName) + " ";
    for (const auto line : kMakerAddress) {
        text.append(kLineEnd).append(line);
    }
    text.append(kLineEnd).append("Tel: ").append(kMakerTelephone);
    text.append(kLineEnd).append("Fax: ").append(kMakerFax);
    return text;
}

} // namespace

frmAbout::frmAbout(Application application, TraceChannel& trace, ShellLinks& links)
    : Form("frmAbout"), Image1(this, "Image1"), lblAppTitle(this, "lblAppTitle", TextLabel::Style::Heading),
      lblVersion(this, "lblVersion"), Line1(this, "Line1"), lblCompanyInfo(this, "lblCompanyInfo"),
      lblWebsite(this, "lblWebsite"), lblEmail(this, "lblEmail"), Line2(this, "Line2"),
      cmdOk(this, "cmdOk", "OK"), application_(std::move(application)), trace_(trace), links_(links) {
    SetKeyButtons(&cmdOk, &cmdOk);
    lblWebsite.click.Connect([this] { lblWebsite_Click(); });
    lblEmail.click.Connect([this] { lblEmail_Click(); });
    cmdOk.click.Connect([this] { cmdOk_Click(); });
    resize.Connect([this] { Form_Resize(); });
}

void frmAbout::Start(std::string_view procedure) {
    trace_.DebugTrace("frmAbout", procedure, "Start");
}

void frmAbout::Form_Load() {
    Start("Form_Load");
    SetCaption("About " + application_.title);
    lblAppTitle.SetCaption(application_.title);
    lblVersion.SetCaption(VersionText(application_));
    lblCompanyInfo.SetCaption(CompanyInfo());
    lblWebsite.SetCaption(std::string(kMakerWebSite));
    lblEmail.SetCaption(std::string(kMakerSupport));
    cmdOk.SetFocus();
}

void frmAbout::Open(const std::string& link) {
    constexpr int kShowHidden = 0; // kept; the menu's web pages open with the normal command, 1
    // Where neither browser nor mail program starts, nothing is said: it is the desktop's to say so.
    static_cast<void>(
        links_.Open({.owner = LinkOwner::None, .verb = "OPEN", .target = link, .showCommand = kShowHidden}));
}

void frmAbout::lblWebsite_Click() {
    Start("lblWebsite_Click");
    Open(lblWebsite.Caption());
}

void frmAbout::lblEmail_Click() {
    Start("lblEmail_Click");
    // Kept: mail programs get the title as it is, without escapes.
    Open("mailto:" + lblEmail.Caption() + "?Subject=" + application_.title + "&Body=");
}

void frmAbout::cmdOk_Click() {
    Start("cmdOk_Click");
    SetVisible(false);
}

void frmAbout::Form_Resize() {
    constexpr int kMargin = 240;
    constexpr int kGap = 180;
    constexpr int kRowGap = 60;
    constexpr int kPictureSize = 1440;
    constexpr int kLineHeight = 30;
    const int texts = kMargin + kPictureSize + kGap;
    int width = 0;
    int top = kMargin;
    const auto placeTexts = [&](std::initializer_list<Control*> labels) {
        for (auto* label : labels) {
            const auto& needed = label->Preferred();
            label->SetBounds({texts, top, needed.width, needed.height});
            width = std::max(width, texts + needed.width + kMargin);
            top += needed.height + kRowGap;
        }
    };
    Image1.SetBounds({kMargin, kMargin, kPictureSize, kPictureSize});
    placeTexts({&lblAppTitle, &lblVersion});
    const int firstLine = top + kRowGap;
    top = firstLine + kLineHeight + 2 * kRowGap;
    placeTexts({&lblCompanyInfo});
    top += kRowGap;
    placeTexts({&lblWebsite, &lblEmail});
    const int secondLine = std::max(top, kMargin + kPictureSize) + kGap;
    Line1.SetBounds({texts, firstLine, width - kMargin - texts, kLineHeight});
    Line2.SetBounds({kMargin, secondLine, width - 2 * kMargin, kLineHeight});

    const int buttonWidth = std::max(CommandButton::kUsualWidth, cmdOk.Preferred().width);
    const int buttonHeight = cmdOk.Preferred().height;
    top = secondLine + kLineHeight + kGap;
    cmdOk.SetBounds({width - kMargin - buttonWidth, top, buttonWidth, buttonHeight});
    SetBounds({0, 0, width, top + buttonHeight + kMargin});
}

} // namespace zy
