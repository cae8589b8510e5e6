; The installer. scripts/windows tells it VERSION, CARPETA (the folder that is installed), ICONO and SALIDA.
;
;   calvento-VERSION.exe /S [/CurrentUser | /AllUsers] [/D=C:\FOLDER]     without a window
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

!define CLAVE "Software\Microsoft\Windows\CurrentVersion\Uninstall\Calvento"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR Calvento
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${CLAVE}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${CLAVE}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include x64.nsh

Name "Calvento"
OutFile "${SALIDA}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Calvento"
VIAddVersionKey FileDescription "Instalador de Calvento"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "GNU GPL, versión 3"
BrandingText "Calvento ${VERSION}"

!define MUI_ICON "${ICONO}"
!define MUI_UNICON "${ICONO}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\calvento.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${CARPETA}\LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE SpanishInternational

; the three kinds of files: extension, name of the kind, what a folder shows of it, number of its icon
!macro Clase EXTENSION CLASE DESCRIPCION NUMERO
  WriteRegStr SHCTX "Software\Classes\${CLASE}" "" "${DESCRIPCION}"
  WriteRegStr SHCTX "Software\Classes\${CLASE}\DefaultIcon" "" "$INSTDIR\calvento.exe,${NUMERO}"
  WriteRegStr SHCTX "Software\Classes\${CLASE}\shell\open\command" "" '"$INSTDIR\calvento.exe" "%1"'
  WriteRegStr SHCTX "Software\Classes\${EXTENSION}" "" "${CLASE}"
  WriteRegStr SHCTX "Software\Classes\${EXTENSION}\OpenWithProgids" "${CLASE}" ""
!macroend
; another program may have taken the extension meanwhile
!macro QuitarClase EXTENSION CLASE
  DeleteRegKey SHCTX "Software\Classes\${CLASE}"
  DeleteRegValue SHCTX "Software\Classes\${EXTENSION}\OpenWithProgids" "${CLASE}"
  DeleteRegKey /ifempty SHCTX "Software\Classes\${EXTENSION}\OpenWithProgids"
  ReadRegStr $0 SHCTX "Software\Classes\${EXTENSION}" ""
  StrCmp $0 "${CLASE}" 0 +2
    DeleteRegValue SHCTX "Software\Classes\${EXTENSION}" ""
  DeleteRegKey /ifempty SHCTX "Software\Classes\${EXTENSION}"
!macroend
!define AvisarDeClases 'System::Call "shell32::SHChangeNotify(i 0x8000000, i 0, p 0, p 0)"'

Function .onInit
  ${IfNot} ${RunningX64}
    MessageBox MB_ICONSTOP "Calvento necesita un Windows de 64 bits."
    Abort
  ${EndIf}
  SetRegView 64
  ; MultiUser would put its own folder in the place of that of /D
  StrCpy $R0 $INSTDIR
  !insertmacro MULTIUSER_INIT
  ${If} $R0 != ""
    StrCpy $INSTDIR $R0
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section "Calvento"
  ; a running program holds its files
  ClearErrors
  ${If} ${FileExists} "$INSTDIR\calvento.exe"
    FileOpen $0 "$INSTDIR\calvento.exe" a
    ${If} ${Errors}
      MessageBox MB_ICONSTOP "Calvento está abierto, o no hay permiso para cambiarlo. Ciérrelo y vuelva a instalar." /SD IDOK
      Abort "Calvento está abierto"
    ${EndIf}
    FileClose $0
  ${EndIf}

  SetOutPath "$INSTDIR"
  File /r "${CARPETA}\*"
  WriteUninstaller "$INSTDIR\desinstalar.exe"

  CreateDirectory "$SMPROGRAMS\Calvento"
  CreateShortcut "$SMPROGRAMS\Calvento\Calvento.lnk" "$INSTDIR\calvento.exe"
  CreateShortcut "$SMPROGRAMS\Calvento\Manual del usuario.lnk" "$INSTDIR\Manual del Usuario de CALVENTO.pdf"
  CreateShortcut "$SMPROGRAMS\Calvento\Ejemplos.lnk" "$INSTDIR\ejemplos"

  !insertmacro Clase .cvr Calvento.Rapida "Diseño de rápida" 1
  !insertmacro Clase .cvi Calvento.CaidaInclinada "Diseño de caída inclinada" 2
  !insertmacro Clase .cvv Calvento.CaidaVertical "Diseño de caída vertical" 3
  ${AvisarDeClases}

  WriteRegStr SHCTX "${CLAVE}" DisplayName "Calvento"
  WriteRegStr SHCTX "${CLAVE}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${CLAVE}" DisplayIcon "$INSTDIR\calvento.exe"
  WriteRegStr SHCTX "${CLAVE}" Publisher "Calvento"
  WriteRegStr SHCTX "${CLAVE}" InstallLocation "$INSTDIR"
  WriteRegStr SHCTX "${CLAVE}" UninstallString '"$INSTDIR\desinstalar.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${CLAVE}" QuietUninstallString '"$INSTDIR\desinstalar.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${CLAVE}" NoModify 1
  WriteRegDWORD SHCTX "${CLAVE}" NoRepair 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${CLAVE}" EstimatedSize $0
SectionEnd

; What was installed goes, file by file; what somebody has put beside it stays.
Section "Uninstall"
  !include "${QUITAR}"
  Delete "$INSTDIR\desinstalar.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Calvento\Calvento.lnk"
  Delete "$SMPROGRAMS\Calvento\Manual del usuario.lnk"
  Delete "$SMPROGRAMS\Calvento\Ejemplos.lnk"
  RMDir "$SMPROGRAMS\Calvento"
  !insertmacro QuitarClase .cvr Calvento.Rapida
  !insertmacro QuitarClase .cvi Calvento.CaidaInclinada
  !insertmacro QuitarClase .cvv Calvento.CaidaVertical
  ${AvisarDeClases}
  DeleteRegKey SHCTX "${CLAVE}"
SectionEnd
