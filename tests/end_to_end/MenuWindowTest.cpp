// The menu window: from outside where its controls stand after a resize, the pointer, the about box; in this
// process what screens and screen readers ask of it.

#include "end_to_end/Installation.h"

#include "controls/Font.h"
#include "controls/Window.h"
#include "menu/frmMain.h"
#include "platform/Events.h"
#include "support/WindowChecks.h"

namespace obrin::test {
namespace {

struct MenuWindow : testing::Test {
    MenuWindow() { EXPECT_TRUE(installation.HostTypesLast("UB")); }

    HWND Control(int id) const { return GetDlgItem(menu, id); }

    /// A window's place in the menu window's inside.
    RECT Place(HWND window) const {
        RECT place;
        GetWindowRect(window, &place);
        MapWindowPoints(nullptr, menu, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    const Installation installation{5};
    const Launcher launcher;
    const HWND menu = launcher.Menu();
};

TEST_F(MenuWindow, KeepsItsMarginsAtEverySize) {
    const auto margins = [this] { // from the lower right corner
        std::vector<LONG> distances;
        for (const HWND kept :
             {Control(IDC_FRAME1), launcher.Tree(), Control(IDC_LABEL4), Control(IDC_LABEL5)}) {
            distances.push_back(Place(menu).right - Place(kept).right);
            distances.push_back(Place(menu).bottom - Place(kept).bottom);
        }
        return distances;
    };
    const std::vector<LONG> designed = margins();
    EXPECT_EQ(GetAwarenessFromDpiAwarenessContext(GetWindowDpiAwarenessContext(menu)),
              DPI_AWARENESS_PER_MONITOR_AWARE);
    if (GetDpiForWindow(menu) == USER_DEFAULT_SCREEN_DPI) {
        RECT inside;
        GetClientRect(menu, &inside);
        std::string places = std::to_string(inside.right) + "x" + std::to_string(inside.bottom);
        for (const HWND control :
             {Control(IDC_FRAME1), launcher.Tree(), GetDlgItem(Control(IDC_FRAME1), IDC_COMMAND1)}) {
            const auto [left, top, right, bottom] = Place(control);
            for (const LONG side : {left, top, right, bottom})
                places += " " + std::to_string(side);
        }
        for (const int label : {IDC_LABEL1, IDC_LABEL2, IDC_LABEL3, IDC_IMAGE1})
            places += " " + std::to_string(Place(Control(label)).top);
        const RECT idea = Place(Control(IDC_LABEL4)), link = Place(Control(IDC_LABEL5));
        for (const LONG side : {link.left - idea.right, link.right, link.bottom})
            places += " " + std::to_string(side);
        EXPECT_EQ(places, "740x500 10 8 410 488 20 36 400 440 20 448 140 476 16 60 82 120 0 733 499");
    }
    for (const SIZE size : {SIZE{1200, 900}, {1, 1}, {760, 560}}) {
        for (const int id : {IDC_FRAME1, IDC_LABEL5})
            SetWindowPos(Control(id), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        SetWindowPos(menu, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        // The display may confirm the size before last meanwhile.
        EXPECT_TRUE(size.cx == 1 || Eventually([&] { return margins() == designed; }));
        HWND next = GetWindow(menu, GW_CHILD);
        for (const int id : {IDC_LABEL5, IDC_LABEL4, IDC_FRAME1}) { // from the front
            EXPECT_EQ(GetDlgCtrlID(next), id);
            next = GetWindow(next, GW_HWNDNEXT);
        }
    }
    PostMessageA(menu, WM_COMMAND, ID_ABOUT, 0);
    EXPECT_EQ(GetWindow(launcher.Window("Obrin Software Systems"), GW_OWNER), menu);
    EXPECT_FALSE(IsWindowEnabled(menu));
}

// In the place of the shell's, for what this process opens: programs are started, documents only noted.
std::string documents;
HINSTANCE WINAPI OpenHere(HWND, const char*, const char* file, const char* parameters, const char*,
                          int show) {
    if (parameters != nullptr)
        Start(std::filesystem::current_path() / file, parameters);
    else
        documents.append(file).append(show == SW_SHOWNORMAL ? " " : "?");
    return reinterpret_cast<HINSTANCE>(INT_PTR{42});
}

} // namespace

extern "C" {
#ifdef _WIN64
decltype(&ShellExecuteA) imported __asm__("__imp_ShellExecuteA") = OpenHere;
#else
decltype(&ShellExecuteA) imported __asm__("__imp__ShellExecuteA@24") = OpenHere;
#endif
}

namespace {

TEST(MenuWindowHere, IsTheSameOnEveryScreenAndForEveryReader) {
    const Installation installation(5);
    WriteFileBytes("UB.mnu",
                   "Water && Waste^" + std::string(5000, 'x') + "\r\nBackup^Core\\Programs\\CSBackup\r\n");
    WriteFileBytes("Startup.bmp", Bmp(120, 90));
    frmMain menu;
    menu.Show();
    const HWND window = menu.Window();
    const auto control = [=](int id) { return GetDlgItem(window, id); };
    const HWND link = control(IDC_LABEL5);
    const HWND tree = GetDlgItem(control(IDC_FRAME1), IDC_TREEVIEW1);
    const HWND button = GetDlgItem(control(IDC_FRAME1), IDC_COMMAND1);
    const HWND frame = control(IDC_FRAME1);
    const RECT room = PlaceOf(frame);
    const HCURSOR arrow = LoadCursorA(nullptr, IDC_ARROW), crosshair = LoadCursorA(nullptr, IDC_CROSS);
    // A crosshair from the link to the background, whatever lies in between.
    for (const auto& [over, x, y, pointer] : {std::tuple{window, room.right + 10, room.bottom - 10, arrow},
                                              {control(IDC_LABEL4), 5L, 5L, arrow},
                                              {link, 5L, 5L, crosshair},
                                              {control(IDC_LABEL4), 5L, 5L, crosshair},
                                              {control(IDC_LABEL1), 5L, 5L, crosshair},
                                              {tree, 5L, 5L, crosshair},
                                              {frame, 4L, 100L, crosshair},
                                              {window, room.right + 10, room.bottom - 10, arrow},
                                              {frame, 4L, 100L, arrow}}) {
        POINT place{x, y};
        ClientToScreen(over, &place);
        PointAt(place);
        const HWND under = WindowFromPoint(place);
        SendMessageA(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        EXPECT_EQ(GetCursor(), pointer) << GetDlgCtrlID(over);
    }
    EXPECT_FALSE(SendMessageA(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                              MAKELPARAM(HTRIGHT, WM_MOUSEMOVE)))
        << "the border has its own";
    const HDC linkScreen = GetDC(link);
    for (const HWND focused : {link, tree, link}) { // every second pixel
        SetFocus(focused);
        SendMessageA(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
        UpdateWindow(link);
        EXPECT_EQ(GetPixel(linkScreen, 0, 0) != GetPixel(linkScreen, 1, 0), focused == link);
    }
    ReleaseDC(link, linkScreen);
    const auto fontOf = [](HWND lettered) { return SendMessageA(lettered, WM_GETFONT, 0, 0); };
    for (const int change : {WM_SETTINGCHANGE, WM_THEMECHANGED, WM_SYSCOLORCHANGE}) {
        const LRESULT messageFont = fontOf(tree);
        SetWindowPos(control(IDC_LABEL3), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        UpdateWindow(control(IDC_IMAGE1));
        SendMessageA(window, static_cast<UINT>(change), 0, 0);
        EXPECT_TRUE(GetUpdateRect(control(IDC_IMAGE1), nullptr, FALSE)) << "painted anew";
        EXPECT_GT(PlaceOf(control(IDC_LABEL3)).left, 0) << "laid out anew";
        EXPECT_NE(fontOf(tree), messageFont) << "the user's may be another one now";
        for (const int id : {IDC_FRAME1, IDC_LABEL2, IDC_LABEL3})
            EXPECT_EQ(fontOf(control(id)), fontOf(tree));
    }
    CentreOnScreen(window, {700, 500});
    const RECT centred = PlaceOf(window);
    CentreOnScreen(window, {30'000, 30'000});
    RECT work, title;
    GetWindowRect(window, &title);
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_TRUE(EqualRect(&title, &work)) << "no larger than a small screen";
    EXPECT_NEAR(centred.left + centred.right, work.left + work.right, 1);
    EXPECT_NEAR(centred.top + centred.bottom, work.top + work.bottom, 1);
    GetWindowRect(control(IDC_LABEL1), &title);
    const auto font = reinterpret_cast<HFONT>(SendMessageA(control(IDC_LABEL1), WM_GETFONT, 0, 0));
    const RECT idea = PlaceOf(control(IDC_LABEL4));
    EXPECT_EQ(idea.right - idea.left, MeasureText(control(IDC_LABEL4), "Got a better idea? ").cx);
    EXPECT_EQ(title.right - title.left, MeasureText(font, "Water & Waste").cx) << "as in the frame's caption";
    SendMessageA(window, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&title));
    const UniqueDc memory(CreateCompatibleDC(nullptr));
    const LRESULT image = SendMessageA(control(IDC_IMAGE1), STM_GETIMAGE, IMAGE_BITMAP, 0);
    const HGDIOBJ none = SelectObject(memory.get(), reinterpret_cast<HBITMAP>(image));
    bool grey = false;
    for (int x = 0; x < 180; ++x) {
        const COLORREF pixel = GetPixel(memory.get(), x, 134);
        grey = grey || (pixel != CLR_INVALID && pixel != RGB(0, 0, 0) && pixel != RGB(255, 255, 255));
    }
    EXPECT_TRUE(grey) << "scaled whole, and smoothly";
    SelectObject(memory.get(), none);
    const RECT centre = PlaceOf(control(IDC_LABEL1));
    for (const int id : {IDC_IMAGE1, IDC_LABEL2, IDC_LABEL3}) {
        const RECT below = PlaceOf(control(id));
        EXPECT_NEAR(centre.left + centre.right, below.left + below.right, 2) << id;
    }
    std::string fonts;
    for (const HWND lettered : {control(IDC_LABEL1), control(IDC_LABEL4), link, button})
        fonts += FontOf(lettered) + " ";
    EXPECT_EQ(fonts, "Comic Sans MS-36b Georgia-20 Georgia-20u MS Sans Serif-16 ");

    const auto [heardName, heardRole] = Announced(link);
    EXPECT_EQ(heardName, "E-Mail us!");
    if (PlatformTakesRoles(button))
        EXPECT_EQ(heardRole, ROLE_SYSTEM_LINK);
    else
        std::printf(
            "This platform takes no roles of controls: whether the link is announced as one was not seen.\n");
    const HDC screen = GetDC(link);
    EXPECT_EQ(SendMessageA(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(screen),
                           reinterpret_cast<LPARAM>(link)),
              reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE)));
    EXPECT_EQ(std::pair(GetTextColor(screen), GetBkMode(screen)),
              std::pair(GetSysColor(COLOR_HOTLIGHT), TRANSPARENT));
    ReleaseDC(link, screen);
    std::string styles;
    for (const HWND styled :
         {window, control(IDC_FRAME1), tree, button, control(IDC_LABEL1), control(IDC_IMAGE1),
          control(IDC_LABEL2), control(IDC_LABEL3), control(IDC_LABEL4), link}) {
        std::array<char, 40> style{};
        std::snprintf(style.data(), style.size(), "%08lX-%lX ",
                      GetWindowStyle(styled) & ~DWORD{WS_HSCROLL | WS_VSCROLL}, GetWindowExStyle(styled));
        styles += style.data();
    }
    EXPECT_EQ(styles,
              "16CF0000-10100 56000007-10000 54010037-200 54010000-0 54000080-0 5400000E-0 54000080-0 "
              "54000080-0 54000080-0 54010180-0 ");
    EXPECT_EQ(TextOf(button), "&Run Program");
    EXPECT_EQ(GetClassLongPtrA(window, GCLP_HICON),
              reinterpret_cast<ULONG_PTR>(LoadIconA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN))));
    EXPECT_EQ(GetClassLongPtrA(window, GCLP_HBRBACKGROUND),
              reinterpret_cast<ULONG_PTR>(GetSysColorBrush(COLOR_BTNFACE)));
    std::array<char, 80> listed{};
    GetMenuStringA(GetMenu(window), ID_SYSTEMS, listed.data(), listed.size(), MF_BYCOMMAND);
    EXPECT_STREQ(listed.data(), "Water && Waste");
    EXPECT_EQ(TextOf(tree), "Water & Waste") << "for a screen reader, shown nowhere";
    EXPECT_EQ(GetNextDlgTabItem(window, button, FALSE), link);
    EXPECT_EQ(GetNextDlgTabItem(window, link, FALSE), tree);
    SetFocus(button);
    SendMessageA(window, WM_ACTIVATE, WA_INACTIVE, 0);
    SetFocus(window);
    EXPECT_EQ(GetFocus(), button) << "back from another window";
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_SPACE}, WPARAM{VK_DOWN}}) {
        SendMessageA(link, WM_KEYDOWN, key, 0);
        SendMessageA(link, WM_KEYDOWN, key, LPARAM{KF_REPEAT} << 16); // held
    }
    SendMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    SendMessageA(window, WM_COMMAND, MAKEWPARAM(IDC_LABEL5, STN_DBLCLK), reinterpret_cast<LPARAM>(link));
    SendMessageA(window, WM_COMMAND, ID_SYSTEM_HELP, 0);
    EXPECT_EQ(documents,
              "Help\\BetterIdea.url Help\\BetterIdea.url Help\\BetterIdea.url Help\\UB\\Index.html ");
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_TAB}}) {
        MSG typed{link, WM_KEYDOWN, key, 0, 0, {}};
        for (const HWND asked : {link, tree}) {
            const LRESULT code = SendMessageA(asked, WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&typed));
            EXPECT_EQ((code & DLGC_WANTMESSAGE) != 0, key == VK_RETURN);
        }
    }
    SendMessageA(window, WM_CLOSE, 0, 0);
    RunEvents(); // up to the end that the closed window has asked for
}

} // namespace
} // namespace obrin::test
