; The installer. package/make_packages.cmake runs makensis on it and gives:
;   VERSION  ARCHITECTURE  STAGE (the laid-out package)  OUTPUT
;   files.nsh: the macros InstallFiles and RemoveFiles, one line for each file and folder
; Silent:  setup.exe /S [/D=FOLDER]     and     FOLDER\uninstall.exe /S
!if ${ARCHITECTURE} == x86_64
  Target amd64-unicode
  !define PROGRAMS $PROGRAMFILES64
!else
  Target x86-unicode
  !define PROGRAMS $PROGRAMFILES32
!endif
!include files.nsh

!define APPS Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavix
!define PUBLISHER "The Tavix authors"

Name "Tavix ${VERSION}"
OutFile "${OUTPUT}"
InstallDir ${PROGRAMS}\Tavix
InstallDirRegKey HKLM ${APPS} InstallLocation
RequestExecutionLevel admin
SetCompressor /SOLID lzma
SetDateSave off
ShowInstDetails show
ShowUninstDetails show

VIProductVersion ${VERSION}.0
VIAddVersionKey ProductName Tavix
VIAddVersionKey ProductVersion ${VERSION}
VIAddVersionKey FileVersion ${VERSION}
VIAddVersionKey FileDescription "Installer of the plot window for surveying applications"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey LegalCopyright "The Tavix authors. MIT license."

LicenseData "${STAGE}/share/doc/tavix/LICENSE"
Page license
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; The start menu and the list of apps are those of all users, in the registry of this word size.
!macro SameView
  SetShellVarContext all
  !if ${ARCHITECTURE} == x86_64
    SetRegView 64
  !endif
!macroend

Function .onInit
  !insertmacro SameView
FunctionEnd
Function un.onInit
  !insertmacro SameView
FunctionEnd

Section
  !insertmacro InstallFiles
  SetOutPath $INSTDIR\bin
  CreateDirectory $SMPROGRAMS\Tavix
  CreateShortcut "$SMPROGRAMS\Tavix\Tavix sample host.lnk" $INSTDIR\bin\fieldhost.exe
  WriteUninstaller $INSTDIR\uninstall.exe
  WriteRegStr HKLM ${APPS} DisplayName Tavix
  WriteRegStr HKLM ${APPS} DisplayVersion ${VERSION}
  WriteRegStr HKLM ${APPS} Publisher "${PUBLISHER}"
  WriteRegStr HKLM ${APPS} DisplayIcon $INSTDIR\bin\fieldhost.exe
  WriteRegStr HKLM ${APPS} InstallLocation $INSTDIR
  WriteRegStr HKLM ${APPS} UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM ${APPS} QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM ${APPS} EstimatedSize ${KILOBYTES}
  WriteRegDWORD HKLM ${APPS} NoModify 1
  WriteRegDWORD HKLM ${APPS} NoRepair 1
SectionEnd

Section Uninstall
  ; Only what was installed: a folder that holds something else stays.
  SetOutPath $TEMP
  Delete "$SMPROGRAMS\Tavix\Tavix sample host.lnk"
  RMDir $SMPROGRAMS\Tavix
  !insertmacro RemoveFiles
  DeleteRegKey HKLM ${APPS}
  Delete $INSTDIR\uninstall.exe
  RMDir $INSTDIR
SectionEnd
