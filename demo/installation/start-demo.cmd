@echo off
rem Starts the menu in this folder, with a workstation's local folders beside it.
rem pushd and not cd: it also works when this folder is on a share.
pushd "%~dp0"
set "Tessel=%~dp0Workstation\Tessel"
set "TesselTemp=%~dp0Workstation\Temp"
if not exist "%Tessel%" mkdir "%Tessel%"
if not exist "%TesselTemp%" mkdir "%TesselTemp%"
start "" ObrinMenu.exe
