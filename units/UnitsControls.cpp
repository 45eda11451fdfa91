#include "units/UnitsControls.h"

#include "units/UnitsFileText.h"

namespace zy {

UnitsControls::UnitsControls(Frame& fraUnits)
    : UpDownUnits(&fraUnits, "UpDownUnits", "Move unit"), grdUnits(&fraUnits, "grdUnits", kUnitsColumns),
      fraUnitFunction(&fraUnits, "fraUnitFunction"), cmdAddUNit(&fraUnitFunction, "cmdAddUNit", "Add", 'A'),
      cmdDeleteUnit(&fraUnitFunction, "cmdDeleteUnit", "Delete", 'D'),
      cmdSaveUnits(&fraUnitFunction, "cmdSaveUnits", "Save", 'S'),
      cmdHelpUnits(&fraUnitFunction, "cmdHelpUnits", "Help", 'p') {
    grdUnits.SetCaption("Units");
    grdUnits.block.SetGrowsByPaste(true);
    cmdDeleteUnit.SetEnabled(false);
}

} // namespace zy
