; What the installer and the uninstaller share: UN is empty or "un.". A list of files is a text with a
; path on each line, ASCII, backslashes between.

!include FileFunc.nsh
!include TextFunc.nsh

!macro outils UN
; The path on the stack, if it stays under the folder that it is taken from; otherwise "".
Function ${UN}sain
  Exch $0
  Push $1
  Push $2
  StrCpy $1 $0 1
  ${If} $1 == "\"
    StrCpy $0 ""
  ${EndIf}
  StrCpy $1 0
  ${Do}
    StrCpy $2 $0 2 $1
    ${If} $2 == ""
      ${Break}
    ${EndIf}
    ${If} $2 == ".."
      StrCpy $0 ""
    ${EndIf}
    StrCpy $2 $2 1
    ${If} $2 == ":"
    ${OrIf} $2 == "*"
    ${OrIf} $2 == "?"
      StrCpy $0 ""
    ${EndIf}
    IntOp $1 $1 + 1
  ${Loop}
  Pop $2
  Pop $1
  Exch $0
FunctionEnd

; Removes the folders above the path on the stack, up to the folder below it on the stack, as far as
; they are empty.
Function ${UN}oterdossiers
  Exch $0 ; path, relative
  Exch
  Exch $1 ; folder
  ${GetParent} $0 $0
  ${DoUntil} $0 == ""
    RMDir "$1\$0"
    ${GetParent} $0 $0
  ${Loop}
  Pop $1
  Pop $0
FunctionEnd

; Deletes under a folder (below on the stack) the files of a list (on the stack), and the folders that
; this empties.
Function ${UN}oterselon
  Exch $0 ; list
  Exch
  Exch $1 ; folder
  Push $2
  Push $3
  ClearErrors
  FileOpen $2 $0 r
  ${IfNot} ${Errors}
    ${Do}
      FileRead $2 $3
      ${${UN}TrimNewLines} $3 $3
      Push $3
      Call ${UN}sain
      Pop $3
      ${If} $3 == ""
        ${Break}
      ${EndIf}
      Delete "$1\$3"
      Push $1
      Push $3
      Call ${UN}oterdossiers
    ${Loop}
    FileClose $2
  ${EndIf}
  Pop $3
  Pop $2
  Pop $1
  Pop $0
FunctionEnd
!macroend
!insertmacro outils ""
!insertmacro outils "un."
