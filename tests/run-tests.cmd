@echo off
rem Runs the tests of the Obrin menu on this machine and writes report.txt beside this file. Ends with the number of
rem failures.
setlocal
set report=%~dp0report.txt
set scratch=%TEMP%\ObrinTests-%RANDOM%
set key=HKLM\Software\Obrin
set failures=0

if exist "%~dp0end_to_end_tests.exe" goto unpacked
echo Please unpack the whole archive first, and start run-tests.cmd there.
pause
exit /b 99

:unpacked

echo This runs the tests of the Obrin menu, for about two minutes. They open windows, type and move the mouse:
echo close a menu and a Fenn that run, and leave mouse and keyboard alone until the end.
echo.
echo What is written:
echo   %report%
echo   %scratch%, which goes afterwards
echo   the registry value LastSystem of %key%, and the key HKCU\Software\ObrinTestMachine,
echo   which are put back afterwards. The values of %key% are kept until then in
echo   %scratch%\saved.reg
echo.

pause

mkdir "%scratch%"
rem The right to write there tells at the same time whether the key has to go in the end.
reg query %key% >nul 2>&1
set isnew=%errorlevel%
if %isnew%==0 reg export %key% "%scratch%\saved.reg" /y >nul 2>&1
reg add %key% /v LastSystem /d tests /f >nul 2>&1
set mayremember=%errorlevel%
if not %mayremember%==0 echo You may not write to %key%. The tests then see that no system is remembered,
if not %mayremember%==0 echo and leave out what a remembered one does. To have them all: "Run as administrator".

rem Tests make their folders below TEMP. Programs out of a downloaded archive start without a question.
set TEMP=%scratch%
set TMP=%scratch%
set SEE_MASK_NOZONECHECKS=1
set TEST_PREMATURE_EXIT_FILE=%scratch%\running

echo The tests of the Obrin menu on %COMPUTERNAME%, %DATE% %TIME% >"%report%"
ver >>"%report%"
echo %PROCESSOR_ARCHITECTURE%, HKLM written: %mayremember% (0 is yes) >>"%report%"
reg query "HKCU\Control Panel\Desktop\WindowMetrics" /v AppliedDPI >>"%report%" 2>nul

cd /d "%scratch%"
call :run rules_tests
call :run windows_tests
call :run end_to_end_tests
rem Out of the folder that goes; this one may be a share, which cannot be a current folder.
cd /d "%SystemRoot%"

if %mayremember%==0 reg delete %key% /v LastSystem /f >nul 2>&1
if %mayremember%==0 if not %isnew%==0 reg delete %key% /f >nul 2>&1
if %mayremember%==0 if %isnew%==0 reg import "%scratch%\saved.reg" >nul 2>&1
reg delete HKCU\Software\ObrinTestMachine /f >nul 2>&1
rmdir /s /q "%scratch%"

echo %failures% failures >>"%report%"
echo.
echo %failures% failures. What happened stands in %report%
pause
exit /b %failures%

:run
echo Running %1
"%~dp0%1.exe" --gtest_color=no >"%scratch%\log.txt" 2>&1
set code=%errorlevel%
type "%scratch%\log.txt" >>"%report%"
set before=%failures%
find "FAILED TEST" <"%scratch%\log.txt" >"%scratch%\count.txt"
for /f "usebackq" %%n in ("%scratch%\count.txt") do set /a failures+=%%n
rem One that ends in the middle does not come to its count.
if exist "%TEST_PREMATURE_EXIT_FILE%" set code=ended in the middle
if exist "%TEST_PREMATURE_EXIT_FILE%" del "%TEST_PREMATURE_EXIT_FILE%"
if not "%code%"=="0" if %failures%==%before% set /a failures+=1
echo %1: %code% >>"%report%"
exit /b 0
