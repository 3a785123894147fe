; The installer. makensis -DVERZE=.. -DSLOZKA=folder of what is installed -DIKONA=icon -DKAM=file
; The program and its data lie where nobody writes; the machine's configuration in %PROGRAMDATA% says
; so, and that every account has its own results. Nothing that was played is ever taken away.
; For machines of 64 bits, as the program is.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel admin

!include MUI2.nsh
!include LogicLib.nsh
!define KLIC "Software\Microsoft\Windows\CurrentVersion\Uninstall\Rysovna 1"
!define MUI_ICON "${IKONA}"
!define MUI_UNICON "${IKONA}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\rysovna.exe"

Name "Rysovna 1"
OutFile "${KAM}"
InstallDir "$PROGRAMFILES64\Rysovna 1"
VIProductVersion "${VERZE}.0.0"

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Czech"
VIAddVersionKey /LANG=${LANG_CZECH} "ProductName" "Rysovna 1"
VIAddVersionKey /LANG=${LANG_CZECH} "FileDescription" "Instalátor Rysovny 1"
VIAddVersionKey /LANG=${LANG_CZECH} "FileVersion" "${VERZE}"
VIAddVersionKey /LANG=${LANG_CZECH} "LegalCopyright" ""

Var Minule  ; folder of an earlier installation

Function .onInit
    SetShellVarContext all
    SetRegView 64
    ReadRegStr $Minule HKLM "${KLIC}" "InstallLocation"
    ${If} $Minule != ""
    ${AndIf} $INSTDIR == "$PROGRAMFILES64\Rysovna 1"
        StrCpy $INSTDIR $Minule
    ${EndIf}
FunctionEnd

Function un.onInit
    SetShellVarContext all
    SetRegView 64
FunctionEnd

; $1: text, written into the open file $0 in UTF-8, whatever the machine's code page is.
Function Pis
    System::Call 'kernel32::WideCharToMultiByte(i 65001, i 0, w r1, i -1, p 0, i 0, p 0, p 0) i .r2'
    System::Alloc $2
    Pop $3
    System::Call 'kernel32::WideCharToMultiByte(i 65001, i 0, w r1, i -1, p r3, i r2, p 0, p 0)'
    IntOp $2 $2 - 1
    System::Call 'kernel32::WriteFile(p r0, p r3, i r2, *i .r4, p 0)'
    System::Free $3
FunctionEnd
!macro Radek text
    StrCpy $1 "${text}$\r$\n"
    Call Pis
!macroend

Section
    SetOutPath "$INSTDIR"
    File "${SLOZKA}\rysovna.exe" "${SLOZKA}\kodovani.exe" "${SLOZKA}\prehled.exe"
    SetOutPath "$INSTDIR\assets"
    File /r "${SLOZKA}\assets\*"
    SetOutPath "$INSTDIR\data"
    ; Results of a copy that was played with are none of the game.
    File /x Vysledky.dat "${SLOZKA}\data\*.dat"

    CreateDirectory "$APPDATA\Rysovna"
    ; Another folder than before: what leads to the old one is put aside.
    ${If} $Minule != $INSTDIR
        Delete "$APPDATA\Rysovna\Rysovna.ini.bak"
        Rename "$APPDATA\Rysovna\Rysovna.ini" "$APPDATA\Rysovna\Rysovna.ini.bak"
    ${EndIf}
    ${IfNot} ${FileExists} "$APPDATA\Rysovna\Rysovna.ini"
        FileOpen $0 "$APPDATA\Rysovna\Rysovna.ini" w
        !insertmacro Radek "; Nastavení nainstalované hry. Výsledky má každý účet své. Společné výsledky třídy:"
        !insertmacro Radek "; místo slova ucet cesta ke složce, do které smějí zapisovat všichni žáci."
        !insertmacro Radek "[RYSOVNA1]"
        !insertmacro Radek "CD=$INSTDIR\assets"
        !insertmacro Radek "HD=$INSTDIR\data"
        !insertmacro Radek "VYSLEDKY=ucet"
        FileClose $0
    ${EndIf}

    CreateShortcut "$SMPROGRAMS\Rysovna 1.lnk" "$INSTDIR\rysovna.exe"
    WriteUninstaller "$INSTDIR\odinstalovat.exe"
    WriteRegStr HKLM "${KLIC}" "DisplayName" "Rysovna 1"
    WriteRegStr HKLM "${KLIC}" "DisplayVersion" "${VERZE}"
    WriteRegStr HKLM "${KLIC}" "DisplayIcon" "$INSTDIR\rysovna.exe"
    WriteRegStr HKLM "${KLIC}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${KLIC}" "UninstallString" '"$INSTDIR\odinstalovat.exe"'
    WriteRegStr HKLM "${KLIC}" "QuietUninstallString" '"$INSTDIR\odinstalovat.exe" /S'
    WriteRegDWORD HKLM "${KLIC}" "NoModify" 1
    WriteRegDWORD HKLM "${KLIC}" "NoRepair" 1
SectionEnd

Section Uninstall
    Delete "$SMPROGRAMS\Rysovna 1.lnk"
    Delete "$INSTDIR\rysovna.exe"
    Delete "$INSTDIR\kodovani.exe"
    Delete "$INSTDIR\prehled.exe"
    Delete "$INSTDIR\odinstalovat.exe"
    RMDir /r "$INSTDIR\assets"
    ; What is not the game's own stays, a log of results above all, and the folder with it.
    !include "${SEZNAM_DAT}"
    RMDir "$INSTDIR\data"
    RMDir "$INSTDIR"
    Delete "$APPDATA\Rysovna\Rysovna.ini.bak"
    Rename "$APPDATA\Rysovna\Rysovna.ini" "$APPDATA\Rysovna\Rysovna.ini.bak"
    DeleteRegKey HKLM "${KLIC}"
SectionEnd
