; A new version takes the place of an older one. All of it is first written and flushed under NOUVEAU;
; then `fournis` changes places as a folder, and each other file, the programs last, takes the place of
; its older one in one step, which waits under ANCIEN until all is done. Beside them waits the list of
; the older version: LISTE, FAITE once all is placed, RESTE once what only the older version had is gone.
!define LISTE "liste.txt"
!define FAITE "faite.txt"
!define RESTE "reste.txt"

; Says which file could not be written or replaced (on the stack), and ends.
Function renoncer
  Pop $0
  RMDir /r "$INSTDIR\${NOUVEAU}"
  MessageBox MB_OK|MB_ICONSTOP "Ce fichier n'a pas pu être écrit ou remplacé :$\r$\n$0$\r$\n$\r$\nRien n'a changé. Vérifiez la place sur le disque et vos droits sur ce dossier, puis recommencez." /SD IDOK
  SetErrorLevel 4
  Quit
FunctionEnd

; Writes the new version under NOUVEAU, to the disk itself.
Function deposer
  RMDir /r "$INSTDIR\${NOUVEAU}"
  ClearErrors
  CreateDirectory "$INSTDIR\${NOUVEAU}"
  ${If} ${Errors}
    Push "$INSTDIR"
    Call renoncer
  ${EndIf}
  !include "${EXTRAIRE}"
  SetOutPath "$INSTDIR\${NOUVEAU}"
  File "/oname=${LISTE}" "${CONTENU}\${FICHIERS}"
  WriteUninstaller "$INSTDIR\${NOUVEAU}\desinstaller.exe"
  ${If} ${Errors}
    Push "$INSTDIR\${NOUVEAU}"
    Call renoncer
  ${EndIf}
  SetOutPath "$INSTDIR"
  FileOpen $0 "$INSTDIR\${NOUVEAU}\${LISTE}" r
  ${Do}
    FileRead $0 $1
    ${TrimNewLines} $1 $1
    ${If} $1 == ""
      ${Break}
    ${EndIf}
    StrCpy $2 "$INSTDIR\${NOUVEAU}\$1"
    System::Call 'kernel32::CreateFileW(w r2, i 0x40000000, i 1, p 0, i 3, i 0, p 0) p .r3'
    System::Call 'kernel32::FlushFileBuffers(p r3) i .r4'
    System::Call 'kernel32::CloseHandle(p r3)'
    ${If} $4 = 0
      FileClose $0
      Push $2
      Call renoncer
    ${EndIf}
  ${Loop}
  FileClose $0
FunctionEnd

; Moves the file or folder $0 to $1. Where $2 is a path, and $0 a file, a file at $1 goes to $2. $2 is 0 if
; that failed for two seconds: a scanner may hold a new file for a moment.
Function deplacer
  Push $3
  Push $4
  StrCpy $3 $2
  ${For} $4 1 20
    ${If} $3 != ""
    ${AndIf} ${FileExists} $1
      System::Call 'kernel32::ReplaceFileW(w r1, w r0, w r3, i 0, p 0, p 0) i .r2'
    ${Else}
      System::Call 'kernel32::MoveFileExW(w r0, w r1, i 8) i .r2'
    ${EndIf}
    ${If} $2 <> 0
      ${Break}
    ${EndIf}
    Sleep 100
  ${Next}
  Pop $4
  Pop $3
FunctionEnd

; Puts the file of NOUVEAU whose path is on the stack in place; what stood there goes under ANCIEN.
; On the stack: 0 if that failed.
Function placer
  Exch $3
  Push $0
  Push $1
  Push $2
  StrCpy $0 "$INSTDIR\${NOUVEAU}\$3"
  StrCpy $1 "$INSTDIR\$3"
  StrCpy $2 "$INSTDIR\${ANCIEN}\$3"
  ${GetParent} $1 $4
  CreateDirectory $4
  ${If} ${FileExists} $1
    ${GetParent} $2 $4
    CreateDirectory $4
  ${EndIf}
  Call deplacer
  StrCpy $3 $2
  Pop $2
  Pop $1
  Pop $0
  Exch $3
FunctionEnd

; Puts all back as it was before `echanger`, which could not place the file on the stack.
Function defaire
  FileOpen $5 "$INSTDIR\${NOUVEAU}\${LISTE}" r
  ${Do}
    FileRead $5 $3
    ${TrimNewLines} $3 $3
    ${If} $3 == ""
      ${Break}
    ${EndIf}
    StrCpy $0 "$INSTDIR\${ANCIEN}\$3"
    StrCpy $1 "$INSTDIR\$3"
    StrCpy $2 $3 8
    ${If} $2 != "fournis\"
      ${If} ${FileExists} $0
        System::Call 'kernel32::MoveFileExW(w r0, w r1, i 9) i .r2'
      ${ElseIfNot} ${FileExists} "$INSTDIR\${NOUVEAU}\$3"
        Delete $1 ; it was placed, and there was none before
        Push $INSTDIR
        Push $3
        Call oterdossiers
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $5
  ${If} ${FileExists} "$INSTDIR\${ANCIEN}\fournis\*.*"
    Rename "$INSTDIR\fournis" "$INSTDIR\${NOUVEAU}\fournis"
    Rename "$INSTDIR\${ANCIEN}\fournis" "$INSTDIR\fournis"
  ${ElseIfNot} ${FileExists} "$INSTDIR\${NOUVEAU}\fournis\*.*"
    Rename "$INSTDIR\fournis" "$INSTDIR\${NOUVEAU}\fournis"
  ${EndIf}
  RMDir /r "$INSTDIR\${ANCIEN}"
  Call renoncer
FunctionEnd

; The folder that programs are filled from, at once: cut between the two moves, `recuperer` mends it.
Function echangerfournis
  StrCpy $0 "$INSTDIR\fournis"
  StrCpy $1 "$INSTDIR\${ANCIEN}\fournis"
  ${If} ${FileExists} "$0\*.*"
    StrCpy $2 ""
    Call deplacer
    ${If} $2 = 0
      Push $0
      Call defaire
    ${EndIf}
  ${EndIf}
  StrCpy $0 "$INSTDIR\${NOUVEAU}\fournis"
  StrCpy $1 "$INSTDIR\fournis"
  StrCpy $2 ""
  Call deplacer
  ${If} $2 = 0
    Push $1
    Call defaire
  ${EndIf}
FunctionEnd

Function echanger
  CreateDirectory "$INSTDIR\${ANCIEN}"
  ${If} ${FileExists} "$INSTDIR\${FICHIERS}"
    CopyFiles /SILENT "$INSTDIR\${FICHIERS}" "$INSTDIR\${ANCIEN}\${LISTE}"
  ${EndIf}
  Call echangerfournis
  Call placerfichiers
  Rename "$INSTDIR\${ANCIEN}\${LISTE}" "$INSTDIR\${ANCIEN}\${FAITE}"
FunctionEnd

; All files but those of `fournis`, in the order of the list: the programs come last.
Function placerfichiers
  FileOpen $5 "$INSTDIR\${NOUVEAU}\${LISTE}" r
  ${Do}
    FileRead $5 $6
    ${TrimNewLines} $6 $6
    ${If} $6 == ""
      ${Break}
    ${EndIf}
    StrCpy $7 $6 8
    ${If} $portable <> 0
      ${If} $6 == "desinstaller.exe"
      ${OrIf} $6 == "${FICHIERS}"
        ${Continue}
      ${EndIf}
    ${EndIf}
    ${If} $7 != "fournis\"
      Push $6
      Call placer
      Pop $7
      ${If} $7 = 0
        FileClose $5
        Push "$INSTDIR\$6"
        Call defaire
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $5
FunctionEnd

; What an installation that was cut has left: the older `fournis` comes back if the newer is not there.
Function recuperer
  ${If} ${FileExists} "$INSTDIR\${ANCIEN}\*.*"
    ${IfNot} ${FileExists} "$INSTDIR\fournis\*.*"
      Rename "$INSTDIR\${ANCIEN}\fournis" "$INSTDIR\fournis"
    ${EndIf}
    Call nettoyer
  ${EndIf}
FunctionEnd

; Takes away what is left of the older version, and nothing else.
Function nettoyer
  StrCpy $0 "$INSTDIR\${ANCIEN}"
  ${If} ${FileExists} "$0\${FAITE}"
    Call oterabandonnes
    Rename "$0\${FAITE}" "$0\${RESTE}"
  ${ElseIf} ${FileExists} "$0\${LISTE}"
    ; Cut before the end: the list of the older version counts, until a newer one is there whole.
    StrCpy $1 "$0\${FICHIERS}"
    StrCpy $2 "$INSTDIR\${FICHIERS}"
    System::Call 'kernel32::MoveFileExW(w r1, w r2, i 9) i .r3'
    Rename "$0\${LISTE}" "$0\${RESTE}"
  ${EndIf}
  Push $0
  Push "$0\${RESTE}"
  Call oterselon
  Push ""
  Call rendre
  Delete "$0\${RESTE}"
  RMDir "$0"
FunctionEnd

; The files that the older version had and the newer has not: those that nothing has replaced.
Function oterabandonnes
  FileOpen $1 "$INSTDIR\${ANCIEN}\${FAITE}" r
  ${Do}
    FileRead $1 $2
    ${TrimNewLines} $2 $2
    Push $2
    Call sain
    Pop $2
    ${If} $2 == ""
      ${Break}
    ${EndIf}
    StrCpy $3 $2 8
    ${If} $3 != "fournis\"
    ${AndIfNot} ${FileExists} "$INSTDIR\${ANCIEN}\$2"
      Delete "$INSTDIR\$2"
      Push $INSTDIR
      Push $2
      Call oterdossiers
    ${EndIf}
  ${Loop}
  FileClose $1
FunctionEnd

; Files under `fournis` that no version brought go back there. On the stack: "", or a folder in it with
; a backslash before.
Function rendre
  Exch $0
  Push $1
  Push $2
  FindFirst $1 $2 "$INSTDIR\${ANCIEN}\fournis$0\*.*"
  ${While} $2 != ""
    ${If} $2 == "."
    ${OrIf} $2 == ".."
    ${ElseIf} ${FileExists} "$INSTDIR\${ANCIEN}\fournis$0\$2\*.*"
      Push "$0\$2"
      Call rendre
    ${Else}
      CreateDirectory "$INSTDIR\fournis$0"
      Rename "$INSTDIR\${ANCIEN}\fournis$0\$2" "$INSTDIR\fournis$0\$2"
    ${EndIf}
    FindNext $1 $2
  ${EndWhile}
  FindClose $1
  RMDir "$INSTDIR\${ANCIEN}\fournis$0"
  Pop $2
  Pop $1
  Pop $0
FunctionEnd

; An unpacked folder: its lists, pictures and sound by the rule of every update of a play folder, which
; what the player changed survives; then the programs.
Function actualiserportable
  File "/oname=$PLUGINSDIR\orvane-rafraichir.exe" "${RAFRAICHIR}"
  SetOutPath "$INSTDIR"
  nsExec::ExecToLog '"$PLUGINSDIR\orvane-rafraichir.exe" ${NOUVEAU}\fournis .'
  Pop $0
  ${If} $0 != 0
    Push "$INSTDIR\listes"
    Call renoncer
  ${EndIf}
  CreateDirectory "$INSTDIR\${ANCIEN}"
  Call placerfichiers
  StrCpy $0 "$INSTDIR\${NOUVEAU}\fournis\inventaire.txt"
  StrCpy $1 "$INSTDIR\inventaire.txt"
  StrCpy $2 "$INSTDIR\${ANCIEN}\inventaire.txt"
  Call deplacer
  RMDir /r "$INSTDIR\${ANCIEN}"
FunctionEnd
