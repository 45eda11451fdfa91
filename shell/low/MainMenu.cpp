#include "shell/MainMenu.h"

namespace zy {

MainMenu::MainMenu()
    : mnuFile("mnuFile", "&File"), mnuSave(mnuFile, "mnuSave", "&Save"), mnuExit(mnuFile, "mnuExit", "E&xit"),
      mnuEdit("mnuEdit", "&Edit"), mnuUndo(mnuEdit, "mnuUndo", "&Undo"), mnuRedo(mnuEdit, "mnuRedo", "&Redo"),
      mnuSeparatorCut(mnuEdit, "mnuSeparatorCut", MenuItem::kSeparator), mnuCut(mnuEdit, "mnuCut", "Cu&t"),
      mnuCopy(mnuEdit, "mnuCopy", "&Copy"), mnuPaste(mnuEdit, "mnuPaste", "&Paste"),
      mnuSeparatorSelect(mnuEdit, "mnuSeparatorSelect", MenuItem::kSeparator),
      mnuSelectAll(mnuEdit, "mnuSelectAll", "Select &All"),
      mnuSeparatorVersions(mnuEdit, "mnuSeparatorVersions", MenuItem::kSeparator),
      mnuChanges(mnuEdit, "mnuChanges", "U&nsaved Changes..."),
      mnuOthers(mnuEdit, "mnuOthers", "Changes by &Others..."),
      mnuVersions(mnuEdit, "mnuVersions", "&Earlier Versions..."),
      mnuSeparatorRules(mnuEdit, "mnuSeparatorRules", MenuItem::kSeparator),
      mnuStandardRules(mnuEdit, "mnuStandardRules", "Insert &Standard Rules..."),
      mnuSavePictures(mnuEdit, "mnuSavePictures", "Sa&ve Pictures..."),
      mnuPrint(mnuEdit, "mnuPrint", "Pr&int..."), mnuHelp("mnuHelp", "&Help"),
      mnuContents(mnuHelp, "mnuContents", "&Contents"), mnuIndex(mnuHelp, "mnuIndex", "&Index"),
      mnuSeperator5(mnuHelp, "mnuSeperator5", MenuItem::kSeparator),
      mnuWeb(mnuHelp, "mnuWeb", "Norvale on the &Web..."),
      mnuWebProducts(mnuWeb, "mnuWebProducts", "Products"),
      mnuWebAcademy(mnuWeb, "mnuWebAcademy", "Academy Web Based Training"),
      mnuWebMentorDesk(mnuWeb, "mnuWebMentorDesk", "Mentor Desk"),
      mnuSeperator6(mnuWeb, "mnuSeperator6", MenuItem::kSeparator),
      mnuWebHome(mnuWeb, "mnuWebHome", "Norvale Home Page"),
      mnuSeperator7(mnuHelp, "mnuSeperator7", MenuItem::kSeparator),
      mnuAbout(mnuHelp, "mnuAbout", "&About ZY Setup"), mnuListPopMenu("mnuListPopMenu", ""),
      mnuStandardRulesOfList(mnuListPopMenu, "mnuStandardRulesOfList", "Insert &Standard Rules..."),
      mnuSavePicturesOfList(mnuListPopMenu, "mnuSavePicturesOfList", "Sa&ve Pictures..."),
      mnuPrintOfList(mnuListPopMenu, "mnuPrintOfList", "Pr&int..."), mnuGridPopMenu("mnuGridPopMenu", ""),
      mnuAddRule(mnuGridPopMenu, "mnuAddRule", "&Add Rule"),
      mnuDeleteRule(mnuGridPopMenu, "mnuDeleteRule", "&Delete Rule"),
      mnuSecuritypopMenu("mnuSecuritypopMenu", ""), mnuAddUser(mnuSecuritypopMenu, "mnuAddUser", "Add User"),
      mnuDeleteUser(mnuSecuritypopMenu, "mnuDeleteUser", "Delete User") {}

} // namespace zy
