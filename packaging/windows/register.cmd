@echo off
rem Makes the panel known to the system, for all users; to be run as administrator, and again when
rem the folder has been moved. With /u takes that back.
setlocal
set "undo=%~1"
set "status=0"
set "native=System32"
rem A 32-bit command interpreter finds the system's 64-bit programs under another name.
if defined PROCESSOR_ARCHITEW6432 set "native=Sysnative"
if "%PROCESSOR_ARCHITECTURE%%PROCESSOR_ARCHITEW6432%"=="x86" (
    call :run x86 System32
    goto :end
)
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :run x86 SysWOW64
rem What can be taken back is, whatever becomes of the other library.
if %status%==1 if not defined undo goto :end
call :run x64 %native%
:end
exit /b %status%

:run
"%SystemRoot%\%2\regsvr32.exe" /s %undo% "%~dp0%1\cmn_krx8maintenanceui.dll"
if not errorlevel 1 goto :eof
echo regsvr32 has failed for the %1 library. Was this run as administrator?
set "status=1"
goto :eof
