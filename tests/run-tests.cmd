@echo off
rem Runs the tests of the Obrin menu on this machine and writes report.txt beside this file. The exit code is the
rem number of failures.
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

echo This runs the tests of the Obrin menu, for about two minutes. They open windows, type and move the mouse.
echo Please close the menu and Fenn first, and leave mouse and keyboard alone until the end.
echo.
echo What is written:
echo   %report%
echo   %scratch%, which is deleted afterwards
echo   the registry value LastSystem of %key%, which is restored afterwards. Until then the values
echo   of %key% are saved in %scratch%\saved.reg
echo   the registry key HKCU\Software\ObrinTestMachine, which is deleted afterwards
echo.

pause

mkdir "%scratch%"
rem A key that does not exist yet is deleted at the end.
reg query %key% >nul 2>&1
set keymissing=%errorlevel%
if %keymissing%==0 reg export %key% "%scratch%\saved.reg" /y >nul 2>&1
rem 0 if this user may write to the key.
reg add %key% /v LastSystem /d tests /f >nul 2>&1
set writeerror=%errorlevel%
if not %writeerror%==0 echo You may not write to %key%, so the tests leave out what the menu does with
if not %writeerror%==0 echo a system that it remembers there. To run them all, use "Run as administrator".

rem The tests make their folders below TEMP.
set TEMP=%scratch%
set TMP=%scratch%
rem Windows then starts programs from a downloaded archive without asking.
set SEE_MASK_NOZONECHECKS=1
rem GoogleTest makes this file and deletes it when the tests have run to their end.
set TEST_PREMATURE_EXIT_FILE=%scratch%\running

echo The tests of the Obrin menu on %COMPUTERNAME%, %DATE% %TIME% >"%report%"
ver >>"%report%"
echo %PROCESSOR_ARCHITECTURE%, error of writing to %key%: %writeerror% (0: none) >>"%report%"
reg query "HKCU\Control Panel\Desktop\WindowMetrics" /v AppliedDPI >>"%report%" 2>nul

cd /d "%scratch%"
call :run rules_tests
call :run windows_tests
call :run end_to_end_tests
rem Leave the scratch folder, which is deleted below. The folder of this file may be on a share, which cannot be the
rem current folder.
cd /d "%SystemRoot%"

if %writeerror%==0 reg delete %key% /v LastSystem /f >nul 2>&1
if %writeerror%==0 if not %keymissing%==0 reg delete %key% /f >nul 2>&1
if %writeerror%==0 if %keymissing%==0 reg import "%scratch%\saved.reg" >nul 2>&1
reg delete HKCU\Software\ObrinTestMachine /f >nul 2>&1
rmdir /s /q "%scratch%"

echo %failures% failures >>"%report%"
echo.
echo %failures% failures. The report is %report%
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
rem A program that ends in the middle of its tests does not print the count of failures.
if exist "%TEST_PREMATURE_EXIT_FILE%" set code=ended in the middle
if exist "%TEST_PREMATURE_EXIT_FILE%" del "%TEST_PREMATURE_EXIT_FILE%"
if not "%code%"=="0" if %failures%==%before% set /a failures+=1
echo %1: %code% >>"%report%"
exit /b 0
