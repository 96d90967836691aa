; The installer: for one user, without an administrator. /S asks nothing.
Target amd64-unicode
Unicode true
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

Name "NIMB-Chat"
OutFile "${OUTPUT}"
RequestExecutionLevel user
SetCompressor /SOLID lzma
InstallDir "$LOCALAPPDATA\Programs\NIMB-Chat"
InstallDirRegKey HKCU "Software\NIMB-Chat" "Folder"
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "NIMB-Chat"
VIAddVersionKey "FileDescription" "Installs NIMB-Chat"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The NIMB-Chat developers"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\NIMB-Chat"
!define RUN "Software\Microsoft\Windows\CurrentVersion\Run"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\nimb-chat.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "PortugueseBR"
!insertmacro MUI_LANGUAGE "Polish"
!insertmacro MUI_LANGUAGE "Russian"
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_LANGUAGE "Arabic"

; A copy that runs holds its files.
!macro EndRunningCopy
  ${If} ${FileExists} "$INSTDIR\nimb-chatctl.exe"
    nsExec::Exec '"$INSTDIR\nimb-chatctl.exe" quit'
    Pop $0
    ${If} $0 == 0
      ${For} $1 1 100 ; until its file can be written to, for at most 20 seconds
        ClearErrors
        FileOpen $2 "$INSTDIR\nimb-chat.exe" a
        ${IfNot} ${Errors}
          FileClose $2
          ${ExitFor}
        ${EndIf}
        Sleep 200
      ${Next}
    ${EndIf}
  ${EndIf}
!macroend

Section "NIMB-Chat" SecProgram
  SectionIn RO
  !insertmacro EndRunningCopy
  SetOutPath "$INSTDIR"
  File /r "${SHIPPED}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\NIMB-Chat.lnk" "$INSTDIR\nimb-chat.exe"
  WriteRegStr HKCU "Software\NIMB-Chat" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "NIMB-Chat"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\nimb-chat.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The NIMB-Chat developers"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

; Off unless it is chosen; administrators say /AUTOSTART.
Section /o "Start with Windows" SecAutostart
  WriteRegStr HKCU "${RUN}" "NIMB-Chat" '"$INSTDIR\nimb-chat.exe"'
SectionEnd

; Windows asks the user for the rights that this takes; without them everything else is installed all the same.
Section /o "Let others reach NIMB-Chat through the firewall" SecFirewall
  ExecShellWait "runas" "netsh.exe" 'advfirewall firewall add rule name="NIMB-Chat" dir=in action=allow program="$INSTDIR\nimb-chat.exe" protocol=UDP' SW_HIDE
  WriteRegDWORD HKCU "Software\NIMB-Chat" "FirewallRule" 1
SectionEnd

Function .onInit
  ${GetParameters} $0
  ${GetOptions} $0 "/AUTOSTART" $1
  ${IfNot} ${Errors}
    SectionSetFlags ${SecAutostart} ${SF_SELECTED}
  ${EndIf}
  ${GetOptions} $0 "/FIREWALL" $1
  ${IfNot} ${Errors}
    SectionSetFlags ${SecFirewall} ${SF_SELECTED}
  ${EndIf}
FunctionEnd

; What the user has said and kept stays where it is.
Section "Uninstall"
  !insertmacro EndRunningCopy
  ReadRegDWORD $0 HKCU "Software\NIMB-Chat" "FirewallRule"
  ${If} $0 == 1
    ExecShellWait "runas" "netsh.exe" 'advfirewall firewall delete rule name="NIMB-Chat" program="$INSTDIR\nimb-chat.exe"' SW_HIDE
  ${EndIf}
  Delete "$SMPROGRAMS\NIMB-Chat.lnk"
  DeleteRegValue HKCU "${RUN}" "NIMB-Chat"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\NIMB-Chat"
  RMDir /r "$INSTDIR\imageformats"
  RMDir /r "$INSTDIR\licences"
  RMDir /r "$INSTDIR\manual"
  RMDir /r "$INSTDIR\multimedia"
  RMDir /r "$INSTDIR\platforms"
  RMDir /r "$INSTDIR\styles"
  RMDir /r "$INSTDIR\translations"
  Delete "$INSTDIR\*.dll"
  Delete "$INSTDIR\*.exe"
  Delete "$INSTDIR\*.wav"
  Delete "$INSTDIR\TOTD.txt"
  Delete "$INSTDIR\qt.conf"
  RMDir "$INSTDIR"
SectionEnd
