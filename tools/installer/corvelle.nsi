; The installer, for one user and without elevation. tools/make_release.py gives the defines:
; VERSION, VERSION_FOUR, ARCH (x64 or x86), STAGE (the folder to install), FILES (a list made from it), OUT.

Unicode true
!if "${ARCH}" == "x64"
  Target amd64-unicode
!else
  Target x86-unicode
!endif

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Corvelle"
!define PROGRAM "$INSTDIR\corvelle.exe"
!define MENU_LINK "$SMPROGRAMS\Corvelle.lnk"
!define STARTUP_LINK "$SMSTARTUP\Corvelle.lnk"
!define WM_QUERYENDSESSION 0x11
!define WM_ENDSESSION 0x16

Name "Corvelle ${VERSION}"
OutFile "${OUT}"
RequestExecutionLevel user
ManifestSupportedOS all
ManifestDPIAware true
; What is damaged or cut does not begin.
CRCCheck force
SetCompressor /SOLID lzma
SetDateSave on
InstallDir "$LOCALAPPDATA\Programs\Corvelle"
; An upgrade goes where the program lies.
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Corvelle ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow
Icon "${ICON}"
UninstallIcon "${ICON}"
LicenseData "${STAGE}\LICENSE.txt"
VIProductVersion "${VERSION_FOUR}"
VIAddVersionKey ProductName "Corvelle"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Corvelle ${VERSION} Setup"
VIAddVersionKey CompanyName "the Corvelle authors"
VIAddVersionKey LegalCopyright "Copyright (c) 2026 the Corvelle authors"

!include FileFunc.nsh
!include LogicLib.nsh
!include x64.nsh

Page license
Page components
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Var WasRunning  ; "1" once a running program has ended for us
Var Tries

; Both the installer and the uninstaller have the functions of this file.
!macro Functions un

; 1 in $0 if the program in $INSTDIR runs: the system lets nobody write to it then.
Function ${un}ProgramRuns
  StrCpy $0 0
  ${If} ${FileExists} "${PROGRAM}"
    ClearErrors
    FileOpen $1 "${PROGRAM}" a
    ${If} ${Errors}
      StrCpy $0 1
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
FunctionEnd

; Tells one window that the session ends, as the system does: it is asked, and then told. "error" in $2 if it
; does not answer.
Function ${un}EndWindow
  StrCpy $2 ""
  FindWindow $1 "$0"
  ${If} $1 P<> 0
    ; The flag for errors is what tells of a window that does not answer. Looking at it clears it.
    ClearErrors
    SendMessage $1 ${WM_QUERYENDSESSION} 0 1 /TIMEOUT=5000
    ${If} ${Errors}
      StrCpy $2 "error"
    ${Else}
      SendMessage $1 ${WM_ENDSESSION} 1 1 /TIMEOUT=5000
      ${If} ${Errors}
        StrCpy $2 "error"
      ${EndIf}
    ${EndIf}
  ${EndIf}
FunctionEnd

; The process that looks for icons ends with the program; one whose program does not answer goes on, and its
; file gets another name.
Function ${un}FreeHelper
  StrCpy $Tries 0
  ${Do}
    ClearErrors
    Delete "$INSTDIR\corvelle-shell.exe"
    ${IfNot} ${Errors}
      Return
    ${EndIf}
    Sleep 100
    IntOp $Tries $Tries + 1
  ${LoopUntil} $Tries >= 20
  StrCpy $Tries 0
  ${Do}
    IntOp $Tries $Tries + 1
    ClearErrors
    Rename "$INSTDIR\corvelle-shell.exe" "$INSTDIR\corvelle-shell-old$Tries.exe"
    ${IfNot} ${Errors}
      Return
    ${EndIf}
  ${LoopUntil} $Tries >= 20
FunctionEnd

; 1 in $0 if files can be made in $INSTDIR. Without the right to, the program could not be opened for writing
; either, and would be taken for one that runs.
Function ${un}CanWrite
  StrCpy $0 0
  ClearErrors
  CreateDirectory "$INSTDIR"
  FileOpen $1 "$INSTDIR\~setup.tmp" w
  ${IfNot} ${Errors}
    FileClose $1
    Delete "$INSTDIR\~setup.tmp"
    StrCpy $0 1
  ${EndIf}
FunctionEnd

; Ends the program that runs in $INSTDIR, all saved. One that does not answer keeps running, and its file
; gets another name, so that its place is free.
Function ${un}EndProgram
  StrCpy $WasRunning 0
  Call ${un}CanWrite
  ${If} $0 == 0
    MessageBox MB_OK|MB_ICONSTOP "Setup cannot change the files in this folder:$\r$\n$INSTDIR" /SD IDOK
    SetErrorLevel 4
    Quit
  ${EndIf}
  Call ${un}ProgramRuns
  ${If} $0 == 0
    Return
  ${EndIf}
  StrCpy $2 ""
  StrCpy $Tries 0
  ${Do}
    ; Each second, since one that is still starting does not listen yet; not again if it does not answer.
    IntOp $1 $Tries % 10
    ${If} $1 == 0
    ${AndIf} $2 != "error"
      StrCpy $0 "frmMinimize"
      Call ${un}EndWindow
    ${EndIf}
    Call ${un}ProgramRuns
    ${If} $0 == 0
      StrCpy $WasRunning 1
      Return
    ${EndIf}
    Sleep 100
    IntOp $Tries $Tries + 1
  ${LoopUntil} $Tries >= 100
  StrCpy $Tries 0
  ${Do}
    IntOp $Tries $Tries + 1
    ClearErrors
    Rename "${PROGRAM}" "$INSTDIR\corvelle-old$Tries.exe"
    ${IfNot} ${Errors}
      Return
    ${EndIf}
  ${LoopUntil} $Tries >= 20
  MessageBox MB_OK|MB_ICONSTOP "Corvelle is running and cannot be replaced. End it and try again." /SD IDOK
  SetErrorLevel 3
  Quit
FunctionEnd

; Removes what earlier runs could only put aside. What still runs stays for the next time.
Function ${un}RemoveOldPrograms
  StrCpy $Tries 0
  ${Do}
    IntOp $Tries $Tries + 1
    Delete "$INSTDIR\corvelle-old$Tries.exe"
    Delete "$INSTDIR\corvelle-shell-old$Tries.exe"
  ${LoopUntil} $Tries >= 20
FunctionEnd

!macroend
!insertmacro Functions ""
!insertmacro Functions "un."

Section "Corvelle"
  SectionIn RO
  SetShellVarContext current
  Call EndProgram
  Call FreeHelper
  Call RemoveOldPrograms
  SetOutPath "$INSTDIR"
  SetOverwrite on
  ClearErrors
  File /r /x portable "${STAGE}/*.*"
  ${If} ${Errors}
    SetErrorLevel 4
    Abort "Some files could not be written."
  ${EndIf}
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortCut "${MENU_LINK}" "${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Corvelle"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "the Corvelle authors"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Section /o "Start with Windows" StartupSection
  CreateShortCut "${STARTUP_LINK}" "${PROGRAM}"
SectionEnd

Section "-Restart"
  Call Restart
SectionEnd

; What has failed has perhaps left the program as it was.
Function .onInstFailed
  Call Restart
FunctionEnd

Function Restart
  ${If} $WasRunning == 1
    Exec '"${PROGRAM}"'
  ${EndIf}
FunctionEnd

Function .onInit
!if "${ARCH}" == "x86"
  ; There a 32-bit program is shown other folders of the system than the user sees.
  ${If} ${IsNativeAMD64}
    MessageBox MB_YESNO|MB_ICONQUESTION "The 64-bit Corvelle fits this Windows better than this 32-bit one. Install it all the same?" /SD IDYES IDYES goesOn
    SetErrorLevel 1
    Quit
    goesOn:
  ${EndIf}
!endif
  SetShellVarContext current
  ; A silent installation is asked for the start with Windows by a word of its own.
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/STARTUP" $1
  ${IfNot} ${Errors}
    SectionSetFlags ${StartupSection} 1
  ${EndIf}
FunctionEnd

; Takes what still runs under another name out of the folder.
Function un.MoveOldPrograms
  StrCpy $Tries 0
  ${Do}
    IntOp $Tries $Tries + 1
    StrCpy $1 "$INSTDIR\corvelle-old$Tries.exe"
    Call un.MoveToTemp
    StrCpy $1 "$INSTDIR\corvelle-shell-old$Tries.exe"
    Call un.MoveToTemp
  ${LoopUntil} $Tries >= 20
FunctionEnd

; Moves the file $1, if there is one, to the folder of temporary files, under a name that is free there.
Function un.MoveToTemp
  ${If} ${FileExists} "$1"
    GetTempFileName $0
    Delete "$0"
    Rename "$1" "$0"
  ${EndIf}
FunctionEnd

; The program of a link in $0; empty when it cannot be told.
Function un.LinkTarget
  StrCpy $3 ""
  StrCpy $1 0
  StrCpy $2 0
  System::Call "ole32::CoInitialize(p 0)"
  System::Call "ole32::CoCreateInstance(g '{00021401-0000-0000-c000-000000000046}', p 0, i 1, g '{000214f9-0000-0000-c000-000000000046}', *p .r1)"
  ${If} $1 P<> 0
    System::Call "$1->0(g '{0000010b-0000-0000-c000-000000000046}', *p .r2)"
    ${If} $2 P<> 0
      System::Call "$2->5(w r0, i 0)"
      System::Call "$1->3(w .r3, i ${NSIS_MAX_STRLEN}, p 0, i 0)"
      System::Call "$2->2()"
    ${EndIf}
    System::Call "$1->2()"
  ${EndIf}
  StrCpy $0 $3
FunctionEnd

Section "Uninstall"
  SetShellVarContext current
  Call un.EndProgram
  Call un.FreeHelper
  Call un.RemoveOldPrograms
  Call un.MoveOldPrograms
  !include "${FILES}"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  ; Whatever else lies there is the user's.
  RMDir "$INSTDIR"
  Delete "${MENU_LINK}"
  ${If} ${FileExists} "${STARTUP_LINK}"
    StrCpy $0 "${STARTUP_LINK}"
    Call un.LinkTarget
    ; One that leads to another copy of the program stays.
    ${If} $0 == "${PROGRAM}"
      Delete "${STARTUP_LINK}"
    ${EndIf}
  ${EndIf}
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/PURGE" $1
  ${IfNot} ${Errors}
    RMDir /r "$APPDATA\Corvelle"
    RMDir /r "$LOCALAPPDATA\Corvelle"
  ${EndIf}
SectionEnd
