#include "ProgramWindow.h"

#include "Looks.h"

#include <array>

namespace fenn {

namespace {

constexpr char className[] = "FennProgram";
constexpr int titleId = 101;
constexpr COLORREF paper = RGB(255, 255, 255);
constexpr COLORREF titleInk = RGB(0, 51, 102);
constexpr COLORREF textInk = RGB(48, 48, 48);
constexpr int width = 440;
constexpr int height = 196;
constexpr int footerHeight = 48;
constexpr int margin = 20;

HFONT TitleFont() {
    static HFONT font = MakeFont(170, FW_SEMIBOLD);
    return font;
}

HBRUSH PaperBrush() {
    static HBRUSH brush = CreateSolidBrush(paper);
    return brush;
}

HWND AddControl(HWND window, const char* controlClass, const char* text, DWORD style, RECT place, int id,
                HFONT font) {
    HWND control = CreateWindowExA(0, controlClass, text, WS_CHILD | WS_VISIBLE | style, place.left,
                                   place.top, place.right - place.left, place.bottom - place.top, window,
                                   reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}

void AddControls(HWND window, const std::string& program, const std::string& system, int station) {
    const auto line = [](int top, int bottom) {
        return RECT{Scaled(margin), Scaled(top), Scaled(width - margin), Scaled(bottom)};
    };
    const std::string name = program.substr(program.rfind('\\') + 1); // npos + 1 is 0: the whole path
    std::array<char, 40> stationText{};
    wsprintfA(stationText.data(), "Workstation %02d", station);
    const std::string origin =
        (system.empty() ? std::string("No system") : "System " + system) + ", " + stationText.data();
    constexpr DWORD plain = SS_NOPREFIX | SS_ENDELLIPSIS;
    AddControl(window, "STATIC", name.c_str(), plain, line(16, 48), titleId, TitleFont());
    AddControl(window, "STATIC", program.c_str(), plain, line(54, 74), -1, TextFont());
    AddControl(window, "STATIC", origin.c_str(), plain, line(76, 96), -1, TextFont());
    AddControl(window, "STATIC", "The real program would run here.", plain, line(112, 132), -1, TextFont());

    const int top = height - footerHeight + 11;
    const RECT closeBounds{Scaled(width - margin - 88), Scaled(top), Scaled(width - margin),
                           Scaled(top + 26)};
    HWND close = AddControl(window, "BUTTON", "&Close", WS_TABSTOP | BS_DEFPUSHBUTTON, closeBounds, IDCANCEL,
                            TextFont());
    SetFocus(close);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)
            DestroyWindow(window);
        return 0;
    case WM_SETFOCUS:
        SetFocus(GetDlgItem(window, IDCANCEL));
        return 0;
    case WM_CTLCOLORSTATIC: {
        const auto context = reinterpret_cast<HDC>(wParam);
        const bool isTitle = GetDlgCtrlID(reinterpret_cast<HWND>(lParam)) == titleId;
        SetTextColor(context, isTitle ? titleInk : textInk);
        SetBkColor(context, paper);
        return reinterpret_cast<LRESULT>(PaperBrush());
    }
    case WM_ERASEBKGND: {
        RECT area{};
        GetClientRect(window, &area);
        RECT footer = area;
        footer.top = area.bottom - Scaled(footerHeight);
        area.bottom = footer.top;
        FillRect(reinterpret_cast<HDC>(wParam), &area, PaperBrush());
        FillRect(reinterpret_cast<HDC>(wParam), &footer, GetSysColorBrush(COLOR_BTNFACE));
        return 1;
    }
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

ATOM ProgramClass(HINSTANCE instance) {
    static const ATOM atom = [instance] {
        WNDCLASSEXA windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.lpfnWndProc = Procedure;
        windowClass.hInstance = instance;
        windowClass.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
        windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        windowClass.lpszClassName = className;
        return RegisterClassExA(&windowClass);
    }();
    return atom;
}

} // namespace

void OpenProgramWindow(HINSTANCE instance, const std::string& program, const std::string& system,
                       int station) {
    if (ProgramClass(instance) == 0)
        return;
    constexpr DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    RECT frame{0, 0, Scaled(width), Scaled(height)};
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    const int frameWidth = frame.right - frame.left;
    const int frameHeight = frame.bottom - frame.top;

    // Each new window opens a step further to the lower right.
    static int opened = 0;
    const int step = Scaled(28) * (opened++ % 8);
    RECT screen{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
    const int left = screen.left + (screen.right - screen.left - frameWidth) / 2 + step;
    const int top = screen.top + (screen.bottom - screen.top - frameHeight) / 3 + step;

    HWND window = CreateWindowExA(0, className, program.c_str(), style, left, top, frameWidth, frameHeight,
                                  nullptr, nullptr, instance, nullptr);
    if (!window)
        return;
    AddControls(window, program, system, station);
    ShowWindow(window, SW_SHOWNORMAL);
    // Windows may refuse to activate the window of a process that the operator is not using. A window that is
    // topmost for a moment still comes in front of the menu.
    constexpr UINT inPlace = SWP_NOMOVE | SWP_NOSIZE;
    SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, inPlace);
    SetWindowPos(window, HWND_NOTOPMOST, 0, 0, 0, 0, inPlace);
    SetForegroundWindow(window);
}

bool HandleProgramWindowMessage(MSG& message) {
    if (!message.hwnd)
        return false;
    HWND root = GetAncestor(message.hwnd, GA_ROOT);
    std::array<char, sizeof className + 1> name{};
    GetClassNameA(root, name.data(), static_cast<int>(name.size()));
    return lstrcmpA(name.data(), className) == 0 && IsDialogMessageA(root, &message);
}

} // namespace fenn
