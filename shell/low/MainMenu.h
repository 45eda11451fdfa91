#pragma once

#include "controls/Menu.h"

namespace zy {

/// The menu bar and the context menus of the main window.
struct MainMenu {
    MainMenu();

    MenuItem mnuFile;
    MenuItem mnuSave;
    MenuItem mnuExit;

    MenuItem mnuEdit;
    MenuItem mnuUndo;
    MenuItem mnuRedo;
    MenuItem mnuSeparatorCut;
    MenuItem mnuCut;
    MenuItem mnuCopy;
    MenuItem mnuPaste;
    MenuItem mnuSeparatorSelect;
    MenuItem mnuSelectAll;
    MenuItem mnuSeparatorVersions;
    MenuItem mnuChanges;
    MenuItem mnuOthers;
    MenuItem mnuVersions;
    MenuItem mnuSeparatorRules;
    MenuItem mnuStandardRules;
    MenuItem mnuSavePictures;
    MenuItem mnuPrint;

    MenuItem mnuHelp;
    MenuItem mnuContents;
    MenuItem mnuIndex;
    MenuItem mnuSeperator5; // the separators' names are spelled so throughout
    MenuItem mnuWeb;
    MenuItem mnuWebProducts;
    MenuItem mnuWebAcademy;
    MenuItem mnuWebMentorDesk;
    MenuItem mnuSeperator6;
    MenuItem mnuWebHome;
    MenuItem mnuSeperator7;
    MenuItem mnuAbout;

    MenuItem mnuListPopMenu; ///< the rules list's
    MenuItem mnuStandardRulesOfList;
    MenuItem mnuSavePicturesOfList;
    MenuItem mnuPrintOfList;

    MenuItem mnuGridPopMenu; ///< the rules grid's
    MenuItem mnuAddRule;
    MenuItem mnuDeleteRule;

    MenuItem mnuSecuritypopMenu; ///< the users grid's
    MenuItem mnuAddUser;
    MenuItem mnuDeleteUser;
};

} // namespace zy
