#pragma once

#include <string>

#include "basics/Bool16.h"
#include "platform/NativeWindow.h"

// The low part of the shell is what the editors call: the shared state, the utilities, the trace channel and
// the part of the main window that all of them write to. It owns no window and calls platform/, controls/ and
// basics/.

namespace zy {

/// The state that the whole program shares: one object, given to whoever works with it. Starts empty and
/// False.
struct SharedState {
    std::string gsSystemDir; ///< the system directory, always with a closing "\"
    std::string
        gsRulesFile; ///< the rules file; for reference alone, the rules writer asks the settings library
    std::string gsSecurityFile; ///< the user table, as its location file names it
    std::string gsUnitsFile;    ///< the units file

    // The editor in charge: none until start-up has dispatched, then one for the whole run.
    Bool16 gbRulesMode;
    Bool16 gbSecurityMode;
    Bool16 gbUnitsMode;

    /// Unsaved changes of the editors' records. Only the users editor asks it before closing.
    Bool16 gbChanged;

    /// The main window's own procedure, while another one is in its place; none at other times.
    WindowProcedure glOldWndProc;
};

} // namespace zy
