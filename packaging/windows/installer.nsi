; The installer, made by packaging/windows/build: makensis -DVERSION=1.0.0 -DMAKER=... -DSITE=... -DBITS32=folder -DBITS64=folder
; -DFILES=list.nsh -DICON=file.ico -DOUT=file.exe installer.nsi
;
; It installs for all users or, where somebody has no rights or wants it so, for one. Run again it updates and repairs: what
; an installer before has installed is removed first, by its own uninstaller. Settings and notes of the users are no part of it.
;
; Without questions: /S [/ALLUSERS | /CURRENTUSER] [/BITS=32 | /BITS=64] [/D=folder]. Exit status 2: /ALLUSERS without the
; rights for it, or 64 bits on a Windows of 32; 3: the program is running.

Unicode true
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel highest
SetCompressor /SOLID lzma
SetDateSave on

!include MUI2.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include FileFunc.nsh
!include x64.nsh
!include "${FILES}"

!define NAME "ZY Setup"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\zyGlobal"
!define RUNNING "${NAME} is open. Close its windows first."

Name "${NAME}"
Caption "${NAME} ${VERSION} Installer"
UninstallCaption "Remove ${NAME}"
OutFile "${OUT}"
BrandingText "${NAME} ${VERSION}"
InstallDir ""
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} Installer"
VIAddVersionKey "CompanyName" "${MAKER}"
VIAddVersionKey "LegalCopyright" "Copyright ${YEAR} ${MAKER}"

Var ForAll      ; 1 or 0
Var Bits        ; 64 or 32
Var GivenFolder ; that of /D
Var MayForAll   ; 1 when the user has the rights
Var AllButton
Var MeButton
Var Button32
Var Button64

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
Page custom ShowChoices LeaveChoices
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_INSTFILESPAGE_FINISHHEADER_TEXT "${NAME} is installed"
!define MUI_INSTFILESPAGE_FINISHHEADER_SUBTEXT "Its editors stand in the Start menu, under ${NAME}."
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; The rest of the script writes to the places of all users or of this one.
!macro UseContext
  ${If} $ForAll == 1
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
!macroend

!macro UseRegistry
  ${If} ${RunningX64}
    SetRegView 64
  ${EndIf}
!macroend

; Ends with status 3 where the program is running: its file cannot be written then.
!macro StopWhereRunning
  ${Do}
    ClearErrors
    ${IfNot} ${FileExists} "$INSTDIR\zyGlobal.exe"
      ${Break}
    ${EndIf}
    FileOpen $0 "$INSTDIR\zyGlobal.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${RUNNING}" /SD IDCANCEL IDCANCEL`
      SetErrorLevel 3
      Quit
    ${EndIf}
  ${Loop}
!macroend

; Where the product's settings stand, there the product is; where there are none, it is more likely of 32 bits.
Function GuessBits
  StrCpy $Bits 32
  ${If} ${RunningX64}
    ${DisableX64FSRedirection}
    ${If} ${FileExists} "$WINDIR\System32\ZYRules.sys"
    ${OrIf} ${FileExists} "$WINDIR\System32\ZYUNITS.SYS"
    ${OrIf} ${FileExists} "$WINDIR\System32\ZYSECURE.DBF"
      StrCpy $Bits 64
    ${EndIf}
    ${If} ${FileExists} "$WINDIR\SysWOW64\ZYRules.sys"
    ${OrIf} ${FileExists} "$WINDIR\SysWOW64\ZYUNITS.SYS"
    ${OrIf} ${FileExists} "$WINDIR\SysWOW64\ZYSECURE.DBF"
      StrCpy $Bits 32
    ${EndIf}
    ${EnableX64FSRedirection}
  ${EndIf}
FunctionEnd

; The folder of /D, else the one where it is installed already, else the usual one.
Function ChooseFolder
  !insertmacro UseContext
  ${If} $GivenFolder != ""
    StrCpy $INSTDIR $GivenFolder
    Return
  ${EndIf}
  ReadRegStr $INSTDIR SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $INSTDIR != ""
    Return
  ${EndIf}
  ${If} $ForAll == 0
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${NAME}"
  ${ElseIf} $Bits == 64
    StrCpy $INSTDIR "$PROGRAMFILES64\${NAME}"
  ${Else}
    StrCpy $INSTDIR "$PROGRAMFILES32\${NAME}"
  ${EndIf}
FunctionEnd

; What the command line wants, else what was installed before, else what is most likely right.
Function ChooseUsers
  UserInfo::GetAccountType
  Pop $0
  StrCpy $MayForAll 0
  ${If} $0 == "Admin"
    StrCpy $MayForAll 1
  ${EndIf}
  StrCpy $ForAll $MayForAll
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 == ""
  ${AndIf} $1 != ""
    StrCpy $ForAll 0
  ${EndIf}
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/CURRENTUSER" $0
  ${IfNot} ${Errors}
    StrCpy $ForAll 0
  ${EndIf}
  ClearErrors
  ${GetOptions} $R0 "/ALLUSERS" $0
  ${IfNot} ${Errors}
    ${If} $MayForAll == 0
      MessageBox MB_OK|MB_ICONSTOP "Only an administrator can install ${NAME} for all users." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    StrCpy $ForAll 1
  ${EndIf}
FunctionEnd

Function ChooseBits
  !insertmacro UseContext
  Call GuessBits
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "Bits"
  ${If} $0 != ""
    StrCpy $Bits $0
  ${EndIf}
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/BITS=" $0
  ${IfNot} ${Errors}
    StrCpy $Bits $0
  ${EndIf}
  ${If} $Bits != 32
    ${If} $Bits != 64
    ${OrIfNot} ${RunningX64}
      MessageBox MB_OK|MB_ICONSTOP "This Windows runs no programs of $Bits bits." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
  ${EndIf}
FunctionEnd

Function .onInit
  !insertmacro UseRegistry
  StrCpy $GivenFolder $INSTDIR
  Call ChooseUsers
  Call ChooseBits
  Call ChooseFolder
FunctionEnd

Function ShowChoices
  !insertmacro MUI_HEADER_TEXT "Which ${NAME}" "For whom it is installed, and which settings it edits"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 10u "For whom:"
  Pop $0
  ${NSD_CreateRadioButton} 8u 13u 95% 11u "&All users of this computer"
  Pop $AllButton
  ${NSD_AddStyle} $AllButton ${WS_GROUP}
  ${NSD_CreateRadioButton} 8u 26u 95% 11u "&Me alone, which needs no rights"
  Pop $MeButton
  ${NSD_CreateLabel} 0 48u 100% 36u "Take the width that the SPC product has: Windows shows programs of 32 bits another system directory and another part of the registry than those of 64 bits, so only the editor of the product's own kind edits the files that the product reads."
  Pop $0
  ${NSD_CreateRadioButton} 8u 87u 95% 11u "&32 bits"
  Pop $Button32
  ${NSD_AddStyle} $Button32 ${WS_GROUP}
  ${NSD_CreateRadioButton} 8u 100u 95% 11u "&64 bits"
  Pop $Button64
  ${If} $ForAll == 1
    ${NSD_Check} $AllButton
  ${Else}
    ${NSD_Check} $MeButton
  ${EndIf}
  ${If} $Bits == 64
    ${NSD_Check} $Button64
  ${Else}
    ${NSD_Check} $Button32
  ${EndIf}
  ${If} $MayForAll == 0
    EnableWindow $AllButton 0
  ${EndIf}
  ${IfNot} ${RunningX64}
    EnableWindow $Button64 0
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function LeaveChoices
  ${NSD_GetState} $AllButton $ForAll
  ${NSD_GetState} $Button64 $0
  StrCpy $Bits 32
  ${If} $0 == ${BST_CHECKED}
    StrCpy $Bits 64
  ${EndIf}
  Call ChooseFolder
FunctionEnd

; What was installed before, here or in another folder. Its uninstaller stays, since it runs from where it stands.
Function RemoveEarlier
  ReadRegStr $1 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $1 != ""
  ${AndIf} ${FileExists} "$1\uninstall.exe"
    ExecWait '"$1\uninstall.exe" /S _?=$1' $2
    ${If} $2 <> 0
      SetErrorLevel $2
      Quit
    ${EndIf}
    Delete "$1\uninstall.exe"
    RMDir "$1"
  ${EndIf}
FunctionEnd

; The names of what is defined know no capitals.
!macro Entry ENTRY WORD ABOUT
  CreateShortcut "$SMPROGRAMS\${NAME}\${ENTRY}.lnk" "$INSTDIR\zyGlobal.exe" "${WORD}" "$INSTDIR\zyGlobal.exe" 0 \
    SW_SHOWNORMAL "" "${ABOUT}"
!macroend

Section
  !insertmacro UseContext
  !insertmacro StopWhereRunning
  Call RemoveEarlier
  SetOutPath "$INSTDIR"
  ClearErrors
  ${If} $Bits == 64
    File "${BITS64}\zyGlobal.exe"
    File "${BITS64}\zydebug.exe"
  ${Else}
    File "${BITS32}\zyGlobal.exe"
    File "${BITS32}\zydebug.exe"
  ${EndIf}
  File /r /x zyGlobal.exe /x zydebug.exe "${BITS64}\*.*"
  ${If} ${Errors}
    SetErrorLevel 1
    Abort
  ${EndIf}
  WriteUninstaller "$INSTDIR\uninstall.exe"

  CreateDirectory "$SMPROGRAMS\${NAME}"
  !insertmacro Entry "Run Rules" "@RULES" "Edit the run rules of the charts"
  !insertmacro Entry "Users" "@SECURITY" "Edit the users of the product"
  !insertmacro Entry "Units of Measure" "@UNITS" "Edit the units of measure"

  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\zyGlobal.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "${MAKER}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "URLInfoAbout" "${SITE}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Bits" "$Bits"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; It belongs to the user whose entry names this folder, else to all.
Function un.onInit
  !insertmacro UseRegistry
  StrCpy $ForAll 1
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    StrCpy $ForAll 0
  ${EndIf}
  !insertmacro UseContext
FunctionEnd

Section "un.${NAME}"
  !insertmacro StopWhereRunning
  !insertmacro RemoveFiles
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}\Run Rules.lnk"
  Delete "$SMPROGRAMS\${NAME}\Users.lnk"
  Delete "$SMPROGRAMS\${NAME}\Units of Measure.lnk"
  RMDir "$SMPROGRAMS\${NAME}"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
