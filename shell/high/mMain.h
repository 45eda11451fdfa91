#pragma once

namespace zy {

class Program;

/// How start-up left the program.
enum class StartUp {
    WindowShown, ///< the window's events drive all further work
    Ended,       ///< nothing is on the screen and nothing more is to be done
};

/// Starts the program: finds the files, then opens the one editor that the command line names. Any other
/// command line ends the program without a word.
StartUp mMain(Program& program);

} // namespace zy
