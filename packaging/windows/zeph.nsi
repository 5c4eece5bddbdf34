; SPDX-FileCopyrightText: The Zeph authors
; SPDX-License-Identifier: MIT
;
; The installer: into a folder of the user's own, so that nobody needs an administrator. The folder can
; be written, so Zeph keeps its settings there, and the user may change the data that comes with it. The
; uninstaller removes what is on the list of installed files (FILES) and was not changed since. A new
; version calls the old one's uninstaller first, wherever that is; what that leaves is the user's, and
; stays as it is.

Target amd64-unicode
; Another size of the screen's text is not made by stretching the picture of the window.
ManifestDPIAware true
; A file that cannot be written ends all. Left out, it would be of another version than the others.
AllowSkipFiles off
!include LogicLib.nsh
!include MUI2.nsh
!include "${FILES}"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zeph"

Name "Zeph ${VERSION}"
OutFile "${OUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Zeph"
InstallDirRegKey HKCU "Software\Zeph" "InstallFolder"
SetCompressor /SOLID lzma
BrandingText "Zeph ${VERSION}"
VIProductVersion "${NUMBERS}.0"
VIAddVersionKey ProductName "Zeph"
VIAddVersionKey FileDescription "Installer of Zeph"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "The Zeph authors, MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\zeph.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_UNCONFIRMPAGE_TEXT_TOP "Zeph will be removed from the following folder. Your settings and your own files in it stay. Click Uninstall to start."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A kind of file that opens in Zeph. Another program's claim to the ending stays; Zeph is then among
; those that "Open with" offers.
!macro FileType ENDING KIND TEXT
    WriteRegStr HKCU "Software\Classes\${KIND}" "" "${TEXT}"
    WriteRegStr HKCU "Software\Classes\${KIND}\DefaultIcon" "" "$INSTDIR\zeph.exe,0"
    WriteRegStr HKCU "Software\Classes\${KIND}\shell\open\command" "" '"$INSTDIR\zeph.exe" "%1"'
    WriteRegStr HKCU "Software\Classes\${ENDING}\OpenWithProgids" "${KIND}" ""
    ReadRegStr $0 HKCR "${ENDING}" ""
    ${If} $0 == ""
        WriteRegStr HKCU "Software\Classes\${ENDING}" "" "${KIND}"
    ${EndIf}
!macroend

!macro un.FileType ENDING KIND
    ReadRegStr $0 HKCU "Software\Classes\${ENDING}" ""
    ${If} $0 == "${KIND}"
        DeleteRegValue HKCU "Software\Classes\${ENDING}" ""
    ${EndIf}
    DeleteRegValue HKCU "Software\Classes\${ENDING}\OpenWithProgids" "${KIND}"
    DeleteRegKey /ifempty HKCU "Software\Classes\${ENDING}\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "Software\Classes\${ENDING}"
    DeleteRegKey HKCU "Software\Classes\${KIND}"
!macroend

!macro InstallProgram NAME SOURCE
    File "/oname=$INSTDIR\${NAME}" "${SOURCE}"
!macroend
!macro RemoveProgram NAME
    Delete "$INSTDIR\${NAME}"
!macroend

; When a file of data was written tells later whether it is still as it was installed.
!define TIMES "$INSTDIR\Installed.ini"
!macro InstallData NAME SOURCE
    ${IfNot} ${FileExists} "$INSTDIR\${NAME}"
        File "/oname=$INSTDIR\${NAME}" "${SOURCE}"
        GetFileTime "$INSTDIR\${NAME}" $0 $1
        WriteINIStr "${TIMES}" "Written" "${NAME}" "$0:$1"
    ${EndIf}
!macroend
!macro RemoveData NAME
    GetFileTime "$INSTDIR\${NAME}" $0 $1
    ReadINIStr $2 "${TIMES}" "Written" "${NAME}"
    ${If} $2 == "$0:$1"
        Delete "$INSTDIR\${NAME}"
    ${EndIf}
!macroend

!define TellShell 'System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)"'

; While a program runs, Windows lets nobody write its file. Without anybody to ask (/S) that is the end,
; before anything was changed, with the exit code 2.
!macro WaitUntilClosed FOLDER
    ${Do}
        ${IfNot} ${FileExists} "${FOLDER}\zeph.exe"
            ${ExitDo}
        ${EndIf}
        ClearErrors
        FileOpen $1 "${FOLDER}\zeph.exe" a
        ${IfNot} ${Errors}
            FileClose $1
            ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${FOLDER}\zeph.exe cannot be replaced or removed. If Zeph is running, please close it first." /SD IDCANCEL IDCANCEL`
            Abort
        ${EndIf}
    ${Loop}
!macroend

Section "-Zeph" SectionZeph
    !insertmacro WaitUntilClosed "$INSTDIR"
    ReadRegStr $0 HKCU "Software\Zeph" "InstallFolder"
    ${If} $0 != ""
    ${AndIf} ${FileExists} "$0\Uninstall.exe"
        !insertmacro WaitUntilClosed "$0"
        ExecWait '"$0\Uninstall.exe" /S _?=$0'
        ; Started like this, it leaves itself.
        Delete "$0\Uninstall.exe"
        RMDir "$0"
    ${EndIf}
    SetOutPath "$INSTDIR"
    !insertmacro InstallFiles
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Zeph.lnk" "$INSTDIR\zeph.exe"
    !insertmacro FileType ".tmj" "Zeph.JoystickFile" "HOTAS joystick file"
    !insertmacro FileType ".tmm" "Zeph.MacroFile" "HOTAS macro file"
    WriteRegStr HKCU "Software\Zeph" "InstallFolder" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Zeph"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\zeph.exe,0"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Zeph authors"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
    SectionGetSize ${SectionZeph} $0
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
    ${TellShell}
SectionEnd

Section Uninstall
    !insertmacro WaitUntilClosed "$INSTDIR"
    !insertmacro RemoveFiles
    Delete "${TIMES}"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Zeph.lnk"
    !insertmacro un.FileType ".tmj" "Zeph.JoystickFile"
    !insertmacro un.FileType ".tmm" "Zeph.MacroFile"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Zeph"
    ${TellShell}
SectionEnd
