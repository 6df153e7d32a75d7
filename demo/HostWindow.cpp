#include "HostWindow.h"

#include "Looks.h"
#include "ProgramWindow.h"

#include <array>

namespace fenn {

namespace {

constexpr char className[] = "ZafWindow";
constexpr UINT showProgramMessage = WM_APP;
constexpr UINT_PTR captionTimer = 1;
constexpr LRESULT maxLines = 1000;

} // namespace

HostWindow::HostWindow(const Behaviour& hostBehaviour, Log& hostLog, int hostStation)
    : behaviour(hostBehaviour)
    , log(hostLog)
    , station(hostStation)
    , command(hostBehaviour, hostLog, *this, hostStation) {}

bool HostWindow::Open(HINSTANCE programInstance) {
    instance = programInstance;
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = className;
    RegisterClassExA(&windowClass);

    CreateWindowExA(0, className, "Fenn", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                    Scaled(560), Scaled(360), nullptr, nullptr, instance, this);
    if (!window)
        return false;
    ShowWindow(window, SW_SHOWNORMAL);
    log.Write("window");
    if (!behaviour.neverSetsCaption)
        SetTimer(window, captionTimer, behaviour.captionDelay, nullptr);
    return true;
}

LRESULT CALLBACK HostWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        static_cast<HostWindow*>(creation->lpCreateParams)->window = handle;
        SetWindowLongPtrA(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* self = reinterpret_cast<HostWindow*>(GetWindowLongPtrA(handle, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam) : DefWindowProcA(handle, message, wParam, lParam);
}

LRESULT HostWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        CreateChildren();
        return commandHandle && lines ? 0 : -1;
    case WM_SIZE:
        LayOut();
        return 0;
    case WM_SETFOCUS:
        SetFocus(commandHandle);
        return 0;
    case WM_TIMER:
        if (wParam == captionTimer) {
            KillTimer(window, captionTimer);
            std::array<char, 24> caption{};
            wsprintfA(caption.data(), "Obrin-%02d", station);
            // Writes the log first, because a test that waits for the caption reads the log next.
            log.Write("caption", caption.data());
            SetWindowTextA(window, caption.data());
        }
        return 0;
    case showProgramMessage:
        ShowProgramWindow();
        return 0;
    case WM_NCDESTROY:
        SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        PostQuitMessage(0);
        return DefWindowProcA(window, message, wParam, lParam);
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

void HostWindow::CreateChildren() {
    commandHandle = command.Create(window, instance);
    lines = CreateWindowExA(WS_EX_CLIENTEDGE, "LISTBOX", "",
                            WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_CLIPSIBLINGS | LBS_NOINTEGRALHEIGHT |
                                LBS_NOSEL,
                            0, 0, 0, 0, window, nullptr, instance, nullptr);
    SendMessageA(lines, WM_SETFONT, reinterpret_cast<WPARAM>(TextFont()), FALSE);
    // The menu types into the first child, which must be the command window.
    SetWindowPos(commandHandle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void HostWindow::LayOut() {
    RECT area{};
    GetClientRect(window, &area);
    const int top = CommandWindow::Height();
    MoveWindow(commandHandle, 0, 0, area.right, top, TRUE);
    MoveWindow(lines, 0, top, area.right, area.bottom > top ? area.bottom - top : 0, TRUE);
}

void HostWindow::LineTyped(const std::string& line) {
    if (SendMessageA(lines, LB_GETCOUNT, 0, 0) >= maxLines)
        SendMessageA(lines, LB_DELETESTRING, 0, 0);
    const LRESULT index = SendMessageA(lines, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    if (index >= 0)
        SendMessageA(lines, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
}

void HostWindow::ProgramStarted(const std::string& program, const std::string& system) {
    // Posts a message, because a window that opens now would take the focus from the sender of the keys.
    pendingStarts.push_back({.program = program, .system = system});
    PostMessageA(window, showProgramMessage, 0, 0);
}

void HostWindow::ShowProgramWindow() {
    if (pendingStarts.empty())
        return;
    const Start start = pendingStarts.front();
    pendingStarts.pop_front();
    OpenProgramWindow(instance, start.program, start.system, station);
}

void HostWindow::ExitCommanded() {
    PostMessageA(window, WM_CLOSE, 0, 0);
}

void HostWindow::ClearPressed() {
    SendMessageA(lines, LB_RESETCONTENT, 0, 0);
}

} // namespace fenn
