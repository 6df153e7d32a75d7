@echo off
rem Starts the menu in this folder. The folder Workstation stands for the local folders of a workstation.
rem pushd also works on a share, and cd does not.
pushd "%~dp0"
set "Tessel=%~dp0Workstation\Tessel"
set "TesselTemp=%~dp0Workstation\Temp"
if not exist "%Tessel%" mkdir "%Tessel%"
if not exist "%TesselTemp%" mkdir "%TesselTemp%"
start "" ObrinMenu.exe
