; The installer: per user, in the system's language (Spanish or English), silent with /S, into
; another folder with /D=FOLDER. Called by scripts/windows_package.sh from the root of the project.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

Name "ZEL ${VERSION}"
OutFile "${OUT}"
!define PROGRAMS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL "${PROGRAMS}\ZEL"
!define CLASSES "Software\Classes"
InstallDir "$LOCALAPPDATA\Programs\ZEL"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "ZEL"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "ZEL"
VIAddVersionKey "LegalCopyright" "MIT"

!include MUI2.nsh
!include FileFunc.nsh
!define MUI_ICON "packaging/windows/zel.ico"
!define MUI_UNICON "packaging/windows/zel.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\zel.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
; The first one is taken on systems that speak neither.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Spanish"

LangString DOCUMENT ${LANG_ENGLISH} "Function graphic"
LangString DOCUMENT ${LANG_SPANISH} "Gráfico de funciones"
LangString PROGRAM ${LANG_ENGLISH} "Grapher of mathematical functions"
LangString PROGRAM ${LANG_SPANISH} "Graficador de funciones matemáticas"

; Tells the desktop that document types have changed.
!macro NoteChange
  System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)"
!macroend

Section
  ; An earlier version takes its own files away, and leaves what is the user's.
  IfFileExists "$INSTDIR\uninstall.exe" 0 +2
  ExecWait '"$INSTDIR\uninstall.exe" /S /UPGRADE _?=$INSTDIR'

  SetOutPath "$INSTDIR"
  File /r "${FOLDER}/*"
  File packaging/zel.installed
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\ZEL.lnk" "$INSTDIR\zel.exe" "" "$INSTDIR\zel.exe" 0 SW_SHOWNORMAL "" \
    "$(PROGRAM)"

  WriteRegStr HKCU "${CLASSES}\zel" "" "$(DOCUMENT)"
  WriteRegStr HKCU "${CLASSES}\.zel" "" "zel"
  WriteRegStr HKCU "${CLASSES}\zel\shell\open\command" "" '"$INSTDIR\zel.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\zel\DefaultIcon" "" "$INSTDIR\doc.ico"
  !insertmacro NoteChange

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "ZEL"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\zel.exe"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Takes a type away that opens with this program; one that another program has taken over stays.
!macro RemoveType ROOT
  ReadRegStr $0 ${ROOT} "${CLASSES}\zel\shell\open\command" ""
  ${If} $0 == '"$INSTDIR\zel.exe" "%1"'
  ${OrIf} $0 == '$INSTDIR\zel.exe %1'
    DeleteRegKey ${ROOT} "${CLASSES}\zel"
    ReadRegStr $0 ${ROOT} "${CLASSES}\.zel" ""
    ${If} $0 == "zel"
      DeleteRegKey ${ROOT} "${CLASSES}\.zel"
    ${EndIf}
  ${EndIf}
!macroend

Section "Uninstall"
  !include "${REMOVAL}"
  Delete "$INSTDIR\zel.installed"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\ZEL.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey /ifempty HKCU "${PROGRAMS}"
  ; The program registers itself for all users where it may.
  !insertmacro RemoveType HKCU
  !insertmacro RemoveType HKLM
  DeleteRegKey /ifempty HKCU "${CLASSES}"
  !insertmacro NoteChange

  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/UPGRADE" $1
  ${If} ${Errors}
    Delete "$APPDATA\zel\config.ini"
    RMDir "$APPDATA\zel"
    Delete "$LOCALAPPDATA\zel\session.zel"
    RMDir "$LOCALAPPDATA\zel"
  ${EndIf}
SectionEnd
