// The entry point of the menu.

#include "menu/frmMain.h"
#include "platform/Events.h"
#include "platform/Failure.h"
#include "startup/StartUp.h"

#include <objbase.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    // From now on, Windows loads DLLs only from the system folder, because every operator may write into the
    // program's folder. SupportLibrary names the folders for Corvel.dll itself.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    DisableProcessWindowsGhosting(); // no "(Not Responding)" while the menu waits for the host
    // If a drive is empty, Windows must not ask for a disk. SetErrorMode would do this for the host too,
    // because a started program inherits its mode.
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
    // At the end of the session, Windows must close the menu before the host, which has the default level
    // 0x280, because the menu sends the exit command to the host.
    SetProcessShutdownParameters(0x300, 0);
    obrin::frmMain menu; // outlives the lambda, because an error box still processes the window's events
    return obrin::RunOrEndProgram([&] {
        // The shell needs COM to open documents and shortcuts.
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);

        bool shown = false;
        obrin::Main({.windowClass = obrin::menuWindowClass, .caption = obrin::menuCaption, .show = [&] {
                         menu.Show();
                         shown = true;
                     }});
        return shown ? obrin::RunEvents() : 0;
    });
}
