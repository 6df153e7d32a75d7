// A small program that does what the menu does at its start. It starts the host, waits for its windows,
// and shows a window with the same menu bar and the same tree. The menu is measured against it.
//
//   bare.exe UB.mnu      needs an installation in the current directory
//   bare.exe UB.mnu all  also makes the menu's other calls: marker file, registry, picture, captions, and the
//                        command that starts the system in the host

#include "resources/Ids.h"

#include "platform/WindowsApi.h"

#include <cstring>

namespace {

HWND hostCommandWindow, picture, labels[5];

// Sends each character as a key code. "\xDC" is the key that carries the backslash.
void Type(const char* key) {
    for (; *key != '\0'; ++key) {
        SendMessageA(hostCommandWindow, WM_KEYDOWN, static_cast<unsigned char>(*key), 0);
        SendMessageA(hostCommandWindow, WM_KEYUP, static_cast<unsigned char>(*key), 0);
    }
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CLOSE:
        Type("RUN CORE\xDC"
             "EXIT\r");
        DestroyWindow(window);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

HWND WaitForWindow(const char* windowClass, const char* caption) {
    HWND found = nullptr;
    while ((found = FindWindowA(windowClass, caption)) == nullptr) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        MsgWaitForMultipleObjectsEx(0, nullptr, 15, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
    return found;
}

char* NextLine(char* line) {
    return std::strchr(line, '\n') + 1;
}

// The file must have at most three levels, less than 64 KB, and CR LF after every line.
void FillTree(HWND tree, const char* fileName) {
    static char text[0x10000];
    DWORD size = 0;
    const HANDLE file =
        CreateFileA(fileName, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ReadFile(file, text, sizeof text, &size, nullptr);
    CloseHandle(file);

    HTREEITEM parents[4] = {TVI_ROOT};
    TVINSERTSTRUCTA insertion{};
    insertion.hInsertAfter = TVI_LAST;
    insertion.item.mask = TVIF_TEXT;
    SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
    char* line = NextLine(text); // skips the header line
    while (*line != '\0') {
        char* const next = NextLine(line);
        const std::size_t depth = std::strspn(line, ">");
        char* const end = std::strpbrk(line, "^\r");
        const bool isHeading = *end == '\r';
        *end = '\0';
        insertion.hParent = parents[depth];
        insertion.item.pszText = line + depth;
        const LRESULT item = SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insertion));
        if (isHeading)
            parents[depth + 1] = reinterpret_cast<HTREEITEM>(item);
        line = next;
    }
    SendMessageA(tree, WM_SETREDRAW, TRUE, 0);
}

void CreateOtherControls(HWND window) {
    constexpr DWORD style = WS_CHILD | WS_VISIBLE;
    picture =
        CreateWindowA(WC_STATICA, "", style | SS_BITMAP, 450, 120, 0, 0, window, nullptr, nullptr, nullptr);
    for (HWND& label : labels)
        label = CreateWindowA(WC_STATICA, "", style, 450, 20, 200, 18, window, nullptr, nullptr, nullptr);
}

void MakeOtherCalls(HWND window) {
    CloseHandle(CreateFileA("Menu 5.txt", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    char text[MAX_PATH];
    DWORD size = sizeof text;
    RegGetValueA(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem", RRF_RT_REG_SZ, nullptr, text, &size);
    GetFileAttributesA(text);
    SendMessageA(
        picture, STM_SETIMAGE, IMAGE_BITMAP,
        reinterpret_cast<LPARAM>(LoadImageA(nullptr, "Startup.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE)));
    SetWindowTextA(window, "Obrin bench");
    for (const HWND label : labels)
        SetWindowTextA(label, "Utility Billing");
    Type("LOAD CORE\xDCSTARTSYS\rRUN\rUB\r");
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR arguments, int) {
    char* const optionAll = std::strchr(arguments, ' ');
    if (optionAll != nullptr)
        *optionAll = '\0'; // leaves the name of the menu file
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszMenuName = MAKEINTRESOURCEA(IDR_MENU_BAR);
    windowClass.lpszClassName = "ObrinBench.Bare";
    RegisterClassA(&windowClass);
    const HWND window = CreateWindowA(windowClass.lpszClassName, "", WS_OVERLAPPEDWINDOW, 200, 200, 748, 546,
                                      nullptr, nullptr, instance, nullptr);
    const HWND tree = CreateWindowExA(WS_EX_CLIENTEDGE, WC_TREEVIEWA, "",
                                      WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS,
                                      20, 30, 380, 410, window, nullptr, instance, nullptr);

    if (optionAll != nullptr)
        CreateOtherControls(window);
    ShellExecuteA(window, "open", "Fenn.exe", "run core\\start -5", nullptr, SW_SHOWNORMAL);
    WaitForWindow("ZafWindow", nullptr);
    const HWND station = WaitForWindow(nullptr, "Obrin-05");
    ShowWindow(station, SW_HIDE);
    hostCommandWindow = FindWindowExA(station, nullptr, nullptr, nullptr);

    FillTree(tree, arguments);
    if (optionAll != nullptr)
        MakeOtherCalls(window);
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
