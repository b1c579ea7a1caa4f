; The uninstaller takes away what was installed and nothing else. /S asks nothing and leaves the players'
; files; /DONNEES takes them away too.

Var oterdonnees
Var boite

Function un.onInit
  SetShellVarContext current
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DONNEES" $1
  ${IfNot} ${Errors}
    StrCpy $oterdonnees 1
  ${EndIf}
FunctionEnd

Function un.demander
  !insertmacro MUI_HEADER_TEXT "Désinstaller Orvane" "Orvane et son carnet seront ôtés de cet ordinateur."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 24u "Vos listes, vos résultats et vos dictionnaires sont dans ce dossier, qui reste en place :"
  Pop $0
  ${NSD_CreateLabel} 0 26u 100% 12u "${DONNEES}"
  Pop $0
  ${NSD_CreateCheckbox} 0 48u 100% 12u "Supprimer aussi mes listes, mes résultats et mes dictionnaires"
  Pop $boite
  ${If} $oterdonnees = 1
    ${NSD_Check} $boite
  ${EndIf}
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:Désinstaller"
  nsDialogs::Show
FunctionEnd

Function un.repondre
  ${NSD_GetState} $boite $oterdonnees
FunctionEnd

; The program goes first, what tells of it last: cut in the middle, it can be done again.
Section "Uninstall"
  Call un.fermer
  InitPluginsDir
  File "/oname=$PLUGINSDIR\${FICHIERS}" "${CONTENU}\${FICHIERS}"
  RMDir /r "$INSTDIR\${NOUVEAU}"
  Push "$INSTDIR\${ANCIEN}"
  Push "$PLUGINSDIR\${FICHIERS}"
  Call un.oterselon
  Delete "$INSTDIR\${ANCIEN}\${LISTE}"
  Delete "$INSTDIR\${ANCIEN}\${FAITE}"
  Delete "$INSTDIR\${ANCIEN}\${RESTE}"
  RMDir "$INSTDIR\${ANCIEN}"
  Push $INSTDIR
  Push "$PLUGINSDIR\${FICHIERS}"
  Call un.oterselon
  ${If} $oterdonnees = 1
    Call un.supprimerdonnees
  ${Else}
    RMDir "${DONNEES}" ; if it is empty
  ${EndIf}
  Delete "${MENU}\Orvane.lnk"
  Delete "${MENU}\Carnet d'Orvane.lnk"
  Delete "${MENU}\Manuel d'Orvane.lnk"
  Delete "${MENU}\Désinstaller Orvane.lnk"
  RMDir "${MENU}"
  DeleteRegKey HKCU "${CLE}"
  Delete "$INSTDIR\desinstaller.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd

; A link in the place of the folder is not followed.
Function un.supprimerdonnees
  System::Call 'kernel32::GetFileAttributesW(w "${DONNEES}") i .r0'
  IntOp $1 $0 & 0x400 ; FILE_ATTRIBUTE_REPARSE_POINT
  ${If} $0 <> -1
  ${AndIf} $1 = 0
    RMDir /r "${DONNEES}"
  ${EndIf}
FunctionEnd
