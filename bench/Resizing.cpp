// One step of resizing the menu window, against a window that has copies of the same controls and moves them
// to the same places by nothing but DeferWindowPos. Both windows live in this process, with the same tree,
// texts, fonts and picture.

#include "Clock.h"
#include "Measurements.h"
#include "Program.h"
#include "Scratch.h"

#include "controls/Dialog.h"
#include "controls/WindowText.h"
#include "menu/MenuDefinition.h"
#include "menu/frmMain.h"
#include "platform/Events.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "startup/HostLink.h"

#include <array>
#include <stdexcept>

namespace obrin::bench {

namespace {

constexpr int stepCount = 12;

// The window's sizes, one a step: wider and higher, then back. Two such windows stand one below the other.
SIZE SizeOfStep(int step) {
    const int away = step < stepCount / 2 ? step : stepCount - step;
    return {760 + 12 * away, 430 + 9 * away};
}
constexpr int topOfBare = 510;

std::vector<HWND> ChildrenOf(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

// In pixels of the parent.
RECT PlaceOf(HWND child) {
    RECT place;
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

struct Moved {
    HWND control;
    RECT place;
};

// The copy of the menu window.
class BareWindow {
public:
    explicit BareWindow(HWND menu);
    BareWindow(const BareWindow&) = delete;
    BareWindow& operator=(const BareWindow&) = delete;
    ~BareWindow() { DestroyWindow(window); }

    HWND Window() const { return window; }
    /// Where the controls go at the size that the menu window has now.
    void RecordStep(int step);
    /// The next resize is this step's.
    void SetStep(int step) { current = step; }

private:
    struct Copied {
        HWND original;
        HWND copy;
    };
    // Controls of one parent move together.
    struct Step {
        std::vector<Moved> inWindow, inFrame;
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    std::vector<Copied> CopyChildren(HWND from, HWND to);
    static void Move(const std::vector<Moved>& controls);

    HWND window = nullptr;
    MenuTree tree;
    std::vector<Copied> controls, controlsInFrame;
    std::array<Step, stepCount> steps;
    int current = -1;
};

BareWindow::BareWindow(HWND menu) {
    constexpr const char* className = "ObrinBench.Resized";
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszMenuName = MAKEINTRESOURCEA(IDR_MENU_BAR);
    windowClass.lpszClassName = className;
    RegisterClassExA(&windowClass);
    window = CreateWindowExA(WS_EX_CONTROLPARENT, className, "Obrin bench",
                             WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, topOfBare, SizeOfStep(0).cx,
                             SizeOfStep(0).cy, nullptr, nullptr, windowClass.hInstance, nullptr);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));

    controls = CopyChildren(menu, window);
    for (const auto& [original, copy] : controls) {
        if (GetDlgCtrlID(original) == IDC_FRAME1)
            controlsInFrame = CopyChildren(original, copy);
    }
    tree.Attach(GetDlgItem(GetDlgItem(window, IDC_FRAME1), IDC_TREEVIEW1), {});
    tree.Fill(ParseMenuDefinition(ReadFileBytes(Installation::system), CodePageLeadByteTest()).entries);
    ShowWindow(window, SW_SHOWNORMAL);
}

std::vector<BareWindow::Copied> BareWindow::CopyChildren(HWND from, HWND to) {
    std::vector<Copied> copies;
    for (const HWND original : ChildrenOf(from)) {
        std::array<char, 64> controlClass;
        GetClassNameA(original, controlClass.data(), controlClass.size());
        const auto style = static_cast<DWORD>(GetWindowLongA(original, GWL_STYLE));
        const auto extendedStyle = static_cast<DWORD>(GetWindowLongA(original, GWL_EXSTYLE));
        const RECT place = PlaceOf(original);
        const HWND copy =
            CreateWindowExA(extendedStyle, controlClass.data(), WindowText(original).c_str(), style,
                            place.left, place.top, place.right - place.left, place.bottom - place.top, to,
                            reinterpret_cast<HMENU>(GetWindowLongPtrA(original, GWLP_ID)),
                            GetModuleHandleA(nullptr), nullptr);
        if (copy == nullptr)
            ThrowLastError("Copying a control");
        SetWindowPos(copy, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        SendMessageA(copy, WM_SETFONT, static_cast<WPARAM>(SendMessageA(original, WM_GETFONT, 0, 0)), FALSE);
        if (GetDlgCtrlID(original) == IDC_IMAGE1)
            SendMessageA(copy, STM_SETIMAGE, IMAGE_BITMAP,
                         SendMessageA(original, STM_GETIMAGE, IMAGE_BITMAP, 0));
        copies.push_back({original, copy});
    }
    return copies;
}

void BareWindow::RecordStep(int step) {
    const auto record = [](const std::vector<Copied>& copies) {
        std::vector<Moved> moved;
        moved.reserve(copies.size());
        for (const auto& [original, copy] : copies)
            moved.push_back({copy, PlaceOf(original)});
        return moved;
    };
    steps[static_cast<std::size_t>(step)] = {record(controls), record(controlsInFrame)};
}

LRESULT CALLBACK BareWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* self = reinterpret_cast<const BareWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message != WM_SIZE || self == nullptr || self->current < 0)
        return DefWindowProcA(window, message, wParam, lParam);
    const Step& step = self->steps[static_cast<std::size_t>(self->current)];
    Move(step.inWindow);
    Move(step.inFrame);
    return 0;
}

void BareWindow::Move(const std::vector<Moved>& controls) {
    HDWP positions = BeginDeferWindowPos(static_cast<int>(controls.size()));
    for (const auto& [control, place] : controls) {
        positions =
            DeferWindowPos(positions, control, nullptr, place.left, place.top, place.right - place.left,
                           place.bottom - place.top, SWP_NOACTIVATE | SWP_NOZORDER);
    }
    EndDeferWindowPos(positions);
}

void ResizeTo(HWND window, int step) {
    const SIZE size = SizeOfStep(step);
    SetWindowPos(window, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// In turn step by step, not window by window: the machine's speed changes every few tenths of a second.
Row MeasureSteps(const char* what, HWND menu, BareWindow& bare, bool painted) {
    constexpr int runs = 25 * stepCount;
    const auto microseconds = [=](HWND window, int step) {
        const double seconds = Timed([=] {
            ResizeTo(window, step);
            if (painted)
                RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        });
        ProcessPendingEvents();
        return seconds * 1e6;
    };
    int menuStep = 0;
    int bareStep = 0;
    const Medians medians = Alternate(
        runs, [&] { return microseconds(menu, menuStep++ % stepCount); },
        [&] {
            const int step = bareStep++ % stepCount;
            bare.SetStep(step);
            return microseconds(bare.Window(), step);
        });
    return WithinRatio(what, "us", medians, 1.25);
}

} // namespace

std::vector<Row> MeasureResizing() {
    RefuseOpenHost();
    const Installation installation(OwnFolder() + "Fenn.exe");
    SetEnvironmentVariableA("FENN_START_DELAY_MS", "0");
    frmMain menu;
    menu.Show();
    const UniqueHandle host = ProcessOf(FindWindowA(hostWindowClass, nullptr));
    SetWindowPos(menu.Window(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);

    std::vector<Row> rows;
    {
        BareWindow bare(menu.Window());
        for (int step = 0; step < stepCount; ++step) {
            ResizeTo(menu.Window(), step);
            bare.RecordStep(step);
        }
        rows.push_back(MeasureSteps("one resize step of the menu window", menu.Window(), bare, false));
        rows.push_back(MeasureSteps("one resize step, painted", menu.Window(), bare, true));
    }
    SendMessageA(menu.Window(), WM_CLOSE, 0, 0);
    MSG message; // the menu window's end is also the end of the program's events; not of these
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
    AwaitProcessEnd(host.get());
    return rows;
}

} // namespace obrin::bench
