#include "SystemWorld.h"
#include "desktop/Desktop.h"
#include "desktop/MainWindowView.h"
#include "shell/Application.h"
#include "shell/Program.h"
#include "shell/mMain.h"

// The whole program, from the outside in: the operating system and the desktop that it runs on, the program
// itself, and the window that shows it. Start-up, mMain, finds out from the command line which editor the
// window opens with; from then on the window's events drive everything.

int main(int argc, char** argv) {
    zy::SystemWorld system(argc, argv);
    zy::Desktop desktop(system.codePage, system.files);
    desktop.starting.Connect([&] { system.ReadyForToolkit(); });

    return desktop.Run([&] {
        zy::Program program(system.Get(desktop.Get()));
        zy::LeaveCrashNotes(zy::VersionOf(zy::ThisApplication()), program.trace.Last());
        program.secretsAhead.Connect(zy::ForbidMemoryDumps);
        const zy::MainWindowView view(desktop, program.window);

        switch (zy::mMain(program)) {
        case zy::StartUp::WindowShown:
            program.TellOfCrash(zy::TakeCrashNote(system.codePage));
            if (system.IsWithoutBus()) {
                program.TellOfSilentBus();
            }
            return desktop.RunUntilClosed();
        case zy::StartUp::Ended:
            return 0;
        }
        return 0;
    });
}
