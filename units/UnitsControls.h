#pragma once

#include "controls/CommandButton.h"
#include "controls/Grid.h"
#include "controls/UpDown.h"

namespace zy {

/// The controls of the units page, in tab order.
struct UnitsControls {
    explicit UnitsControls(Frame& fraUnits);

    UpDown UpDownUnits;
    Grid grdUnits;
    Frame fraUnitFunction;
    CommandButton cmdAddUNit; // spelled so throughout
    CommandButton cmdDeleteUnit;
    CommandButton cmdSaveUnits;
    CommandButton cmdHelpUnits;
};

} // namespace zy
