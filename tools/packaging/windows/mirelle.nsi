; The installer for Windows: for the user who starts it and without an administrator's rights, into a folder that this
; user may write to, as the program keeps its data beside itself. tools/packaging/windows/make_installer runs it with:
;
;   VERSION  of the program          REMOVAL  a script with the removal of every file that is installed
;   TREE     what is installed       OUTPUT   the installer
;   ICON     the program's icon

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

Name "Mirelle"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Mirelle"
!define OWN_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Mirelle"
InstallDirRegKey HKCU "${OWN_KEY}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Mirelle"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Mirelle, a desktop picture sampler"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\mirelle.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Section
    SetOutPath "$INSTDIR"
    File "${TREE}/mirelle.exe"
    File "${TREE}/README.txt"
    SetOutPath "$INSTDIR\Support"
    File "${TREE}/Support/Mirelle1UserManual1.pdf"
    ; The library and the settings that lie there already are the user's.
    SetOverwrite off
    File /r "${TREE}/Support/Materials"
    File /r "${TREE}/Support/Settings"

    SetOutPath "$INSTDIR" ; the shortcut's working folder
    SetOverwrite on
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Mirelle.lnk" "$INSTDIR\mirelle.exe"
    WriteRegStr HKCU "${OWN_KEY}" "DisplayName" "Mirelle"
    WriteRegStr HKCU "${OWN_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${OWN_KEY}" "DisplayIcon" "$INSTDIR\mirelle.exe"
    WriteRegStr HKCU "${OWN_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${OWN_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${OWN_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${OWN_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${OWN_KEY}" "NoRepair" 1
SectionEnd

; What the user saved stays, and so do the folders that hold it.
Section Uninstall
    Delete "$SMPROGRAMS\Mirelle.lnk"
    Delete "$INSTDIR\uninstall.exe"
    !include "${REMOVAL}"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${OWN_KEY}"
SectionEnd
