; The installer of Orvane for Windows, for the current user alone. outils/paquets-windows calls it with:
;   CONTENU   the folder of all that is installed; its fichiers.txt names the files
;   EXTRAIRE  the list of File commands made from it
;   RAFRAICHIR the program that brings a play folder up to date
;   SORTIE, VERSION, VERSION4 (four numbers), EDITEUR, PAGE, ICONE, TABLEAU (beside the last page), TAILLE (of CONTENU, in KiB)
; Command line: /S asks nothing; /D=FOLDER, last and without quotes, says where.
; Exit status: 0; 1 left by the player; 2 not possible, told in the window; 3 a program of Orvane stays
; open; 4 a file could not be written or replaced; 5 another installation is running. Unless it is 0
; all is as it was.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestLongPathAware true
AllowSkipFiles off
CRCCheck force

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh
!include nsDialogs.nsh

!define CLE "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvane"
!define MENU "$SMPROGRAMS\Orvane"
; The play folder of an installed program (src/installation).
!define DONNEES "$LOCALAPPDATA\Orvane"
!define NOUVEAU ".orvane-nouveau"
!define ANCIEN ".orvane-ancien"
!define FICHIERS "fichiers.txt"

Name "Orvane"
Caption "Installation d'Orvane"
UninstallCaption "Désinstallation d'Orvane"
OutFile "${SORTIE}"
BrandingText "Orvane ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\Orvane"
VIProductVersion "${VERSION4}"
VIAddVersionKey /LANG=1036 "ProductName" "Orvane"
VIAddVersionKey /LANG=1036 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "FileDescription" "Installation d'Orvane"
VIAddVersionKey /LANG=1036 "CompanyName" "${EDITEUR}"
VIAddVersionKey /LANG=1036 "LegalCopyright" "${EDITEUR}, licence MIT"

; Set where the installer stands in a folder that was unpacked from the archive, as after a download by
; the program: that folder is brought up to date, and the system is told nothing.
Var portable

!define MUI_ICON "${ICONE}"
!define MUI_UNICON "${ICONE}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${TABLEAU}"
!define MUI_ABORTWARNING
!define MUI_PAGE_CUSTOMFUNCTION_PRE choisirdossier
!define MUI_PAGE_HEADER_TEXT "Installer Orvane"
!define MUI_PAGE_HEADER_SUBTEXT "Où mettre Orvane et son carnet ?"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Orvane ${VERSION} s'installe pour vous seul, sans droits particuliers. Cliquez sur « Installer », ou choisissez d'abord un autre dossier."
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_PAGE_HEADER_TEXT "Installation en cours"
!define MUI_PAGE_HEADER_SUBTEXT "Orvane et son carnet s'installent."
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "Orvane est installé"
!define MUI_FINISHPAGE_TEXT "Orvane ${VERSION} est prêt.$\r$\n$\r$\nLe premier démarrage apporte les listes de mots ; cela prend une ou deux secondes."
!define MUI_FINISHPAGE_RUN "$INSTDIR\orvane.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Lancer Orvane"
!insertmacro MUI_PAGE_FINISH
UninstPage custom un.demander un.repondre
!define MUI_PAGE_HEADER_TEXT "Désinstallation en cours"
!define MUI_PAGE_HEADER_SUBTEXT "Orvane et son carnet sont ôtés de cet ordinateur."
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

!include outils.nsh
!include fermeture.nsh
!include echange.nsh
!include desinstallation.nsh

Function .onInit
  SetShellVarContext current
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONSTOP "Orvane demande Windows 10 ou plus récent." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "OrvaneInstallation") p .r1 ?e'
  Pop $0
  ${If} $0 = 183 ; ERROR_ALREADY_EXISTS
    MessageBox MB_OK|MB_ICONSTOP "Une installation d'Orvane est déjà en cours." /SD IDOK
    SetErrorLevel 5
    Quit
  ${EndIf}
  Call choisirplace
FunctionEnd

; Where the command line says; else the unpacked folder that the installer stands in; else where Orvane
; is installed already; else the place of programs of one user.
Function choisirplace
  System::Call 'kernel32::GetCommandLineW() t .r0'
  StrLen $1 $0
  ${For} $2 0 $1
    StrCpy $3 $0 4 $2
    ${If} $3 == " /D="
      Return
    ${EndIf}
  ${Next}
  ${If} ${FileExists} "$EXEDIR\orvane.exe"
  ${AndIf} ${FileExists} "$EXEDIR\listes\*.*"
    StrCpy $portable 1
    StrCpy $INSTDIR $EXEDIR
    Return
  ${EndIf}
  ReadRegStr $0 HKCU "${CLE}" "InstallLocation"
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
FunctionEnd

; Asked at the first installation alone: a newer version goes where the older one is.
Function choisirdossier
  ${If} $portable <> 0
    Abort
  ${EndIf}
  ReadRegStr $0 HKCU "${CLE}" "InstallLocation"
  ${If} $0 == $INSTDIR
  ${AndIf} ${FileExists} "$INSTDIR\orvane.exe"
    Abort
  ${EndIf}
FunctionEnd

; Until `echanger` nothing of an older version is touched: cut before, this leaves a folder that the
; next installation takes away. The system learns of a new program when it is whole.
Section
  AddSize ${TAILLE}
  Call fermer
  ${If} $portable <> 0
    Call deposer
    Call actualiserportable
  ${Else}
    Call recuperer
    Call deposer
    Call fermer ; it may have been opened meanwhile
    Call echanger
    Call declarer
    Call nettoyer
  ${EndIf}
  RMDir /r "$INSTDIR\${NOUVEAU}"
  SetOutPath "$INSTDIR"
SectionEnd

; Tells the system: menu, then the list of programs.
Function declarer
  SetOutPath "$INSTDIR"
  CreateDirectory "${MENU}"
  CreateShortcut "${MENU}\Orvane.lnk" "$INSTDIR\orvane.exe" "" "" 0 "" "" "S'entraîner au Scrabble francophone"
  CreateShortcut "${MENU}\Carnet d'Orvane.lnk" "$INSTDIR\orvane-carnet.exe" "" "" 0 "" "" \
    "Faire des listes de mots, savoir quoi revoir"
  CreateShortcut "${MENU}\Manuel d'Orvane.lnk" "$INSTDIR\manuel\manuel.html"
  CreateShortcut "${MENU}\Désinstaller Orvane.lnk" "$INSTDIR\desinstaller.exe"
  WriteRegStr HKCU "${CLE}" "DisplayName" "Orvane"
  WriteRegStr HKCU "${CLE}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${CLE}" "DisplayIcon" "$INSTDIR\orvane.exe"
  WriteRegStr HKCU "${CLE}" "Publisher" "${EDITEUR}"
  WriteRegStr HKCU "${CLE}" "URLInfoAbout" "${PAGE}"
  WriteRegStr HKCU "${CLE}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${CLE}" "UninstallString" '"$INSTDIR\desinstaller.exe"'
  WriteRegStr HKCU "${CLE}" "QuietUninstallString" '"$INSTDIR\desinstaller.exe" /S'
  WriteRegDWORD HKCU "${CLE}" "EstimatedSize" ${TAILLE}
  WriteRegDWORD HKCU "${CLE}" "NoModify" 1
  WriteRegDWORD HKCU "${CLE}" "NoRepair" 1
FunctionEnd
