#include "desktop/DesktopDialogs.h"

#include <wx/app.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>

#include <utility>

#include "desktop/DialogBinding.h"
#include "desktop/ShownText.h"

namespace zy {

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
                                                          std::string_view kind) {
    startToolkit_();
    gate_.PrepareForBox();
    const wxString files = "*." + ToShown(codePage_, kind);
    wxFileDialog dialog(wxTheApp->GetTopWindow(), ToShown(codePage_, title), "", ToShown(codePage_, name),
                        files + "|" + files, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    const int answer = dialog.ShowModal();
    gate_.Rethrow();
    if (answer != wxID_OK) {
        return std::nullopt;
    }
    wxString path = dialog.GetPath();
    path.Replace(wxFileName::GetPathSeparator(), "\\");
    auto inside = codePage_.FromUtf8(path.utf8_string());
    if (!inside) {
        ShowMessage("The name of the file or of a folder holds a character that cannot be used here", title);
    }
    return inside;
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
