#include "menu/frmMain.h"

#include "common/Installation.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "common/Twips.h"
#include "controls/Font.h"
#include "controls/GroupBox.h"
#include "controls/Link.h"
#include "controls/Window.h"
#include "controls/WindowText.h"
#include "maintenance/WorkstationUpdate.h"
#include "maintenance/frmAbout.h"
#include "menu/MenuCommands.h"
#include "menu/MenuDefinition.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Shell.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "startup/HostKeys.h"
#include "startup/UserRecords.h"
#include "startup/WorkstationIdentity.h"

#include <utility>

namespace obrin {

namespace {

// Runs the selected program. It is posted, because the tree must finish its event first: while a program
// starts, the user can close the window and so destroy the tree.
constexpr UINT runSelectedMessage = WM_APP;
constexpr DWORD windowStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

} // namespace

void frmMain::Show() {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = Instance();
    windowClass.hIcon = LoadIconA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN));
    windowClass.hCursor = nullptr; // see OnSetCursor
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszMenuName = MAKEINTRESOURCEA(IDR_MENU_BAR);
    windowClass.lpszClassName = menuWindowClass;
    RegisterClassExA(&windowClass);
    // The caption stays empty until a system is shown, so that a second menu does not show an empty window.
    if (CreateWindowExA(WS_EX_CONTROLPARENT, menuWindowClass, "", windowStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, Instance(), this) == nullptr)
        ThrowLastError("Creating the menu window");
    if (!Form_Load())
        return;
    ShowWindow(window, SW_SHOWNORMAL);
    hostLink.CloseNotice();
    SetForegroundWindow(window);
}

LRESULT CALLBACK frmMain::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<frmMain*>(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams);
        self->window = window;
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<frmMain*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self == nullptr)
        return DefWindowProcA(window, message, wParam, lParam);
    return RunOrEndProgram([=] { return self->OnMessage(message, wParam, lParam); });
}

LRESULT frmMain::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return 0;
    case WM_SIZE:
        Form_Resize();
        return 0;
    case WM_DPICHANGED:
        Form_DpiChanged(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
        return 0;
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE:
        Form_AppearanceChanged(message, wParam, lParam);
        break;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE)
            lastFocus = GetFocus();
        break;
    case WM_SETFOCUS:
        SetFocus(IsChild(window, lastFocus) ? lastFocus : TreeView1.Window());
        return 0;
    case WM_SETCURSOR:
        if (OnSetCursor(reinterpret_cast<HWND>(wParam), LOWORD(lParam)))
            return TRUE;
        break;
    case WM_CTLCOLORSTATIC:
        if (reinterpret_cast<HWND>(lParam) == Label5)
            return UseLinkColours(reinterpret_cast<HDC>(wParam));
        break;
    case runSelectedMessage:
        // The operator may have asked twice. The dialog or error box of the first call disables the window.
        if (IsWindowEnabled(window))
            RunSelectedProgram();
        return 0;
    case WM_CLOSE:
        Form_Unload();
        return 0;
    case WM_ENDSESSION:
        // Windows may end the process as soon as this handler returns.
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
    // A mouse click does not make the button the default one, so Enter then arrives as IDOK.
    else if (id == IDC_COMMAND1 || (id == IDOK && GetFocus() == Command1))
        Command1_Click();
    else if (id == IDC_LABEL5 && notification != STN_CLICKED)
        return;
    else if (const auto program = HostProgramOf(id))
        RunHostProgram(*program);
    else if (const auto document = DocumentOf(id, currentSystem, CodePageLeadByteTest()))
        OpenIgnoringErrors(window, document->c_str());
}

// The link turns the pointer into a crosshair, and the background of the window turns it back. Other controls
// change nothing. Returns false if Windows should choose the pointer.
bool frmMain::OnSetCursor(HWND hit, int hitTest) {
    if (hitTest != HTCLIENT)
        return false;
    // Windows reports labels, picture and frame as the window itself.
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
    MnuFiles = EnumerateMenuFiles();
    FillSystemList(GetMenu(window), MnuFiles);

    const std::string loginName = LoginName();
    wsid = EstablishIdentity(window, loginName);
    if (!IsWindow(window))
        return false;
    // Loads the library before the host starts, so that an error here leaves no hidden host.
    corvel.emplace();
    hostLink.StartHost(window, wsid, [&] {
        CreateControls();
        SetLabel(Label2, UserCaption(loginName));
        SetLabel(Label3, WsidCaption(wsid));
    });
    if (!IsWindow(window))
        return false;

    WriteFileBytes(MarkerFileName(wsid), "");

    const std::string lastSystem(
        TrimBlanks(corvel->GetRegValue(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue)));
    if (auto file = lastSystem.empty() ? std::nullopt : ReadFileIfThere(lastSystem))
        LoadSystem(lastSystem, *file);
    else if (!MnuFiles.empty())
        mnuSystems_Click(0);
    else
        throw RunTimeError(PlatformError::InvalidIndex,
                           "Showing the first system: there is no menu file (*.mnu) in " + CurrentFolder());
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
                    {.label1 = SizeInTwips(Label1).width,
                     .image1 = SizeInTwips(Image1.Window()).width,
                     .label2 = SizeInTwips(Label2),
                     .label3 = SizeInTwips(Label3),
                     .label4 = SizeInTwips(Label4),
                     .label5 = SizeInTwips(Label5)});

    const auto px = [this](double value) { return ToPixels(value, dpi); };
    const Box& frame = layout.frame1;
    const Box& tree = layout.treeView1;
    constexpr UINT keepOrder = SWP_NOACTIVATE | SWP_NOZORDER;
    HDWP positions = BeginDeferWindowPos(7);
    const auto move = [&](HWND control, double left, double top) {
        positions =
            DeferWindowPos(positions, control, nullptr, px(left), px(top), 0, 0, keepOrder | SWP_NOSIZE);
    };
    move(Label1, layout.label1Left, design::label1Top);
    move(Image1.Window(), layout.image1.left, layout.image1.top);
    move(Label2, layout.label2Left, design::label2Top);
    move(Label3, layout.label3.left, layout.label3.top);
    // The order from front to back is Label5, Label4, Frame1.
    const auto moveBehind = [&](HWND front, HWND control, Point position) {
        positions = DeferWindowPos(positions, control, front, px(position.left), px(position.top), 0, 0,
                                   SWP_NOACTIVATE | SWP_NOSIZE);
    };
    moveBehind(HWND_TOP, Label5, layout.label5);
    moveBehind(Label5, Label4, layout.label4);
    positions = DeferWindowPos(positions, Frame1, Label4, px(frame.left), px(frame.top), px(frame.width),
                               px(frame.height), SWP_NOACTIVATE);
    if (!EndDeferWindowPos(positions))
        ThrowLastError("Laying out the menu window");
    SetWindowPos(TreeView1.Window(), nullptr, px(tree.left), px(tree.top), px(tree.width), px(tree.height),
                 keepOrder);
    SetWindowPos(Command1, nullptr, px(layout.command1.left), px(layout.command1.top),
                 px(design::command1.width), px(design::command1.height), keepOrder);
}

// Uses `newDpi`, because GetDpiForWindow may still return the old DPI.
void frmMain::Form_DpiChanged(UINT newDpi, const RECT& suggested) {
    dpi = newDpi;
    ApplyFonts();
    Image1.Scale(dpi);
    SetWindowPos(window, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Form_Resize(); // Windows sends no WM_SIZE if the size in pixels stays the same
}

// The user has chosen another font, theme or colour scheme.
void frmMain::Form_AppearanceChanged(UINT message, WPARAM wParam, LPARAM lParam) {
    // Windows sends WM_THEMECHANGED to the controls too, but the other messages only to top-level windows.
    if (message != WM_THEMECHANGED) {
        for (const HWND control : {TreeView1.Window(), Frame1, Command1})
            SendMessageA(control, message, wParam, lParam);
    }
    ApplyFonts();
    Form_Resize();
    RedrawWindow(window, nullptr, nullptr, RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void frmMain::Form_Unload() {
    if (IsEndingWithError())
        return;
    // The Windows session can end while the host handles the exit command. Windows then calls this handler
    // again: the inner call sends the remaining keys and completes the close.
    const bool isInner = std::exchange(unloading, true);
    hostLink.SendHostCommand(isInner ? "" : "Run Core\\Exit\r");
    if (!IsWindow(window))
        return; // the inner call has done the rest
    if (!currentSystem.empty())
        corvel->SetRegValue(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue, currentSystem);
    DeleteFileA(MarkerFileName(wsid).c_str());
    DestroyWindow(window);
}

// --- Controls ---

void frmMain::CreateControls() {
    Frame1 =
        CreateControl(window, WC_BUTTONA, IDC_FRAME1, BS_GROUPBOX | WS_CLIPCHILDREN, "", WS_EX_CONTROLPARENT);
    MakeContainer(Frame1);
    TreeView1.Attach(CreateControl(Frame1, WC_TREEVIEWA, IDC_TREEVIEW1,
                                   WS_TABSTOP | TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS |
                                       TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP,
                                   "", WS_EX_CLIENTEDGE),
                     {.run = [this] { PostMessageA(window, runSelectedMessage, 0, 0); },
                      .popUp = [this](int x, int y) { PopUp(x, y); }});
    SendMessageA(TreeView1.Window(), TVM_SETEXTENDEDSTYLE, TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
    Command1 = CreateControl(Frame1, WC_BUTTONA, IDC_COMMAND1, WS_TABSTOP | BS_PUSHBUTTON, "&Run Program");
    constexpr DWORD label = SS_LEFT | SS_NOPREFIX;
    Label1 = CreateControl(window, WC_STATICA, IDC_LABEL1, label);
    Image1.Attach(CreateControl(window, WC_STATICA, IDC_IMAGE1, SS_BITMAP));
    Label2 = CreateControl(window, WC_STATICA, IDC_LABEL2, label);
    Label3 = CreateControl(window, WC_STATICA, IDC_LABEL3, label);
    Label4 = CreateControl(window, WC_STATICA, IDC_LABEL4, label, "Got a better idea?");
    Label5 = CreateControl(window, WC_STATICA, IDC_LABEL5, label | SS_NOTIFY | WS_TABSTOP, "E-Mail us!");
    MakeLink(Label5);

    dpi = GetDpiForWindow(window);
    ApplyFonts();
    CentreOnScreen(window, DesignedOuterSize());
    const SIZE outer = DesignedOuterSize(); // the window itself may be smaller, because of a small screen
    margins = RecordMargins({ToTwips(outer.cx, dpi), ToTwips(outer.cy, dpi)}, layout);
}

SIZE frmMain::DesignedOuterSize() const {
    RECT size{0, 0, ToPixels(design::inner.width, dpi), ToPixels(design::inner.height, dpi)};
    AdjustWindowRectExForDpi(&size, windowStyle, TRUE, 0, dpi);
    return {size.right - size.left, size.bottom - size.top};
}

void frmMain::ApplyFonts() {
    Fonts newFonts{.title = MakeFont(comicSans, 18, dpi, {.bold = true}),
                   .label = MakeFont(georgia, 10, dpi),
                   .link = MakeFont(georgia, 10, dpi, {.underlined = true}),
                   .button = MakeFont(msSansSerif, 8, dpi),
                   .message = MakeMessageFont(dpi)};
    SetFont(Label1, newFonts.title.get());
    SetFont(Label4, newFonts.label.get());
    SetFont(Label5, newFonts.link.get());
    SetFont(Command1, newFonts.button.get());
    for (const HWND control : {Frame1, TreeView1.Window(), Label2, Label3})
        SetFont(control, newFonts.message.get());
    for (const HWND label : {Label1, Label2, Label3, Label4, Label5})
        SetLabel(label, WindowText(label));
    fonts = std::move(newFonts); // deletes the old fonts, which no control uses any more
}

// Sets the text of a label and resizes the label to it. Label4 gets room for one more blank, because Label5
// follows without a gap.
void frmMain::SetLabel(HWND label, const std::string& text) {
    SetWindowTextA(label, text.c_str());
    const auto font = reinterpret_cast<HFONT>(SendMessageA(label, WM_GETFONT, 0, 0));
    const SIZE size = MeasureText(font, label == Label4 ? text + ' ' : text);
    SetWindowPos(label, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Size frmMain::SizeInTwips(HWND control) const {
    RECT size;
    GetWindowRect(control, &size);
    return {ToTwips(size.right - size.left, dpi), ToTwips(size.bottom - size.top, dpi)};
}

// --- Events of controls and menu items ---

void frmMain::Command1_Click() {
    RunSelectedProgram();
}

void frmMain::PopUp(int x, int y) {
    const std::string_view key = TreeView1.SelectedKey();
    if (key.empty())
        return; // headings have no popup menu
    propertiesKey = key;
    const UniqueMenu menu(LoadMenuA(Instance(), MAKEINTRESOURCEA(IDR_TREE_POPUP)));
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
    const std::string& name = MnuFiles[index].name;
    LoadSystem(name, ReadFileBytes(name));
}

void frmMain::LoadSystem(const std::string& fileName, std::string_view contents) {
    currentSystem = fileName;
    TreeView1.Clear();
    const LeadByteTest isLeadByte = CodePageLeadByteTest();
    MenuDefinition definition = ParseMenuDefinition(contents, isLeadByte);
    ThrowFirstFault(definition, fileName);
    // Uses the full path: Windows also looks for a name without a folder in other folders.
    const std::string pictureFile = EnsureTrailingBackslash(CurrentFolder(), isLeadByte) + startupPictureFile;
    if (NormalFileExists(pictureFile))
        Image1.Load(pictureFile, dpi);
    SetWindowTextA(window, menuCaption);
    // In the System List "&" marks an access key. The frame's caption gets none: Alt with that letter would
    // not reach the menu bar any more.
    const std::string title = RemoveAccessKeyMarks(TrimBlanks(definition.title));
    SetWindowTextA(Frame1, DoubleAmpersands(title).c_str());
    SetWindowTextA(TreeView1.Window(), title.c_str()); // only screen readers use this text
    SetLabel(Label1, title);
    Form_Resize(); // centres the title and the picture
    TreeView1.Fill(std::move(definition.entries));
    hostLink.SendHostCommand(StartSystemCommand(SystemCode(fileName, isLeadByte)));
}

void frmMain::RunSelectedProgram() {
    CheckWorkstationUpdate(window, wsid);
    if (!IsWindow(window) || !TreeView1.IsProgramNode())
        return;
    RunHostProgram(TreeView1.SelectedKey());
}

void frmMain::RunHostProgram(std::string_view program) {
    hostLink.SendHostCommand(LoadAndRunCommand(program));
}

} // namespace obrin
