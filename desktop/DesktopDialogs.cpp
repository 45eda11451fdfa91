#include "desktop/DesktopDialogs.h"

#include <wx/app.h>
#include <wx/arrstr.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>

#include <utility>

#include "desktop/DialogBinding.h"
#include "desktop/Native.h"
#include "desktop/ShownText.h"
#include "shell/mZYGlobal.h"

namespace zy {
namespace {

wxArrayString EndingsOf(const std::vector<std::string>& kinds, const CodePage& codePage) {
    wxArrayString endings;
    for (const auto& kind : kinds) {
        endings.push_back(ToShown(codePage, kind));
    }
    return endings;
}

/// The kinds of files as the toolkit's dialog takes them, such as "SVG (*.svg)".
wxString ChoicesOf(const wxArrayString& endings) {
    wxString choices;
    for (const auto& ending : endings) {
        const wxString files = "*." + ending;
        choices << (choices.empty() ? "" : "|") << ending.Upper() << " (" << files << ")|" << files;
    }
    return choices;
}

} // namespace

DesktopDialogs::DesktopDialogs(const CodePage& codePage, EventGate& gate, std::function<void()> startToolkit)
    : codePage_(codePage), gate_(gate), startToolkit_(std::move(startToolkit)) {}

void DesktopDialogs::ShowMessage(std::string_view text, std::string_view title) {
    Show(text, title, wxOK);
}

bool DesktopDialogs::AskYesNo(std::string_view text, std::string_view title, Escape escape) {
    int answer = wxID_CANCEL;
    do {
        answer = Show(text, title, wxYES_NO | wxYES_DEFAULT);
    } while (answer == wxID_CANCEL && escape == Escape::IsIgnored);
    return answer == wxID_YES;
}

std::optional<std::string> DesktopDialogs::AskFileToWrite(std::string_view title, std::string_view name,
                                                          const std::vector<std::string>& kinds) {
    startToolkit_();
    gate_.PrepareForBox();
    const wxArrayString endings = EndingsOf(kinds, codePage_);
    wxFileDialog dialog(wxTheApp->GetTopWindow(), ToShown(codePage_, title), "", ToShown(codePage_, name),
                        ChoicesOf(endings), wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    LetNameFollowKind(dialog);
    const int answer = dialog.ShowModal();
    StopWatchingName(dialog);
    gate_.Rethrow();
    if (answer != wxID_OK) {
        return std::nullopt;
    }
    wxFileName chosen(dialog.GetPath());
    const bool isComplete = endings.Index(chosen.GetExt(), false) != wxNOT_FOUND;
    if (!isComplete) {
        chosen.SetFullName(chosen.GetFullName() + "." +
                           endings[static_cast<std::size_t>(dialog.GetFilterIndex())]);
    }
    wxString path = chosen.GetFullPath();
    path.Replace(wxFileName::GetPathSeparator(), "\\");
    auto inside = codePage_.FromUtf8(path.utf8_string());
    if (!inside) {
        ShowMessage("The name of the file or of a folder holds a character that cannot be used here", title);
    } else if (!isComplete && chosen.FileExists() && !AskToReplace(*inside, title)) {
        inside.reset();
    }
    return inside;
}

bool DesktopDialogs::AskToReplace(const std::string& path, std::string_view title) {
    // The toolkit has asked about the name without its ending, if at all.
    return AskYesNo(std::string(FileNameOf(path)) + " is there already. Replace it?", title,
                    Escape::AnswersNo);
}

void DesktopDialogs::ShowForm(Form& form) {
    startToolkit_();
    gate_.PrepareForBox();
    DialogBinding dialog(codePage_, gate_, form, wxTheApp->GetTopWindow());
    gate_.RunDialog([&dialog] { dialog.Run(); });
    gate_.Rethrow();
}

int DesktopDialogs::Show(std::string_view text, std::string_view title, long buttons) {
    startToolkit_();
    gate_.PrepareForBox();
    wxMessageDialog box(wxTheApp->GetTopWindow(), ToShown(codePage_, text), ToShown(codePage_, title),
                        buttons | wxICON_NONE);
    const bool tellsOfFailure = gate_.HasFailed();
    const int answer = box.ShowModal();
    if (!tellsOfFailure) {
        // Something failed while the box was open: whoever asked must not go on.
        gate_.Rethrow();
    }
    return answer;
}

} // namespace zy
