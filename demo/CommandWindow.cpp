#include "CommandWindow.h"

#include "Looks.h"

#include <array>

namespace fenn {

namespace {

constexpr char className[] = "FennCommand";
constexpr WORD clearId = 100;
constexpr UINT_PTR exitTimer = 1;
constexpr COLORREF paper = RGB(255, 255, 255);
constexpr COLORREF ink = RGB(32, 32, 32);
constexpr COLORREF faintInk = RGB(96, 96, 96);

bool IsModifier(WPARAM key) {
    return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU || key == VK_CAPITAL;
}

} // namespace

std::string EscapeControlCharacters(const std::string& line) {
    std::string escaped;
    for (const char c : line) {
        if (const auto code = static_cast<unsigned char>(c); code < ' ')
            escaped.append("<").append(std::to_string(code)).append(">");
        else
            escaped += c;
    }
    return escaped;
}

CommandWindow::CommandWindow(const Behaviour& hostBehaviour, Log& hostLog, CommandListener& hostListener,
                             int hostStation)
    : behaviour(hostBehaviour)
    , log(hostLog)
    , listener(hostListener)
    , station(hostStation) {}

int CommandWindow::Height() {
    return Scaled(64);
}

HWND CommandWindow::Create(HWND parent, HINSTANCE instance) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_IBEAM);
    windowClass.lpszClassName = className;
    RegisterClassExA(&windowClass);

    window = CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0,
                             0, 0, 0, parent, nullptr, instance, this);
    return window;
}

LRESULT CALLBACK CommandWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        static_cast<CommandWindow*>(creation->lpCreateParams)->window = handle;
        SetWindowLongPtrA(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* self = reinterpret_cast<CommandWindow*>(GetWindowLongPtrA(handle, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam) : DefWindowProcA(handle, message, wParam, lParam);
}

LRESULT CommandWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        clearButton =
            CreateWindowExA(0, "BUTTON", "&Clear", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, 0, 0, 0, 0, window,
                            reinterpret_cast<HMENU>(UINT_PTR{clearId}), nullptr, nullptr);
        SendMessageA(clearButton, WM_SETFONT, reinterpret_cast<WPARAM>(TextFont()), FALSE);
        return 0;
    case WM_SIZE:
        LayOut();
        return 0;
    case WM_KEYDOWN:
        LogKey("down", wParam, lParam);
        KeyDown(wParam);
        return 0;
    case WM_KEYUP:
        LogKey("up", wParam, lParam);
        KeyUp(wParam);
        return 0;
    case WM_TIMER:
        if (wParam == exitTimer)
            listener.ExitCommanded();
        return 0;
    case WM_LBUTTONDOWN:
        SetFocus(window);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) == clearId) {
            listener.ClearPressed();
            SetFocus(window);
        }
        return 0;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return 1; // Paint fills the whole area
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

void CommandWindow::LogKey(const char* event, WPARAM key, LPARAM lParam) {
    std::string details = std::to_string(key);
    if (!InSendMessage())
        details += " posted";
    if (lParam != 0)
        details += ' ' + std::to_string(lParam);
    log.Write(event, details);
}

void CommandWindow::KeyDown(WPARAM key) {
    constexpr WPARAM backslashKey = 220;
    if (key == VK_RETURN)
        CompleteLine();
    else if (key == VK_BACK) {
        if (!typed.empty())
            typed.pop_back();
    } else if (key == backslashKey)
        typed += '\\';
    else if (!IsModifier(key))
        typed += static_cast<char>(key);
    InvalidateRect(window, nullptr, FALSE);
}

void CommandWindow::KeyUp(WPARAM key) {
    // Exits at key-up, not at key-down: the sender still needs this window for its key-up.
    if (isExiting && key == VK_RETURN)
        listener.ExitCommanded();
}

void CommandWindow::CompleteLine() {
    std::string line;
    line.swap(typed);
    log.Write("line", EscapeControlCharacters(line));
    listener.LineTyped(EscapeControlCharacters(line));

    if (!behaviour.hangLine.empty() && line == behaviour.hangLine) {
        log.Write("hang", EscapeControlCharacters(line));
        Sleep(behaviour.hangDuration);
    }

    switch (interpreter.Interpret(line)) {
    case Interpreter::Action::Nothing:
        break;
    case Interpreter::Action::OpenProgram:
        log.Write("run", EscapeControlCharacters(interpreter.Program()));
        listener.ProgramStarted(interpreter.Program(), interpreter.System());
        break;
    case Interpreter::Action::StartSystem:
        log.Write("system", EscapeControlCharacters(interpreter.System()));
        break;
    case Interpreter::Action::Exit:
        isExiting = true;
        SetTimer(window, exitTimer, 1000, nullptr); // in case the sender never sends the key-up
        break;
    case Interpreter::Action::NotUnderstood:
        log.Write("unknown", EscapeControlCharacters(line));
        break;
    }
}

void CommandWindow::LayOut() {
    RECT area{};
    GetClientRect(window, &area);
    const int margin = Scaled(10);
    const int width = Scaled(76);
    const int height = Scaled(26);
    MoveWindow(clearButton, area.right - width - margin, (area.bottom - height) / 2, width, height, TRUE);
    InvalidateRect(window, nullptr, FALSE);
}

void CommandWindow::Paint() {
    std::array<char, 24> stationText{};
    wsprintfA(stationText.data(), "Workstation %02d", station);
    std::string state = stationText.data();
    state += interpreter.System().empty() ? "      No system"
                                          : "      System " + EscapeControlCharacters(interpreter.System());
    if (!interpreter.Program().empty())
        state += "      " + EscapeControlCharacters(interpreter.Program());
    const std::string prompt = "> " + EscapeControlCharacters(typed) + "_";

    PAINTSTRUCT paint{};
    HDC context = BeginPaint(window, &paint);
    RECT area{};
    GetClientRect(window, &area);
    HBRUSH background = CreateSolidBrush(paper);
    FillRect(context, &area, background);
    DeleteObject(background);

    HGDIOBJ oldFont = SelectObject(context, TextFont());
    SetBkMode(context, TRANSPARENT);
    constexpr UINT format = DT_LEFT | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    RECT row{Scaled(10), Scaled(6), area.right - Scaled(96), area.bottom / 2};
    SetTextColor(context, faintInk);
    DrawTextA(context, state.c_str(), -1, &row, format);
    row.top = area.bottom / 2;
    row.bottom = area.bottom - Scaled(6);
    SetTextColor(context, ink);
    DrawTextA(context, prompt.c_str(), -1, &row, format);
    SelectObject(context, oldFont);
    EndPaint(window, &paint);
}

} // namespace fenn
