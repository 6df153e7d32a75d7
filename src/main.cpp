// Puts the pieces together and nothing else.

#include "menu/frmMain.h"
#include "platform/Events.h"
#include "platform/Failure.h"
#include "startup/StartUp.h"

#include <objbase.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    // Whatever is loaded from here on comes from the system's folder: this one is open to every operator. The
    // suite's own library is asked for by its place.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    // No "(Not Responding)" over a menu that waits for its host, and no question for a disk in an empty
    // drive.
    DisableProcessWindowsGhosting();
    SetErrorMode(SEM_FAILCRITICALERRORS);
    // Ahead of the host, which has the default of 0x280: it is still there for the exit command when the
    // session ends.
    SetProcessShutdownParameters(0x300, 0);
    obrin::frmMain menu; // outlives the box of an error, which lets its window's events through
    return obrin::RunOrEndProgram([&] {
        // The shell opens documents and shortcuts through components that need it.
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
