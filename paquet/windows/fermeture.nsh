; Programs of the folder that are running: found by the file, which nobody can open for writing
; meanwhile, and asked to close by a message to their windows.

!macro fermeture UN

; The first program that is running on the stack, "" if none.
Function ${UN}ouvert
  Push $0
  Push $1
  StrCpy $1 ""
  !insertmacro essayerouvrir orvane.exe "Orvane"
  !insertmacro essayerouvrir orvane-carnet.exe "Le carnet d'Orvane"
  !insertmacro essayerouvrir orvane-listes.exe "orvane-listes"
  StrCpy $0 $1
  Pop $1
  Exch $0
FunctionEnd

; Sends the message of the close box to each window of these programs.
Function ${UN}prier
  Push $0
  Push $1
  Push $2
  Push $3
  Push $4
  System::Call 'kernel32::GetLongPathNameW(w "$INSTDIR", w .r3, i ${NSIS_MAX_STRLEN}) i .r0'
  StrLen $4 "$3\orvane"
  FindWindow $0 "" "" 0 0
  ${While} $0 <> 0
    System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r1)'
    System::Call 'kernel32::OpenProcess(i 0x1000, i 0, i r1) p .r1'
    ${If} $1 P<> 0
      System::Call 'kernel32::QueryFullProcessImageNameW(p r1, i 0, w .r2, *i ${NSIS_MAX_STRLEN})'
      System::Call 'kernel32::CloseHandle(p r1)'
      StrCpy $2 $2 $4
      ${If} $2 == "$3\orvane"
      ${AndIf} $3 != ""
        System::Call 'user32::PostMessageW(p r0, i ${WM_CLOSE}, p 0, p 0)'
      ${EndIf}
    ${EndIf}
    FindWindow $0 "" "" 0 $0
  ${EndWhile}
  Pop $4
  Pop $3
  Pop $2
  Pop $1
  Pop $0
FunctionEnd

; Returns once nothing of the folder runs. A program that has just opened this installer is ending:
; it is given five seconds. Then the player is asked; where nobody can be asked, the windows, for
; fifteen seconds. Ends the installation otherwise.
Function ${UN}fermer
  StrCpy $1 0 ; quarters of a second
  ${Do}
    Call ${UN}ouvert
    Pop $0
    ${If} $0 == ""
      Return
    ${EndIf}
    IntOp $1 $1 + 1
    IntOp $2 $1 % 4
    ${If} ${Silent}
      ${If} $2 = 1
        Call ${UN}prier
      ${EndIf}
      ${If} $1 > 60
        RMDir /r "$INSTDIR\${NOUVEAU}"
        SetErrorLevel 3
        Quit
      ${EndIf}
    ${ElseIf} $1 > 20
      ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 est ouvert.$\r$\n$\r$\nFermez-le, puis recommencez. Une liste en cours sera à reprendre ; tout ce qui est corrigé est déjà enregistré." IDCANCEL`
        RMDir /r "$INSTDIR\${NOUVEAU}"
        SetErrorLevel 1
        Quit
      ${EndIf}
    ${EndIf}
    Sleep 250
  ${Loop}
FunctionEnd
!macroend

!macro essayerouvrir fichier nom
  ${If} $1 == ""
  ${AndIf} ${FileExists} "$INSTDIR\${fichier}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${fichier}" a
    ${If} ${Errors}
      StrCpy $1 "${nom}"
    ${Else}
      FileClose $0
    ${EndIf}
  ${EndIf}
!macroend

!insertmacro fermeture ""
!insertmacro fermeture "un."
