#include "menu/frmMain.h"

#include "common/RunTimeError.h"
#include "common/Text.h"
#include "common/Twips.h"
#include "maintenance/frmAbout.h"
#include "maintenance/frmUpdate.h"
#include "menu/MenuCommands.h"
#include "menu/MenuDefinition.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Font.h"
#include "platform/Picture.h"
#include "platform/Shell.h"
#include "platform/Theme.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "startup/HostKeys.h"
#include "startup/WorkstationIdentity.h"

#include <algorithm>

namespace obrin {

namespace {

constexpr const char* registryKey = "Software\\Obrin";
constexpr const char* lastSystemValue = "LastSystem";
// Runs the selected program once the tree has finished with the event that asks for it: the update and the
// host may take their time, and the window may be closed meanwhile, with the tree in it.
constexpr UINT runSelected = WM_APP;
constexpr DWORD windowStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

HWND CreateControl(HWND parent, const char* controlClass, int id, DWORD style, const char* text = "",
                   DWORD extendedStyle = 0) {
    const HWND control = CreateWindowExA(
        extendedStyle, controlClass, text, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style, 0, 0, 0, 0,
        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Instance(), nullptr);
    if (control == nullptr)
        ThrowLastError("Creating the menu window");
    return control;
}

// A group box does not paint what is between its children. Its inside and its border reach the screen at
// once: erased first, the border would flicker while the window is resized.
void PaintFrame(HWND frame) {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(frame, &paint);
    RECT inner;
    GetClientRect(frame, &inner);
    PaintBuffered(screen, inner, [&](HDC target) {
        FillRect(target, &inner, GetSysColorBrush(COLOR_BTNFACE));
        DefSubclassProc(frame, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(target), PRF_CLIENT);
    });
    EndPaint(frame, &paint);
}

} // namespace

void frmMain::Show() {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = Instance();
    windowClass.hIcon = LoadIconA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN));
    windowClass.hCursor = nullptr; // OnSetCursor answers for the whole window
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszMenuName = MAKEINTRESOURCEA(IDR_MENU_BAR);
    windowClass.lpszClassName = menuWindowClass;
    RegisterClassExA(&windowClass);
    // Without a caption until a system is shown: a second menu that is started meanwhile must not find and
    // show an empty window.
    if (CreateWindowExA(WS_EX_CONTROLPARENT, menuWindowClass, "", windowStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, Instance(), this) == nullptr)
        ThrowLastError("Creating the menu window");
    CreateControls();
    if (!Form_Load())
        return;
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
}

LRESULT CALLBACK frmMain::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<frmMain*>(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams);
        self->window = window;
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<frmMain*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self == nullptr)
        return DefWindowProcA(window, message, wParam, lParam);
    return AtBoundary([=] { return self->OnMessage(message, wParam, lParam); });
}

LRESULT frmMain::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return 0;
    case WM_NOTIFY:
        OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        return 0;
    case WM_SIZE:
        Form_Resize();
        return 0;
    case WM_DPICHANGED:
        Form_DpiChanged(*reinterpret_cast<const RECT*>(lParam));
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE)
            focused = GetFocus();
        break;
    case WM_SETFOCUS:
        // Back from another window: the control that had the keyboard before.
        SetFocus(IsChild(window, focused) ? focused : TreeView1.Window());
        return 0;
    case WM_SETCURSOR:
        if (OnSetCursor(reinterpret_cast<HWND>(wParam), LOWORD(lParam)))
            return TRUE;
        break;
    case WM_CTLCOLORSTATIC:
        if (reinterpret_cast<HWND>(lParam) == Label5) {
            SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_HOTLIGHT));
            SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
            return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
        }
        break;
    case runSelected:
        // A second one may have been queued behind the one at work, whose dialog or error lets it through.
        if (IsWindowEnabled(window))
            RunSelectedProgram();
        return 0;
    case WM_CLOSE:
        Form_Unload();
        return 0;
    case WM_ENDSESSION:
        // The session's end is the last that a program hears: it may be ended as soon as this returns.
        if (wParam != FALSE)
            Form_Unload();
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void frmMain::OnCommand(int id, int notification) {
    if (id >= ID_SYSTEMS && id < ID_SYSTEMS + static_cast<int>(MnuFiles.size()))
        mnuSystems_Click(static_cast<std::size_t>(id - ID_SYSTEMS));
    else if (id == ID_TREE_PROPERTIES || id == ID_TREE_HELP)
        mnuTreeView_Click(id);
    else if (id == ID_ABOUT)
        mnuAboutObrin_Click();
    else if (id == IDC_COMMAND1)
        Command1_Click();
    else if (id == IDC_LABEL5 && notification != STN_CLICKED)
        return;
    else if (const auto program = HostProgramOf(id))
        RunHostProgram(*program);
    else if (const auto document = DocumentOf(id, SystemCode(currentSystem, CodePageLeadByteTest())))
        OpenUnexamined(window, document->c_str());
}

void frmMain::OnNotify(const NMHDR& notification) {
    if (notification.hwndFrom == TreeView1.Window() && notification.code == static_cast<UINT>(NM_DBLCLK))
        TreeView1_DblClick();
}

// A state of the window, not of the label: once the link has turned the pointer into the crosshair, it stays
// so over everything but the window's own background.
bool frmMain::OnSetCursor(HWND hit, int hitTest) {
    if (hitTest != HTCLIENT)
        return false;
    // Labels, picture and frame let the mouse through to the window, but are not its background.
    HWND under = hit;
    if (hit == window) {
        POINT pointer;
        GetCursorPos(&pointer);
        ScreenToClient(window, &pointer);
        under = ChildWindowFromPointEx(window, pointer, CWP_SKIPINVISIBLE);
    }
    if (under == Label5)
        crosshair = true;
    else if (under == window)
        crosshair = false;
    if (!crosshair && hit != window)
        return false;
    SetCursor(LoadCursorA(nullptr, crosshair ? IDC_CROSS : IDC_ARROW));
    return true;
}

// --- Load, resize, unload ---

bool frmMain::Form_Load() {
    const SIZE outer = DesignedOuterSize(); // which a small screen may not have had room for
    margins = RecordMargins({ToTwips(outer.cx, dpi), ToTwips(outer.cy, dpi)}, layout);

    MnuFiles = EnumerateMenuFiles();
    FillSystemList();

    // Set already when the window is loaded a second time in the same run: number and link then stay.
    if (!hostLink.Stands()) {
        const std::string loginName = LoginName();
        wsid = EstablishIdentity(window, loginName);
        if (!IsWindow(window))
            return false;
        SetLabel(Label2, UserCaption(loginName));
        SetLabel(Label3, WsidCaption(wsid));
        // Ahead of the host: it would stay behind, hidden, when the library is missing.
        corvel.emplace();
        hostLink.StartHost(window, wsid);
        if (!IsWindow(window))
            return false;
    }

    WriteFileBytes(MarkerFileName(wsid), "");

    const std::string lastSystem(
        TrimBlanks(corvel->GetRegValue(HKEY_LOCAL_MACHINE, registryKey, lastSystemValue)));
    if (!lastSystem.empty() && FileExists(lastSystem)) {
        LoadSystem(lastSystem);
    } else {
        if (MnuFiles.empty())
            throw RunTimeError(PlatformError::InvalidIndex,
                               "Showing the first system: there is no menu file (*.mnu) in " +
                                   CurrentFolder());
        LoadSystem(MnuFiles.front().name);
    }
    return IsWindow(window);
}

void frmMain::Form_Resize() {
    if (!margins)
        return;
    RECT outer;
    RECT inner;
    GetWindowRect(window, &outer);
    GetClientRect(window, &inner);
    const auto twips = [this](int width, int height) {
        return Size{ToTwips(width, dpi), ToTwips(height, dpi)};
    };
    layout = Resize(layout, *margins, twips(outer.right - outer.left, outer.bottom - outer.top),
                    twips(inner.right, inner.bottom),
                    {.label1 = OwnSize(Label1).width,
                     .image1 = OwnSize(Image1).width,
                     .label2 = OwnSize(Label2).width,
                     .label3 = OwnSize(Label3).width,
                     .label4 = OwnSize(Label4),
                     .label5 = OwnSize(Label5)});

    const auto px = [this](double value) { return ToPixels(value, dpi); };
    const Box& frame = layout.frame1;
    const Box& tree = layout.treeView1;
    constexpr UINT quiet = SWP_NOACTIVATE | SWP_NOZORDER;
    HDWP positions = BeginDeferWindowPos(7);
    const auto apply = [&] {
        if (!EndDeferWindowPos(positions))
            ThrowLastError("Laying out the menu window");
    };
    const auto move = [&](HWND control, double left, double top) {
        positions = DeferWindowPos(positions, control, nullptr, px(left), px(top), 0, 0, quiet | SWP_NOSIZE);
    };
    move(Label1, layout.label1Left, design::label1Top);
    move(Image1, layout.image1Left, design::image1Top);
    move(Label2, layout.label2Left, design::label2Top);
    move(Label3, layout.label3Left, design::label3Top);
    // The frame comes to the front, then the one link label, then the other. Told from the front, each behind
    // the one before, an order that stands already is left alone: nobody sees the controls change places.
    const auto stack = [&](HWND control, HWND behind, Point place) {
        positions = DeferWindowPos(positions, control, behind, px(place.left), px(place.top), 0, 0,
                                   SWP_NOACTIVATE | SWP_NOSIZE);
    };
    stack(Label5, HWND_TOP, layout.label5);
    stack(Label4, Label5, layout.label4);
    positions = DeferWindowPos(positions, Frame1, Label4, px(frame.left), px(frame.top), px(frame.width),
                               px(frame.height), SWP_NOACTIVATE);
    apply();

    positions = BeginDeferWindowPos(2); // the controls of another parent
    positions = DeferWindowPos(positions, TreeView1.Window(), nullptr, px(tree.left), px(tree.top),
                               px(tree.width), px(tree.height), quiet);
    positions =
        DeferWindowPos(positions, Command1, nullptr, px(layout.command1.left), px(layout.command1.top),
                       px(design::command1.width), px(design::command1.height), quiet);
    apply();
}

void frmMain::Form_DpiChanged(const RECT& suggested) {
    dpi = GetDpiForWindow(window);
    ApplyFonts();
    ShowPicture();
    SetWindowPos(window, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Form_Resize(); // the size in pixels may be the same
}

// The window is about to close, for whatever reason: the close box, the end of the Windows session, another
// program's request.
void frmMain::Form_Unload() {
    if (unloading || IsEndingWithError())
        return; // asked again while the host handles the exit command, or while an error is shown
    unloading = true;
    hostLink.SendHostCommand("Run Core\\Exit\r");
    // Closed before any system was shown, there is none to remember: the earlier one stays remembered.
    if (!currentSystem.empty())
        corvel->SetRegValue(HKEY_LOCAL_MACHINE, registryKey, lastSystemValue, currentSystem);
    DeleteFileA(MarkerFileName(wsid).c_str());
    DestroyWindow(window);
}

// --- Controls ---

void frmMain::CreateControls() {
    Frame1 =
        CreateControl(window, WC_BUTTONA, IDC_FRAME1, BS_GROUPBOX | WS_CLIPCHILDREN, "", WS_EX_CONTROLPARENT);
    TreeView1.Attach(
        CreateControl(Frame1, WC_TREEVIEWA, IDC_TREEVIEW1,
                      WS_TABSTOP | TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS | TVS_SHOWSELALWAYS, "",
                      WS_EX_CLIENTEDGE));
    SendMessageA(TreeView1.Window(), TVM_SETEXTENDEDSTYLE, TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
    Command1 = CreateControl(Frame1, WC_BUTTONA, IDC_COMMAND1, WS_TABSTOP | BS_PUSHBUTTON, "&Run Program");
    constexpr DWORD label = SS_LEFT | SS_NOPREFIX;
    Label1 = CreateControl(window, WC_STATICA, IDC_LABEL1, label);
    Image1 = CreateControl(window, WC_STATICA, IDC_IMAGE1, SS_BITMAP);
    Label2 = CreateControl(window, WC_STATICA, IDC_LABEL2, label);
    Label3 = CreateControl(window, WC_STATICA, IDC_LABEL3, label);
    Label4 = CreateControl(window, WC_STATICA, IDC_LABEL4, label, "Got a better idea?");
    Label5 = CreateControl(window, WC_STATICA, IDC_LABEL5, label | SS_NOTIFY, "E-Mail us!");
    // A group box does not hand on what its children say.
    SetWindowSubclass(Frame1, Frame1Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
    SetWindowSubclass(TreeView1.Window(), TreeView1Procedure, 0, reinterpret_cast<DWORD_PTR>(this));

    dpi = GetDpiForWindow(window);
    ApplyFonts();
    // The designed size, or as much of it as fits, in the middle of the screen that Windows chose.
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT& work = monitor.rcWork;
    const SIZE designed = DesignedOuterSize();
    const LONG width = std::min(designed.cx, work.right - work.left);
    const LONG height = std::min(designed.cy, work.bottom - work.top);
    SetWindowPos(window, nullptr, (work.left + work.right - width) / 2, (work.top + work.bottom - height) / 2,
                 width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE frmMain::DesignedOuterSize() const {
    RECT size{0, 0, ToPixels(design::inner.width, dpi), ToPixels(design::inner.height, dpi)};
    AdjustWindowRectExForDpi(&size, windowStyle, TRUE, 0, dpi);
    return {size.right - size.left, size.bottom - size.top};
}

void frmMain::ApplyFonts() {
    titleFont = MakeFont("Comic Sans MS", 18, dpi, {.bold = true});
    labelFont = MakeFont("Georgia", 10, dpi);
    linkFont = MakeFont("Georgia", 10, dpi, {.underlined = true});
    buttonFont = MakeFont("MS Sans Serif", 8, dpi);
    messageFont = MakeMessageFont(dpi);
    SetFont(Label1, titleFont.get());
    SetFont(Label4, labelFont.get());
    SetFont(Label5, linkFont.get());
    SetFont(Command1, buttonFont.get());
    for (const HWND control : {Frame1, TreeView1.Window(), Label2, Label3})
        SetFont(control, messageFont.get());
    for (const HWND label : {Label1, Label2, Label3, Label4, Label5})
        SetLabel(label, WindowText(label));
}

void frmMain::ShowPicture() {
    if (!picture)
        return;
    // The control must have let go of the old picture before it is deleted. Of some pictures it makes a copy,
    // which it then hands over as the old one.
    UniqueBitmap scaled = ScalePicture(picture.get(), dpi);
    UniqueBitmap old(reinterpret_cast<HBITMAP>(
        SendMessageA(Image1, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(scaled.get()))));
    if (old == scaledPicture)
        old.release(); // one and the same
    scaledPicture = std::move(scaled);
}

void frmMain::FillSystemList() {
    const HMENU bar = GetMenu(window);
    if (MnuFiles.empty()) {
        DeleteMenu(bar, 0, MF_BYPOSITION);
        return;
    }
    const HMENU list = GetSubMenu(bar, 0);
    for (std::size_t i = 0; i < MnuFiles.size(); ++i)
        AppendMenuA(list, MF_STRING, ID_SYSTEMS + i, MnuFiles[i].title.c_str());
    DeleteMenu(list, ID_SYSTEMS_TEMPLATE, MF_BYCOMMAND);
}

// A label is as large as its text. Label4, whose right edge is the link's left one, is a blank larger.
void frmMain::SetLabel(HWND label, const std::string& text) {
    SetWindowTextA(label, text.c_str());
    const SIZE size = MeasureText(label, label == Label4 ? text + ' ' : text);
    SetWindowPos(label, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Size frmMain::OwnSize(HWND control) const {
    RECT size;
    GetWindowRect(control, &size);
    return {ToTwips(size.right - size.left, dpi), ToTwips(size.bottom - size.top, dpi)};
}

LRESULT CALLBACK frmMain::Frame1Procedure(HWND frame, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR self) {
    switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
        return SendMessageA(reinterpret_cast<frmMain*>(self)->window, message, wParam, lParam);
    case WM_ERASEBKGND:
        return TRUE; // painted with the rest
    case WM_PAINT:
        PaintFrame(frame);
        return 0;
    default:
        return DefSubclassProc(frame, message, wParam, lParam);
    }
}

// --- The tree ---

LRESULT CALLBACK frmMain::TreeView1Procedure(HWND tree, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                             DWORD_PTR data) {
    auto* self = reinterpret_cast<frmMain*>(data);
    return AtBoundary([=]() -> LRESULT {
        switch (message) {
        case WM_GETDLGCODE: {
            // Enter is the tree's own key here, not the default button's.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const LRESULT code = DefSubclassProc(tree, message, wParam, lParam);
            return key != nullptr && key->wParam == VK_RETURN ? code | DLGC_WANTMESSAGE : code;
        }
        case WM_CHAR:
            self->TreeView1_KeyPress(static_cast<int>(wParam));
            if (wParam == VK_RETURN)
                return 0; // the tree would beep
            break;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK: // a second right click soon after the first
            self->TreeView1_RightMouseDown();
            return 0;
        case WM_CONTEXTMENU:
            if (lParam == -1) // from the keyboard; the mouse's has been handled above
                self->TreeView1_MenuKey();
            return 0;
        default:
            break;
        }
        return DefSubclassProc(tree, message, wParam, lParam);
    });
}

void frmMain::TreeView1_DblClick() {
    PostMessageA(window, runSelected, 0, 0);
}

void frmMain::TreeView1_KeyPress(int character) {
    if (character == VK_RETURN)
        PostMessageA(window, runSelected, 0, 0);
}

void frmMain::Command1_Click() {
    RunSelectedProgram();
}

void frmMain::TreeView1_RightMouseDown() {
    POINT pointer;
    GetCursorPos(&pointer);
    if (rightClickLatch) {
        // By the click's own time: it may be handled late.
        const auto age = static_cast<LONG>(static_cast<DWORD>(GetMessageTime()) - *rightClickLatch);
        if (age < 0)
            return; // made before the latch was set: the clicks put in then are still to come
        rightClickLatch.reset();
        if (static_cast<DWORD>(age) <= GetDoubleClickTime()) {
            PopUp(pointer.x, pointer.y);
            return;
        }
    }
    // Clicks land where the pointer is by now, and this one may be handled late.
    if (WindowFromPoint(pointer) != TreeView1.Window())
        return;
    rightClickLatch = GetTickCount();
    // A left click selects the node under the pointer; the right click behind it comes back here.
    constexpr DWORD left = MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP;
    constexpr DWORD right = MOUSEEVENTF_RIGHTDOWN | MOUSEEVENTF_RIGHTUP;
    // The flags name the buttons of the mouse, which a left-handed user has swapped.
    const bool swapped = GetSystemMetrics(SM_SWAPBUTTON) != 0;
    mouse_event(swapped ? right : left, 0, 0, 0, 0);
    mouse_event(swapped ? left : right, 0, 0, 0, 0);
}

void frmMain::TreeView1_MenuKey() {
    const auto text = TreeView1.ShowSelectedText();
    if (!text)
        return;
    POINT below{text->left, text->bottom};
    ClientToScreen(TreeView1.Window(), &below);
    PopUp(below.x, below.y);
}

// The popup of the selected program, at a place of the screen; headings have none.
void frmMain::PopUp(int x, int y) {
    const std::string& key = TreeView1.SelectedKey();
    if (key.empty())
        return;
    propertiesKey = key;
    struct Destroy {
        void operator()(HMENU menu) const { DestroyMenu(menu); }
    };
    const std::unique_ptr<std::remove_pointer_t<HMENU>, Destroy> menu(
        LoadMenuA(Instance(), MAKEINTRESOURCEA(IDR_TREE_POPUP)));
    TrackPopupMenu(GetSubMenu(menu.get(), 0), TPM_LEFTALIGN | TPM_TOPALIGN, x, y, 0, window, nullptr);
}

void frmMain::mnuTreeView_Click(int item) {
    if (item == ID_TREE_PROPERTIES)
        Form2(*corvel, propertiesKey).Show(window);
    else
        MessageBoxA(window, "Option not available. In Developement.", "Warning", MB_OK);
}

void frmMain::mnuAboutObrin_Click() {
    frmAbout().Show(window);
}

// --- Systems and programs ---

void frmMain::mnuSystems_Click(std::size_t index) {
    LoadSystem(MnuFiles[index].name);
}

void frmMain::LoadSystem(const std::string& fileName) {
    currentSystem = fileName;
    TreeView1.Clear();
    const LeadByteTest isLeadByte = CodePageLeadByteTest();
    MenuDefinition definition = ParseMenuDefinition(ReadFileBytes(fileName), fileName, isLeadByte);
    // With its folder: the platform looks for a bare name in other folders too.
    const std::string pictureFile = EnsureTrailingBackslash(CurrentFolder(), isLeadByte) + "Startup.bmp";
    if (NormalFileExists(pictureFile)) {
        picture = LoadPicture(pictureFile);
        ShowPicture();
    }
    SetWindowTextA(window, menuCaption);
    const std::string title(TrimBlanks(definition.title));
    SetWindowTextA(Frame1, title.c_str());
    SetLabel(Label1, title);
    Form_Resize(); // title and picture are centred by their own widths
    TreeView1.Fill(std::move(definition.entries));
    hostLink.SendHostCommand(StartSystem(SystemCode(fileName, isLeadByte)));
}

void frmMain::RunSelectedProgram() {
    CheckWorkstationUpdate(window, wsid);
    if (!IsWindow(window) || !TreeView1.IsProgramNode())
        return;
    RunHostProgram(TreeView1.SelectedKey());
}

void frmMain::RunHostProgram(std::string_view program) {
    hostLink.SendHostCommand(LoadAndRun(program));
    AfterHostCommand();
}

// The step behind every host command. The window stays as it is: an operator starts one program after the
// other.
void frmMain::AfterHostCommand() {}

} // namespace obrin
