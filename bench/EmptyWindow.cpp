#include <wx/app.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/menu.h>

// The least that a program with a window of our kind can do: a frame with a menu bar, a status bar and a
// grid, all empty. Start-up and memory are measured against it.

namespace {

class EmptyWindow final : public wxApp {
  public:
    bool OnInit() override {
        constexpr int kWidth = 800;
        constexpr int kHeight = 640;
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Empty", wxDefaultPosition, {kWidth, kHeight});
        auto* menus = new wxMenuBar;
        for (const char* title : {"File", "Help"}) {
            auto* menu = new wxMenu;
            menu->Append(wxID_ANY, "Entry");
            menus->Append(menu, title);
        }
        frame->SetMenuBar(menus);
        frame->CreateStatusBar();
        auto* grid = new wxGrid(frame, wxID_ANY);
        grid->CreateGrid(0, 6);
        frame->Show();
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP(EmptyWindow);
